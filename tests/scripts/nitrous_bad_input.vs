# What the nitrous screen says to values that it cannot compute with: one box for each command,
# the field is named, what the command wrote before stays and what comes after keeps its text.
menu Nitrous
pause no fuel jet yet
click Form17.Command5
messages
get Form17.Text1
pause no power, no jet
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text19
set Form17.Text3 0.024
pause no cylinders: the power is shown, the advice is not
set Form17.Text5 0
click Form17.Command1
messages
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
set Form17.Text5 8
pause no fuel pressure: timing and plugs are told, fuel jets are not
set Form17.Text1 0
click Form17.Command1
messages
get Form17.Text11
get Form17.Text16
get Form17.Text19
set Form17.Text1 6
pause gravities of 0, one after the other
set Form17.Text6 0
click Form17.Command1
messages
get Form17.Text19
set Form17.Text6 0.74
set Form17.Text12 0
click Form17.Command1
messages
get Form17.Text19
get Form17.Text20
click Form17.Command4
messages
set Form17.Text12 0.79
set Form17.Text13 0
click Form17.Command1
messages
get Form17.Text20
get Form17.Text21
click Form17.Command4
messages
set Form17.Text13 0.79
set Form17.Text15 0
click Form17.Command1
messages
get Form17.Text21
get Form17.Text14
click Form17.Command4
messages
set Form17.Text15 0.78
pause gasoline of no gravity has run through no jet
set Form17.Text6 0
click Form17.Command4
get Form17.Text20
set Form17.Text6 0.74
pause an empty bottle
set Form17.Text2 0
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text19
set Form17.Text18 100
click Form17.Command6
messages
get Form17.Text3
set Form17.Text19 0.02
click Form17.Command5
messages
set Form17.Text2 950
pause no nitrous jets
set Form17.Text4 0
click Form17.Command6
messages
get Form17.Text3
set Form17.Text4 8
set Form17.Text3 0
click Form17.Command5
messages
set Form17.Text3 0.024
pause no fuel jets
set Form17.Text7 0
click Form17.Command2
get Form17.Text8
set Form17.Text9 0
click Form17.Command3
get Form17.Text8
set Form17.Text7 8
set Form17.Text9 2
pause no number
set Form17.Text2 
click Form17.Command1
messages
set Form17.Text2 full
click Form17.Command5
messages
set Form17.Text2 950
set Form17.Text18 lots
click Form17.Command6
messages
set Form17.Text18 100
set Form17.Text10 
click Form17.Command3
messages
set Form17.Text10 0.048
set Form17.Text7 x
click Form17.Command2
messages
set Form17.Text7 8
pause below nothing
set Form17.Text2 -950
click Form17.Command1
click Form17.Command6
click Form17.Command5
set Form17.Text2 950
set Form17.Text1 -6
click Form17.Command1
set Form17.Text1 6
set Form17.Text12 -0.79
click Form17.Command1
click Form17.Command4
set Form17.Text12 0.79
set Form17.Text18 -100
click Form17.Command6
set Form17.Text18 100
set Form17.Text7 -8
click Form17.Command2
click Form17.Command3
set Form17.Text7 8
set Form17.Text9 -2
click Form17.Command3
set Form17.Text9 2
messages
pause beyond all engines
set Form17.Text3 1e200
click Form17.Command1
set Form17.Text3 0.024
set Form17.Text4 40000
click Form17.Command1
set Form17.Text4 8
messages
pause keys that a field does not take
type Form17.Text4 1.6{TAB}
get Form17.Text4
type Form17.Text3 0.0x4{TAB}
get Form17.Text3
type Form17.Text11 5
messages
