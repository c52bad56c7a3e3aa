# Presses every command of the compression ratio screen for four engines in metric.
# The expected values were worked out apart from the program.
menu CompRatio
set Form1CR.Text10 .016
check Form1CR.Check1
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
set Form1CR.Text8 1.2
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
pause a two litre four
set Form1CR.Text1 86
set Form1CR.Text3 86
set Form1CR.Text10 0.25
set Form1CR.Text14 0.7
set Form1CR.Text18 87
set Form1CR.Text15 48.3
set Form1CR.Text16 3.4
set Form1CR.Text19 6.5
set Form1CR.Text20 85.4
set Form1CR.Text22 20
set Form1CR.Text23 114.7
set Form1CR.Text27 147.1
set Form1CR.Text5 75
set Form1CR.Text6 2.5
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
set Form1CR.Text17 11.1
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 47.9
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 50.4
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 4.4
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 12.3
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 10.75
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 1.25
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
pause a motorcycle four with the piston above the deck
set Form1CR.Text1 67
set Form1CR.Text3 42.5
set Form1CR.Text10 -0.15
set Form1CR.Text14 0.45
set Form1CR.Text18 67.5
set Form1CR.Text15 11.8
set Form1CR.Text16 1.35
set Form1CR.Text19 4.2
set Form1CR.Text20 66.55
set Form1CR.Text22 10
set Form1CR.Text23 34.1
set Form1CR.Text27 88.4
set Form1CR.Text5 40
set Form1CR.Text6 1.1
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
set Form1CR.Text17 13.1
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 12.05
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 12.4
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 1.65
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 13.8
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 1.3
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 0.6
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
pause a diesel with a bowl, its radius above its depth
set Form1CR.Text1 81
set Form1CR.Text3 95.5
set Form1CR.Text10 0.05
set Form1CR.Text14 1.45
set Form1CR.Text18 82.1
set Form1CR.Text15 0.9
set Form1CR.Text16 -21.3
set Form1CR.Text19 9.75
set Form1CR.Text20 80.35
set Form1CR.Text22 15
set Form1CR.Text23 78.05
set Form1CR.Text27 103
set Form1CR.Text5 46
set Form1CR.Text6 13.5
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
set Form1CR.Text17 18.5
click Form1CR.Command11
get Form1CR.Text15
get Form1CR.Text21
set Form1CR.Text15 1.15
click Form1CR.Command14
get Form1CR.Text16
get Form1CR.Text21
click Form1CR.Command12
get Form1CR.Text21
set Form1CR.Text21 28.3
click Form1CR.Command13
get Form1CR.Text17
click Form1CR.Command15
get Form1CR.Text16
set Form1CR.Text42 7.85
click Form1CR.Command20
get Form1CR.Text14
click Form1CR.Command10
get Form1CR.Text17
get Form1CR.Text2
set Form1CR.Text29 17.5
click Form1CR.Command17
get Form1CR.Text28
click Form1CR.Command2
get Form1CR.Text7
set Form1CR.Text7 21.3
click Form1CR.Command3
get Form1CR.Text6
click Form1CR.Command5
get Form1CR.Text5
set Form1CR.Text8 14.75
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
pause back to inches
uncheck Form1CR.Check1
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
