# Presses every command of the displacement screen for four engines.
# The expected values were worked out apart from the program.
menu CubicInch
pause the engine of a fresh screen
click Form1.Command1
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 347.9627
click Form1.Command2
get Form1.Text1
set Form1.Text6 334.0441
click Form1.Command3
get Form1.Text3
click Form1.Command4
get Form1.Text1
get Form1.Text3
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 367.4485
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 3803.123
click Form1.Command6
get Form1.Text5
set Form1.Text13 3689.029
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 9.35596
click Form1.Command8
get Form1.Text9
get Form1.Text8
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text8 9.384028
click Form1.Command9
get Form1.Text10
click Form1.Command16
get Form1.Text28
click Form1.Command22
get Form1.Text11
get Form1.Text16
click Form1.Command23
get Form1.Text12
get Form1.Text7
click Form1.Command26
get Form1.Text34
click Form1.Command10
get Form1.Text15
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text5
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
messages
pause a 350 small block V8
set Form1.Text1 4.000
set Form1.Text3 3.48
set Form1.Text2 8
set Form1.Text4 5.7
set Form1.Text5 6200
set Form1.Text9 1.56
set Form1.Text10 .025
set Form1.Text27 410
set Form1.Text33 2.45
click Form1.Command1
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 372.5878
click Form1.Command2
get Form1.Text1
set Form1.Text6 357.6842
click Form1.Command3
get Form1.Text3
click Form1.Command4
get Form1.Text1
get Form1.Text3
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 393.4526
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 3884.319
click Form1.Command6
get Form1.Text5
set Form1.Text13 3767.789
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 9.559798
click Form1.Command8
get Form1.Text9
get Form1.Text8
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text8 9.588477
click Form1.Command9
get Form1.Text10
click Form1.Command16
get Form1.Text28
click Form1.Command22
get Form1.Text11
get Form1.Text16
click Form1.Command23
get Form1.Text12
get Form1.Text7
click Form1.Command26
get Form1.Text34
click Form1.Command10
get Form1.Text15
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text5
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
messages
pause a 600 cc motorcycle four
set Form1.Text1 2.6378
set Form1.Text3 1.6732
set Form1.Text2 4
set Form1.Text4 3.63
set Form1.Text5 14500
set Form1.Text9 1.05
set Form1.Text10 -.005
set Form1.Text27 118
set Form1.Text33 1.2
click Form1.Command1
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 38.95210
click Form1.Command2
get Form1.Text1
set Form1.Text6 37.39401
click Form1.Command3
get Form1.Text3
click Form1.Command4
get Form1.Text1
get Form1.Text3
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 41.13341
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 4367.771
click Form1.Command6
get Form1.Text5
set Form1.Text13 4236.737
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 4.882148
click Form1.Command8
get Form1.Text9
get Form1.Text8
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text8 4.896794
click Form1.Command9
get Form1.Text10
click Form1.Command16
get Form1.Text28
click Form1.Command22
get Form1.Text11
get Form1.Text16
click Form1.Command23
get Form1.Text12
get Form1.Text7
click Form1.Command26
get Form1.Text34
click Form1.Command10
get Form1.Text15
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text5
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
messages
pause a square two litre road race four
set Form1.Text1 3.3858
set Form1.Text3 3.3858
set Form1.Text2 4
set Form1.Text4 5.43
set Form1.Text5 9000
set Form1.Text9 1.19
set Form1.Text10 .0
set Form1.Text27 240
set Form1.Text33 1.89
click Form1.Command1
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 129.8623
click Form1.Command2
get Form1.Text1
set Form1.Text6 124.6678
click Form1.Command3
get Form1.Text3
click Form1.Command4
get Form1.Text1
get Form1.Text3
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text6 137.1345
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 5485.896
click Form1.Command6
get Form1.Text5
set Form1.Text13 5321.319
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 8.945403
click Form1.Command8
get Form1.Text9
get Form1.Text8
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
set Form1.Text8 8.972239
click Form1.Command9
get Form1.Text10
click Form1.Command16
get Form1.Text28
click Form1.Command22
get Form1.Text11
get Form1.Text16
click Form1.Command23
get Form1.Text12
get Form1.Text7
click Form1.Command26
get Form1.Text34
click Form1.Command10
get Form1.Text15
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text5
get Form1.Text6
get Form1.Text8
get Form1.Text9
get Form1.Text10
get Form1.Text11
get Form1.Text16
get Form1.Text12
get Form1.Text7
get Form1.Text13
get Form1.Text24
get Form1.Text25
messages
