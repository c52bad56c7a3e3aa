# The graphs of the compression ratio screen, and curves added to them.
# The expected values were worked out apart from the program.
menu CompRatio
set Form1CR.Text10 .016
click Form1CR.Command7
get Form1CR.Text38
messages
click Form1CR.Command1
plot
pause a longer stroke in the next pen
set Form1CR.Text3 3.75
set Form1CR.Text21 300
click Form1CR.Command7
plot
pause over the chamber volume
click Form1CR.Command4
plot
pause a dish in the next pen
set Form1CR.Text16 -4.5
set Form1CR.Text14 .0395
click Form1CR.Command7
plot
messages
pause a small engine in metric
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
click Form1CR.Command4
plot
messages
