# Presses every solving command of the compression gauge screen for four engines.
# The expected values were worked out apart from the program.
menu CompGauge
pause the engine of a fresh screen
get Form12.Text1
get Form12.Text3
get Form12.Text4
get Form12.Text22
get Form12.Text17
get Form12.Text36
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text30
get Form12.Text31
get Form12.Text32
get Form12.Text33
get Form12.Text37
get Form12.Text34
get Form12.Text6
get Form12.Text2
get Form12.Text5
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text7
get Form12.Text11
get Form12.Text10
get Form12.Text13
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
click Form12.Command8
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 165.5
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 150
click Form12.Command9
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text45 7.432
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
set Form12.Text35 165.5
uncheck Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 150
check Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text10 10
click Form12.Command10
get Form12.Text22
set Form12.Text22 0.06
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text45 7.432
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
messages
pause a square two litre four
set Form12.Text1 3.38583
set Form12.Text3 3.38583
set Form12.Text4 5.70866
set Form12.Text17 10.6
set Form12.Text36 52
set Form12.Text30 30.1
set Form12.Text31 68
set Form12.Text32 45
set Form12.Text6 95
set Form12.Text2 185
set Form12.Text22 0
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
click Form12.Command8
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 210
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 185
click Form12.Command9
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text45 8.6
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
set Form12.Text35 210
uncheck Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 185
check Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text10 2.5
click Form12.Command10
get Form12.Text22
set Form12.Text22 0.0315
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text45 8.6
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
messages
pause a moped single
set Form12.Text1 1.5748
set Form12.Text3 1.5591
set Form12.Text4 3.3465
set Form12.Text17 9.2
set Form12.Text36 38.25
set Form12.Text30 29.53
set Form12.Text31 77
set Form12.Text32 60
set Form12.Text6 110
set Form12.Text2 200
set Form12.Text22 0
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
click Form12.Command8
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 190
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 170
click Form12.Command9
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text45 7.8
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
set Form12.Text35 190
uncheck Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 170
check Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text10 -1.25
click Form12.Command10
get Form12.Text22
set Form12.Text22 -0.06
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text45 7.8
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
messages
pause a big-block on a cold day
set Form12.Text1 4.25
set Form12.Text3 3.76
set Form12.Text4 6.135
set Form12.Text17 11
set Form12.Text36 74.5
set Form12.Text30 27.4
set Form12.Text31 20
set Form12.Text32 0
set Form12.Text6 60
set Form12.Text2 160
set Form12.Text22 0
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
click Form12.Command8
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 200
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 190
click Form12.Command9
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text45 8.25
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
set Form12.Text35 200
uncheck Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text35 190
check Form12.Check2
click Form12.Command2
get Form12.Text36
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text10 1
click Form12.Command10
get Form12.Text22
set Form12.Text22 0.05
click Form12.Command18
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text7
get Form12.Text11
get Form12.Text5
set Form12.Text45 8.25
click Form12.Command7
get Form12.Text8
get Form12.Text17
click Form12.Command1
get Form12.Text36
messages
pause there and back
get Form12.Text1
get Form12.Text3
get Form12.Text4
get Form12.Text22
get Form12.Text17
get Form12.Text36
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text30
get Form12.Text31
get Form12.Text32
get Form12.Text33
get Form12.Text37
get Form12.Text34
get Form12.Text6
get Form12.Text2
get Form12.Text5
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text7
get Form12.Text11
get Form12.Text10
get Form12.Text13
check Form12.Check1
get Form12.Text1
get Form12.Text3
get Form12.Text4
get Form12.Text22
get Form12.Text17
get Form12.Text36
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text30
get Form12.Text31
get Form12.Text32
get Form12.Text33
get Form12.Text37
get Form12.Text34
get Form12.Text6
get Form12.Text2
get Form12.Text5
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text7
get Form12.Text11
get Form12.Text10
get Form12.Text13
uncheck Form12.Check1
get Form12.Text1
get Form12.Text3
get Form12.Text4
get Form12.Text22
get Form12.Text17
get Form12.Text36
get Form12.Text35
get Form12.Text45
get Form12.Text46
get Form12.Text30
get Form12.Text31
get Form12.Text32
get Form12.Text33
get Form12.Text37
get Form12.Text34
get Form12.Text6
get Form12.Text2
get Form12.Text5
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text7
get Form12.Text11
get Form12.Text10
get Form12.Text13
messages
