# The charts of the compression ratio screen, in inches and metric.
# The expected values were worked out apart from the program.
menu CompRatio
set Form1CR.Text10 .016
click Form1CR.Command6
show Form1CR.Text38
click Form1CR.Command8
show Form1CR.Text38
click Form1CR.Command9
show Form1CR.Text38
click Form1CR.Command18
show Form1CR.Text38
click Form1CR.Command19
show Form1CR.Text38
get Form1CR.Text17
messages
pause an engine in metric
check Form1CR.Check1
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
click Form1CR.Command19
show Form1CR.Text38
click Form1CR.Command18
show Form1CR.Text38
click Form1CR.Command6
show Form1CR.Text38
messages
pause ratios below what the charts show
set Form1CR.Text15 90
click Form1CR.Command9
show Form1CR.Text38
messages
set Form1CR.Text17 4.59
click Form1CR.Command6
show Form1CR.Text38
messages
