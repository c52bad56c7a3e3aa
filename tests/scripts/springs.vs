# Presses every command of the springs screen for four cars.
# The expected values were worked out apart from the program.
menu SPRINGS
pause a fresh screen
get Form16.Text1
get Form16.Text2
get Form16.Text3
get Form16.Text18
get Form16.Text4
get Form16.Text22
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
get Form16.Text5
get Form16.Text25
get Form16.Text6
get Form16.Text8
get Form16.Text26
get Form16.Text9
get Form16.Text33
get Form16.Text34
get Form16.Text35
get Form16.Text36
get Form16.Text37
get Form16.Text10
get Form16.Text11
get Form16.Text12
get Form16.Text13
get Form16.Text14
get Form16.Text15
get Form16.Text16
get Form16.Text17
get Form16.Text24
get Form16.Option1
pause its own values
click Form16.Command1
get Form16.Text4
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command6
get Form16.Text1
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command7
get Form16.Text2
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command8
get Form16.Text3
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command9
get Form16.Text18
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command2
get Form16.Text9
click Form16.Command10
get Form16.Text5
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
click Form16.Command5
get Form16.Text37
pause a stiff racing spring, hollow bars, arms that bend
set Form16.Text1 .625
set Form16.Text2 6.5
set Form16.Text3 5.5
set Form16.Text18 11500000
set Form16.Text4 400
set Form16.Text22 8.25
set Form16.Text5 1.125
set Form16.Text25 .75
set Form16.Text6 42
set Form16.Text8 10.25
set Form16.Text26 1178097
set Form16.Text9 250
set Form16.Text33 57
set Form16.Text34 2.5
set Form16.Text35 .3125
set Form16.Text36 4
set Form16.Text10 1.25
set Form16.Text11 .875
set Form16.Text12 36
set Form16.Text13 8
set Form16.Text14 7.5
set Form16.Text16 1.375
click Form16.Command1
get Form16.Text4
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text4 400
click Form16.Command6
get Form16.Text1
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text1 .625
click Form16.Command7
get Form16.Text2
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text2 6.5
click Form16.Command8
get Form16.Text3
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text3 5.5
click Form16.Command9
get Form16.Text18
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text18 11500000
click Form16.Command2
get Form16.Text9
set Form16.Text9 250
click Form16.Command10
get Form16.Text5
set Form16.Text5 1.125
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
choose Form16.Option1(0)
get Form16.Option1
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
choose Form16.Option1(1)
get Form16.Option1
click Form16.Command5
get Form16.Text37
pause the soft springs of a small car
set Form16.Text1 0.394
set Form16.Text2 4.75
set Form16.Text3 4.331
set Form16.Text18 11450000
set Form16.Text4 120
set Form16.Text22 6
set Form16.Text5 0.75
set Form16.Text25 0
set Form16.Text6 47.24
set Form16.Text8 14
set Form16.Text26 1122000
set Form16.Text9 55.5
set Form16.Text33 44.5
set Form16.Text34 1.75
set Form16.Text35 0.22
set Form16.Text36 3
set Form16.Text10 0.709
set Form16.Text11 0
set Form16.Text12 33.5
set Form16.Text13 10.5
set Form16.Text14 10.25
set Form16.Text16 0.63
click Form16.Command1
get Form16.Text4
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text4 120
click Form16.Command6
get Form16.Text1
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text1 0.394
click Form16.Command7
get Form16.Text2
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text2 4.75
click Form16.Command8
get Form16.Text3
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text3 4.331
click Form16.Command9
get Form16.Text18
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text18 11450000
click Form16.Command2
get Form16.Text9
set Form16.Text9 55.5
click Form16.Command10
get Form16.Text5
set Form16.Text5 0.75
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
choose Form16.Option1(0)
get Form16.Option1
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
choose Form16.Option1(1)
get Form16.Option1
click Form16.Command5
get Form16.Text37
pause a truck
set Form16.Text1 0.812
set Form16.Text2 5.3
set Form16.Text3 6.2
set Form16.Text18 12000000
set Form16.Text4 520
set Form16.Text22 7.3
set Form16.Text5 1.5
set Form16.Text25 1.1
set Form16.Text6 60
set Form16.Text8 18
set Form16.Text26 1178000
set Form16.Text9 90
set Form16.Text33 60
set Form16.Text34 3
set Form16.Text35 0.401
set Form16.Text36 8
set Form16.Text10 1.5
set Form16.Text11 1.2
set Form16.Text12 48
set Form16.Text13 16.5
set Form16.Text14 12
set Form16.Text16 1.75
click Form16.Command1
get Form16.Text4
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text4 520
click Form16.Command6
get Form16.Text1
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text1 0.812
click Form16.Command7
get Form16.Text2
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text2 5.3
click Form16.Command8
get Form16.Text3
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text3 6.2
click Form16.Command9
get Form16.Text18
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
set Form16.Text18 12000000
click Form16.Command2
get Form16.Text9
set Form16.Text9 90
click Form16.Command10
get Form16.Text5
set Form16.Text5 1.5
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
choose Form16.Option1(0)
get Form16.Option1
click Form16.Command3
get Form16.Text15
click Form16.Command4
get Form16.Text17
get Form16.Text24
get Form16.Text15
choose Form16.Option1(1)
get Form16.Option1
click Form16.Command5
get Form16.Text37
pause each command undoes the other
set Form16.Text1 0.5
set Form16.Text2 10
set Form16.Text3 4
set Form16.Text18 12000000
set Form16.Text4 146.484375
click Form16.Command6
get Form16.Text1
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command7
get Form16.Text2
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command8
get Form16.Text3
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command9
get Form16.Text18
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
click Form16.Command1
get Form16.Text4
get Form16.Text19
get Form16.Text20
get Form16.Text21
get Form16.Text23
messages
