# Travel from crank degrees and back, without and with an offset.
menu CubicInch
click Form1.Command24
get Form1.Text48
get Form1.Text18
get Form1.Text19
value Crank Degrees
set Form1.Text48 1.4
click Form1.Command25
get Form1.Text47
value Piston Travel
pause the whole stroke
set Form1.Text48 3.25
click Form1.Command25
get Form1.Text47
value Crank Degrees
set Form1.Text48 0
click Form1.Command25
get Form1.Text47
pause too much, too little, no number
set Form1.Text48 3.2501
click Form1.Command25
set Form1.Text48 -0.1
click Form1.Command25
set Form1.Text48 about an inch
click Form1.Command25
set Form1.Text47 90
set Form1.Text17 1.5
click Form1.Command24
messages
get Form1.Text48
pause with an offset the shared value stays
set Form1.Text17 6.2
set Form1.Text32 0.1
set Form1.Text47 60
click Form1.Command24
get Form1.Text48
get Form1.Text18
get Form1.Text19
click Form1.Command25
get Form1.Text47
value Crank Degrees
set Form1.Text48 3.3
click Form1.Command25
messages
get Form1.Text47
pause in millimetres
set Form1.Text32 0
check Form1.Check1
set Form1.Text47 74.123
click Form1.Command24
get Form1.Text48
get Form1.Text18
get Form1.Text19
click Form1.Command25
get Form1.Text47
messages
