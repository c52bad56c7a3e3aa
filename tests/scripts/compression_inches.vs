# Presses every command of the compression ratio screen for four engines in inches.
# The expected values were worked out apart from the program.
menu CompRatio
pause a fresh screen
get Form1CR.Text1
get Form1CR.Text3
get Form1CR.Text4
get Form1CR.Text44
get Form1CR.Text17
get Form1CR.Text15
get Form1CR.Text16
get Form1CR.Text21
get Form1CR.Text10
get Form1CR.Text2
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text46
get Form1CR.Text14
get Form1CR.Text18
get Form1CR.Text42
get Form1CR.Text45
get Form1CR.Text19
get Form1CR.Text20
get Form1CR.Text43
get Form1CR.Text22
get Form1CR.Text23
get Form1CR.Text5
get Form1CR.Text6
get Form1CR.Text7
get Form1CR.Text8
get Form1CR.Text29
get Form1CR.Text27
get Form1CR.Text28
pause the engine of a fresh screen
set Form1CR.Text10 .016
click Form1CR.Command10
get Form1CR.Text4
get Form1CR.Text2
get Form1CR.Text42
get Form1CR.Text43
get Form1CR.Text45
get Form1CR.Text46
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text17
get Form1CR.Text44
get Form1CR.Text21
set Form1CR.Text17 12.25
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 64.2
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 58.9
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 5.125
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 13.5
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 12.6
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 0.05
click Form1CR.Command2
get Form1CR.Text7
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
get Form1CR.Text8
messages
get Form1CR.Text1
get Form1CR.Text3
get Form1CR.Text4
get Form1CR.Text44
get Form1CR.Text17
get Form1CR.Text15
get Form1CR.Text16
get Form1CR.Text21
get Form1CR.Text10
get Form1CR.Text2
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text46
get Form1CR.Text14
get Form1CR.Text18
get Form1CR.Text42
get Form1CR.Text45
get Form1CR.Text19
get Form1CR.Text20
get Form1CR.Text43
get Form1CR.Text22
get Form1CR.Text23
get Form1CR.Text5
get Form1CR.Text6
get Form1CR.Text7
get Form1CR.Text8
get Form1CR.Text29
get Form1CR.Text27
get Form1CR.Text28
pause a six litre V8 with a flat piston above the deck
set Form1CR.Text1 4.000
set Form1CR.Text3 3.622
set Form1CR.Text10 -.008
set Form1CR.Text14 .051
set Form1CR.Text18 4.08
set Form1CR.Text15 64.45
set Form1CR.Text16 0
set Form1CR.Text19 .2
set Form1CR.Text20 3.97
set Form1CR.Text22 .5
set Form1CR.Text23 104.3
set Form1CR.Text27 400
set Form1CR.Text5 3.6
set Form1CR.Text6 .08
click Form1CR.Command10
get Form1CR.Text4
get Form1CR.Text2
get Form1CR.Text42
get Form1CR.Text43
get Form1CR.Text45
get Form1CR.Text46
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text17
get Form1CR.Text44
get Form1CR.Text21
set Form1CR.Text17 10.9
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 65.1
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 74.2
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 9.75
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 11.75
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 13.2
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 0.0625
click Form1CR.Command2
get Form1CR.Text7
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
get Form1CR.Text8
messages
get Form1CR.Text1
get Form1CR.Text3
get Form1CR.Text4
get Form1CR.Text44
get Form1CR.Text17
get Form1CR.Text15
get Form1CR.Text16
get Form1CR.Text21
get Form1CR.Text10
get Form1CR.Text2
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text46
get Form1CR.Text14
get Form1CR.Text18
get Form1CR.Text42
get Form1CR.Text45
get Form1CR.Text19
get Form1CR.Text20
get Form1CR.Text43
get Form1CR.Text22
get Form1CR.Text23
get Form1CR.Text5
get Form1CR.Text6
get Form1CR.Text7
get Form1CR.Text8
get Form1CR.Text29
get Form1CR.Text27
get Form1CR.Text28
pause a big V8 with a high dome
set Form1CR.Text1 4.5625
set Form1CR.Text3 4.25
set Form1CR.Text10 .005
set Form1CR.Text14 .039
set Form1CR.Text18 4.63
set Form1CR.Text15 119.5
set Form1CR.Text16 44.25
set Form1CR.Text19 .3125
set Form1CR.Text20 4.521
set Form1CR.Text22 1.25
set Form1CR.Text23 281.9
set Form1CR.Text27 1012.5
set Form1CR.Text5 4.1
set Form1CR.Text6 .11
click Form1CR.Command10
get Form1CR.Text4
get Form1CR.Text2
get Form1CR.Text42
get Form1CR.Text43
get Form1CR.Text45
get Form1CR.Text46
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text17
get Form1CR.Text44
get Form1CR.Text21
set Form1CR.Text17 14.75
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 117.25
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 84.1
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 10.5
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 16
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 21.75
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 0.09
click Form1CR.Command2
get Form1CR.Text7
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
get Form1CR.Text8
messages
get Form1CR.Text1
get Form1CR.Text3
get Form1CR.Text4
get Form1CR.Text44
get Form1CR.Text17
get Form1CR.Text15
get Form1CR.Text16
get Form1CR.Text21
get Form1CR.Text10
get Form1CR.Text2
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text46
get Form1CR.Text14
get Form1CR.Text18
get Form1CR.Text42
get Form1CR.Text45
get Form1CR.Text19
get Form1CR.Text20
get Form1CR.Text43
get Form1CR.Text22
get Form1CR.Text23
get Form1CR.Text5
get Form1CR.Text6
get Form1CR.Text7
get Form1CR.Text8
get Form1CR.Text29
get Form1CR.Text27
get Form1CR.Text28
pause a two litre four with a dish
set Form1CR.Text1 3.3858
set Form1CR.Text3 3.3858
set Form1CR.Text10 .0
set Form1CR.Text14 .0275
set Form1CR.Text18 3.4252
set Form1CR.Text15 49.5
set Form1CR.Text16 -11.2
set Form1CR.Text19 .276
set Form1CR.Text20 3.3622
set Form1CR.Text22 1
set Form1CR.Text23 151.5
set Form1CR.Text27 143.2
set Form1CR.Text5 2.95
set Form1CR.Text6 .098
click Form1CR.Command10
get Form1CR.Text4
get Form1CR.Text2
get Form1CR.Text42
get Form1CR.Text43
get Form1CR.Text45
get Form1CR.Text46
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text17
get Form1CR.Text44
get Form1CR.Text21
set Form1CR.Text17 8.5
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 50.75
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 63.3
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 3.9
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 9.25
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 11.2
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 0.118
click Form1CR.Command2
get Form1CR.Text7
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
get Form1CR.Text8
messages
get Form1CR.Text1
get Form1CR.Text3
get Form1CR.Text4
get Form1CR.Text44
get Form1CR.Text17
get Form1CR.Text15
get Form1CR.Text16
get Form1CR.Text21
get Form1CR.Text10
get Form1CR.Text2
get Form1CR.Text9
get Form1CR.Text11
get Form1CR.Text46
get Form1CR.Text14
get Form1CR.Text18
get Form1CR.Text42
get Form1CR.Text45
get Form1CR.Text19
get Form1CR.Text20
get Form1CR.Text43
get Form1CR.Text22
get Form1CR.Text23
get Form1CR.Text5
get Form1CR.Text6
get Form1CR.Text7
get Form1CR.Text8
get Form1CR.Text29
get Form1CR.Text27
get Form1CR.Text28
pause volumes that the user enters
check Form1CR.Check2
set Form1CR.Text42 5.5
check Form1CR.Check3
set Form1CR.Text43 1.1
click Form1CR.Command10
get Form1CR.Text42
get Form1CR.Text43
get Form1CR.Text21
get Form1CR.Text17
uncheck Form1CR.Check2
uncheck Form1CR.Check3
click Form1CR.Command10
get Form1CR.Text42
get Form1CR.Text43
get Form1CR.Text21
get Form1CR.Text17
messages
