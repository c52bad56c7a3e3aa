# Graphs of the displacement screen over a few RPM, whose points are known.
menu CubicInch
set Form1.Text5 4
choose Form1.Option1(12)
click Form1.Command12
messages
plot
state Form8.Command2
pause a longer stroke in the next pen
set Form1.Text3 6
set Form1.Text5 2
click Form1.Command13
plot
pause percent of volume
set Form1.Text3 3.25
choose Form1.Option1(22)
set Form1.Text22 1
click Form1.Command12
set Form1.Text22 abc
click Form1.Command12
messages
pause an RPM of nothing
set Form1.Text5 0
click Form1.Command12
messages
pause an engine that cannot turn
set Form1.Text5 4
set Form1.Text32 5
choose Form1.Option1(0)
click Form1.Command12
messages
pause A graph works out the deck stack and the ratios as every command does
uncheck Form1.Check1
choose Form1.Option1(0)
set Form1.Text1 4
set Form1.Text3 3
set Form1.Text4 5.7
set Form1.Text9 1.904
set Form1.Text10 0
set Form1.Text32 0
set Form1.Text5 6500
click Form1.Command12
get Form1.Text8
get Form1.Text11
set Form1.Text3 3.2
click Form1.Command13
get Form1.Text8
messages
