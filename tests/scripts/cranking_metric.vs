# Presses every solving command of the compression gauge screen for four engines in metric.
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
set Form12.Text35 855.8844
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 775.7260
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
set Form12.Text35 855.8844
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
set Form12.Text35 775.7260
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
set Form12.Text22 1.524
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
pause a square two litre four, metric
set Form12.Text1 86.00008
set Form12.Text3 86.00008
set Form12.Text4 144.9999
set Form12.Text17 10.6
set Form12.Text36 52
set Form12.Text30 1019.302
set Form12.Text31 20.0
set Form12.Text32 45
set Form12.Text6 35.0
set Form12.Text2 85.0
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
set Form12.Text35 1086.016
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 956.7287
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
set Form12.Text35 1086.016
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
set Form12.Text35 956.7287
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
set Form12.Text22 0.8001
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
pause a moped single, metric
set Form12.Text1 39.99992
set Form12.Text3 39.60114
set Form12.Text4 85.0011
set Form12.Text17 9.2
set Form12.Text36 38.25
set Form12.Text30 1000.000
set Form12.Text31 25.0
set Form12.Text32 60
set Form12.Text6 43.33333
set Form12.Text2 93.33333
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
set Form12.Text35 982.5863
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 879.1561
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
set Form12.Text35 982.5863
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
set Form12.Text35 879.1561
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
set Form12.Text22 -1.524
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
pause a big-block on a cold day, metric
set Form12.Text1 107.95
set Form12.Text3 95.504
set Form12.Text4 155.829
set Form12.Text17 11
set Form12.Text36 74.5
set Form12.Text30 927.8704
set Form12.Text31 -6.66666
set Form12.Text32 0
set Form12.Text6 15.55555
set Form12.Text2 71.11111
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
set Form12.Text35 1034.301
click Form12.Command19
get Form12.Text33
get Form12.Text37
get Form12.Text8
get Form12.Text9
get Form12.Text12
get Form12.Text17
get Form12.Text5
set Form12.Text35 982.5863
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
set Form12.Text35 1034.301
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
set Form12.Text35 982.5863
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
set Form12.Text22 1.27
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
pause all fields, and back
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
