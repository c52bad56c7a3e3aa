# What the gear screen does with values it cannot compute with: one box that names the field, and
# nothing that was typed is lost.
menu GEAR
pause a value of 0 that a formula divides by
set Form5.Text21 0
click Form5.Command2
click Form5.Command8
click Form5.Command9
click Form5.Command21
set Form5.Text21 26
set Form5.Text18 0
click Form5.Command1
click Form5.Command21
set Form5.Text18 4.1
set Form5.Text2(0) 0
click Form5.Command5
click Form5.Command6
click Form5.Command25
set Form5.Text2(0) 3.25
set Form5.Text30 0
click Form5.Command7
set Form5.Text30 10
set Form5.Text20 0
click Form5.Command3
click Form5.Command4
set Form5.Text32 0
click Form5.Command10
click Form5.Command12
click Form5.Command13
click Form5.Command14
click Form5.Command19
click Form5.Command20
set Form5.Text32 30
set Form5.Text1 0
click Form5.Command11
click Form5.Command6
set Form5.Text38 0
click Form5.Command18
set Form5.Text73 0
click Form5.Command23
set Form5.Text75 0
click Form5.Command30
check Form5.Check2
set Form5.Text60 0
click Form5.Command1
set Form5.Text60 12
set Form5.Text61 0
click Form5.Command1
uncheck Form5.Check2
click Form5.Command29
set Form5.Text14 0
click Form5.Command26
click Form5.Command28
messages
pause the number of gears
set Form5.Text2(0) 3.2
set Form5.Text2(8) 0.8
set Form5.Text2(9) 2.9
click Form5.Command25
set Form5.Text2(9) 11
click Form5.Command25
get Form5.Text2(1)
messages
pause a gear that is not there repeats the speed of the one before
set Form5.Text2(1) 2
set Form5.Text2(2) 0
click Form5.Command1
get Form5.Label2(31)
get Form5.Label2(32)
set Form5.Text2(4) fifth
click Form5.Command1
messages
pause charts
set Form5.Text42 1
set Form5.Text43 2050
set Form5.Text44 1
click Form5.Command22
get Form5.Text58
press Form5.Text58 x
set Form5.Text43 2050.5
click Form5.Command22
show Form5.Text58
press Form5.Text58 x
set Form5.Text42 30
set Form5.Text43 30
click Form5.Command22
show Form5.Text58
press Form5.Text58 x
set Form5.Text44 0
click Form5.Command22
set Form5.Text44 1
set Form5.Text42 0
click Form5.Command22
messages
set Form5.Text42 28
click Form5.Command22
show Form5.Text58
