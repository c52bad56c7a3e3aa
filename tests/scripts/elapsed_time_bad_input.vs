# What the elapsed time screen does with values it cannot compute with: one box that names the
# field, and nothing that was typed is lost.
menu ET_MPH
pause a value of 0 that a formula divides by
set Form3.Text5 0
click Form3.Command1
set Form3.Text5 500
set Form3.Text2 0
click Form3.Command2
click Form3.Command15
click Form3.Command4
set Form3.Text2 2350
set Form3.Text3 0
click Form3.Command3
click Form3.Command16
set Form3.Text3 120
set Form3.Text9 0
click Form3.Command11
set Form3.Text9 100
set Form3.Text1 0
click Form3.Command9
click Form3.Command20
click Form3.Command22
set Form3.Text1 11
set Form3.Text11 0
click Form3.Command12
click Form3.Command14
set Form3.Text11 6500
set Form3.Text15 0
click Form3.Command13
click Form3.Command19
set Form3.Text15 350
set Form3.Text19 0
click Form3.Command23
click Form3.Command27
messages
pause a field that a command does not use stops none
set Form3.Text12 none
click Form3.Command1
get Form3.Text1
click Form3.Command24
messages
set Form3.Text12 400
pause types of curve
set Form3.Text16 0.6
click Form3.Command19
set Form3.Text16 11.4
click Form3.Command19
set Form3.Text16 2.5
click Form3.Command19
set Form3.Text16 12
click Form3.Command19
set Form3.Text16 
click Form3.Command19
value Type Curve
messages
pause RPM without a curve
set Form3.Text16 6
set Form3.Text11 0
click Form3.Command19
set Form3.Text11 -3000
click Form3.Command19
set Form3.Text11 1e19
click Form3.Command19
set Form3.Text16 3
click Form3.Command19
set Form3.Text11 1e300
click Form3.Command19
messages
set Form3.Text11 6500
pause split times: one run left empty, one of zeros, one with equal times
set Form3.Text4 
set Form3.Text10 
set Form3.Text13 
set Form3.Text17 
set Form3.Text21 
set Form3.Text22 0
set Form3.Text23 0
set Form3.Text24 0.0
set Form3.Text27 0
set Form3.Text28 0
click Form3.Command4
get Form3.Text7(0)
get Form3.Text40
get Form3.Text7(4)
get Form3.Text43
get Form3.Text7(8)
get Form3.Text44
get Form3.Text45
messages
set Form3.Text31 5.845
click Form3.Command4
get Form3.Text7(9)
get Form3.Text44
messages
set Form3.Text31 
click Form3.Command4
messages
pause all of the speed lost
check Form3.Check2
set Form3.Text26 100
click Form3.Command12
click Form3.Command3
get Form3.Label77
messages
pause typing a slippage changes nothing by itself
set Form3.Text26 5
hover Form3.Command3
get Form3.Label77
click Form3.Command12
get Form3.Label77
uncheck Form3.Check2
state Form3.Text26
get Form3.Label77
