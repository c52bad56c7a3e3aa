# Presses every command of the displacement screen for four engines in metric.
# The expected values were worked out apart from the program.
menu CubicInch
pause the engine of a fresh screen, metric
check Form1.Check1
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
set Form1.Text6 5702.087
click Form1.Command2
get Form1.Text1
set Form1.Text6 5474.003
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
set Form1.Text6 6021.403
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 1159.192
click Form1.Command6
get Form1.Text5
set Form1.Text13 1124.416
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 237.6412
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
set Form1.Text8 238.3541
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
pause back to inches
uncheck Form1.Check1
get Form1.Text1
get Form1.Text3
get Form1.Text2
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
get Form1.Text15
get Form1.Text26
get Form1.Text27
get Form1.Text28
get Form1.Text20
get Form1.Text21
get Form1.Text22
get Form1.Text33
get Form1.Text34
get Form1.Text47
get Form1.Text48
get Form1.Text17
get Form1.Text18
get Form1.Text19
get Form1.Text32
messages
pause a 350 small block V8, metric
check Form1.Check1
set Form1.Text1 101.6
set Form1.Text3 88.392
set Form1.Text2 8
set Form1.Text4 144.78
set Form1.Text5 6200
set Form1.Text9 39.6
set Form1.Text10 .635
set Form1.Text27 305
set Form1.Text33 62.2
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
set Form1.Text6 6105.620
click Form1.Command2
get Form1.Text1
set Form1.Text6 5861.395
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
set Form1.Text6 6447.534
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 1183.940
click Form1.Command6
get Form1.Text5
set Form1.Text13 1148.421
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 242.7945
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
set Form1.Text8 243.5228
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
pause back to inches
uncheck Form1.Check1
get Form1.Text1
get Form1.Text3
get Form1.Text2
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
get Form1.Text15
get Form1.Text26
get Form1.Text27
get Form1.Text28
get Form1.Text20
get Form1.Text21
get Form1.Text22
get Form1.Text33
get Form1.Text34
get Form1.Text47
get Form1.Text48
get Form1.Text17
get Form1.Text18
get Form1.Text19
get Form1.Text32
messages
pause a 600 cc motorcycle four, metric
check Form1.Check1
set Form1.Text1 67.0
set Form1.Text3 42.5
set Form1.Text2 4
set Form1.Text4 92.2
set Form1.Text5 14500
set Form1.Text9 26.7
set Form1.Text10 -.12
set Form1.Text27 88
set Form1.Text33 30.5
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
set Form1.Text6 638.3193
click Form1.Command2
get Form1.Text1
set Form1.Text6 612.7865
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
set Form1.Text6 674.0651
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 1331.319
click Form1.Command6
get Form1.Text5
set Form1.Text13 1291.379
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 124.0455
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
set Form1.Text8 124.4176
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
pause back to inches
uncheck Form1.Check1
get Form1.Text1
get Form1.Text3
get Form1.Text2
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
get Form1.Text15
get Form1.Text26
get Form1.Text27
get Form1.Text28
get Form1.Text20
get Form1.Text21
get Form1.Text22
get Form1.Text33
get Form1.Text34
get Form1.Text47
get Form1.Text48
get Form1.Text17
get Form1.Text18
get Form1.Text19
get Form1.Text32
messages
pause a square two litre road race four, metric
check Form1.Check1
set Form1.Text1 86
set Form1.Text3 86
set Form1.Text2 4
set Form1.Text4 138
set Form1.Text5 9000
set Form1.Text9 30.2
set Form1.Text10 0
set Form1.Text27 179
set Form1.Text33 48
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
set Form1.Text6 2128.112
click Form1.Command2
get Form1.Text1
set Form1.Text6 2042.987
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
set Form1.Text6 2247.285
click Form1.Command11
get Form1.Text1
get Form1.Text3
set Form1.Text12 1.8
click Form1.Command5
get Form1.Text4
set Form1.Text13 1672.114
click Form1.Command6
get Form1.Text5
set Form1.Text13 1621.950
click Form1.Command14
get Form1.Text3
click Form1.Command7
get Form1.Text8
set Form1.Text8 227.1883
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
set Form1.Text8 227.8698
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
pause back to inches
uncheck Form1.Check1
get Form1.Text1
get Form1.Text3
get Form1.Text2
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
get Form1.Text15
get Form1.Text26
get Form1.Text27
get Form1.Text28
get Form1.Text20
get Form1.Text21
get Form1.Text22
get Form1.Text33
get Form1.Text34
get Form1.Text47
get Form1.Text48
get Form1.Text17
get Form1.Text18
get Form1.Text19
get Form1.Text32
messages
