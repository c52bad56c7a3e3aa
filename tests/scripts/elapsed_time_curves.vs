# The standard horsepower curves as tables, and as a parameter file that the torque table is read
# from.
menu ET_MPH
set Form3.Text5 400
set Form3.Text11 5000
set Form3.Text15 350
set Form3.Text16 1
click Form3.Command19
show Form3.Text38
press Form3.Text38 x
pause a fraction draws the last whole type again
set Form3.Text16 2.5
click Form3.Command19
show Form3.Text38
value Type Curve
press Form3.Text38 x
pause a diesel, by its torque
set Form3.Text16 11
set Form3.Text12 430
set Form3.Text11 1800
set Form3.Text15 359
click Form3.Command19
show Form3.Text38
file curve.txt
press Form3.Text38 .
dialogs
pause a file for the acceleration screen
check Form3.Check3
set Form3.Text46 0.45
set Form3.Text16 8
set Form3.Text11 6300
set Form3.Text5 300
click Form3.Command19
get Form3.Label7
show Form3.Text38
file curve.prm
press Form3.Text38 .
dialogs
file curve.prm
answer No
menu Read
messages
menu ET_MPH
uncheck Form3.Check3
pause comma prints, any other key closes
click Form3.Command19
press Form3.Text38 ,
pages
