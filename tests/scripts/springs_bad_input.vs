# What the springs screen says to values that it cannot compute with: one box for each command,
# the field is named, earlier results stay, later ones keep their text.
menu SPRINGS
pause a coil spring without coils, diameter, rate, modulus or wire
set Form16.Text2 0
click Form16.Command1
click Form16.Command8
messages
set Form16.Text2 10
set Form16.Text3 0
click Form16.Command1
click Form16.Command7
messages
set Form16.Text3 4
set Form16.Text4 0
click Form16.Command7
click Form16.Command8
messages
set Form16.Text4 146.48
set Form16.Text18 0
click Form16.Command6
messages
set Form16.Text18 12000000
set Form16.Text1 0
click Form16.Command9
messages
get Form16.Text4
get Form16.Text19
pause the rate of no wire is 0, only its index has no number
click Form16.Command1
messages
get Form16.Text4
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text1 0.5
pause a rate below 0
set Form16.Text4 -100
click Form16.Command6
click Form16.Command8
messages
get Form16.Text1
get Form16.Text3
set Form16.Text4 146.48
pause torsion bars without length, arm or modulus, and a hole wider than the bar
set Form16.Text6 0
click Form16.Command2
set Form16.Text6 35.8
set Form16.Text8 0
click Form16.Command2
set Form16.Text8 13.5
set Form16.Text26 0
click Form16.Command10
set Form16.Text26 1178000
set Form16.Text25 0.9
click Form16.Command2
set Form16.Text25 0
messages
get Form16.Text9
get Form16.Text5
pause sway bars without arm, without center, and a hole wider than the bar
set Form16.Text14 0
click Form16.Command3
set Form16.Text14 9
set Form16.Text12 0
click Form16.Command3
set Form16.Text12 40
set Form16.Text11 0.9
click Form16.Command3
messages
get Form16.Text15
pause the new bar is wide enough for the hole, then it is not; the percentage stands
click Form16.Command4
messages
get Form16.Text17
get Form16.Text24
set Form16.Text16 0.885
click Form16.Command4
messages
get Form16.Text17
get Form16.Text24
set Form16.Text11 0
set Form16.Text10 0
click Form16.Command4
messages
get Form16.Text17
set Form16.Text10 0.875
pause no leaf
set Form16.Text33 0
click Form16.Command5
messages
get Form16.Text37
set Form16.Text33 48
pause no number, too large a number
set Form16.Text36 
click Form16.Command5
set Form16.Text36 five
click Form16.Command1
set Form16.Text36 5
set Form16.Text1 1e200
click Form16.Command1
set Form16.Text1 1e999
click Form16.Command1
set Form16.Text1 0.5
messages
get Form16.Text4
pause keys
type Form16.Text1 .4.5-x
get Form16.Text1
type Form16.Text15 7
get Form16.Text15
messages
