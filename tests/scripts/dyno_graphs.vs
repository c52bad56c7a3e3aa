# Every graph of the run, pressed with defaults, with other values and onto each other.
menu ACCELERATION
click Form13.Command15
pause nothing to draw again yet
click Form13.Command19
get Form13.Text58
messages
pause each of them
click Form13.Command1
click Form13.Command7
click Form13.Command2
click Form13.Command3
click Form13.Command4
click Form13.Command5
click Form13.Command6
click Form13.Command20
click Form13.Command30
messages
pause nitrous has to be switched on
click Form13.Command12
messages
click Form13.Command16
check Form13.Check3
click Form13.Command15
click Form13.Command12
messages
click Form13.Command16
uncheck Form13.Check3
click Form13.Command15
pause the results of a run with shifts are kept
click Form13.Command5
value ET8
value ET
value Vertical CG
value Wheel Base
pause what a file tells, and graphs drawn onto each other
answer No
file dyno/measured.prm
menu Read
messages
menu ACCELERATION
click Form13.Command15
hover Form13.Command4
get Form13.Text58
hover Form13.Check8
get Form13.Text58
click Form13.Command3
click Form13.Command2
uncheck Form13.Check8
click Form13.Command6
click Form13.Command19
click Form13.Command19
messages
pause axes that cannot be
set Form13.Text7 0
click Form13.Command6
set Form13.Text7 200
set Form13.Text39 1000
set Form13.Text3 1000
click Form13.Command20
set Form13.Text39 0
set Form13.Text3 -5
click Form13.Command5
set Form13.Text39
click Form13.Command5
messages
set Form13.Text39 1
pause a graph that needs none of them
set Form13.Text7 abc
click Form13.Command1
messages
click Form13.Command7
messages
