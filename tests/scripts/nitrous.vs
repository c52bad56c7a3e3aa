# Presses every command of the nitrous screen for four engines with all six baselines.
# The expected values were worked out apart from the program.
menu Nitrous
pause a fresh screen
get Form17.Text1
get Form17.Text2
get Form17.Text3
get Form17.Text4
get Form17.Text5
get Form17.Text6
get Form17.Text11
get Form17.Text16
get Form17.Text18
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
get Form17.Text12
get Form17.Text13
get Form17.Text15
get Form17.Text7
get Form17.Text8
get Form17.Text9
get Form17.Text10
get Form17.Option1
get Form17.Label1
get Form17.Label2
get Form17.Label3
get Form17.Label4
get Form17.Label5
get Form17.Frame1
pause its own values
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command2
get Form17.Text8
click Form17.Command3
get Form17.Text8
click Form17.Command5
get Form17.Text1
click Form17.Command4
get Form17.Text20
get Form17.Text21
get Form17.Text14
set Form17.Text1 6.0
pause baseline 1
choose Form17.Option1(1)
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command5
get Form17.Text1
set Form17.Text1 6.0
pause baseline 2
choose Form17.Option1(2)
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command5
get Form17.Text1
set Form17.Text1 6.0
pause baseline 3
choose Form17.Option1(3)
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command5
get Form17.Text1
set Form17.Text1 6.0
pause baseline 4
choose Form17.Option1(4)
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command5
get Form17.Text1
set Form17.Text1 6.0
pause baseline 5
choose Form17.Option1(5)
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command5
get Form17.Text1
set Form17.Text1 6.0
pause a four with injection and Base 1.26
choose Form17.Option1(2)
set Form17.Text1 43.5
set Form17.Text2 1050
set Form17.Text3 0.036
set Form17.Text4 1
set Form17.Text5 4
set Form17.Text6 0.755
set Form17.Text12 0.796
set Form17.Text13 0.789
set Form17.Text15 0.7825
set Form17.Text7 1
set Form17.Text9 4
set Form17.Text10 0.0225
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command2
get Form17.Text8
click Form17.Command3
get Form17.Text8
click Form17.Command5
get Form17.Text1
click Form17.Command4
get Form17.Text20
get Form17.Text21
get Form17.Text14
pause a six on the lean side
choose Form17.Option1(5)
set Form17.Text1 5.5
set Form17.Text2 875.5
set Form17.Text3 0.0625
set Form17.Text4 2
set Form17.Text5 6
set Form17.Text6 0.72
set Form17.Text12 0.79
set Form17.Text13 0.8
set Form17.Text15 0.77
set Form17.Text7 2
set Form17.Text9 6
set Form17.Text10 0.031
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command2
get Form17.Text8
click Form17.Command3
get Form17.Text8
click Form17.Command5
get Form17.Text1
click Form17.Command4
get Form17.Text20
get Form17.Text21
get Form17.Text14
pause a big V8 with two stages, solved from its power
choose Form17.Option1(1)
set Form17.Text1 7.25
set Form17.Text2 950
set Form17.Text4 16
set Form17.Text5 8
set Form17.Text6 0.740
set Form17.Text18 750
set Form17.Text7 16
set Form17.Text9 8
set Form17.Text10 0.052
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command6
get Form17.Text3
get Form17.Text11
get Form17.Text16
get Form17.Text19
get Form17.Text20
get Form17.Text21
get Form17.Text14
click Form17.Command2
get Form17.Text8
click Form17.Command3
get Form17.Text8
click Form17.Command5
get Form17.Text1
click Form17.Command4
get Form17.Text20
get Form17.Text21
get Form17.Text14
messages
