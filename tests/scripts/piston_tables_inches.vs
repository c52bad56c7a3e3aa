# The degree tables of an engine in inches: long and short rows, wrist pin in the middle and
# to either side.
menu CubicInch

pause long rows, no offset
set Form1.Text39 45
set Form1.Text40 0
set Form1.Text41 90
click Form1.Command20
show Form1.Text38
click Form1.Command19
show Form1.Text38
click Form1.Command21
show Form1.Text38
click Form1.Command17
show Form1.Text38
click Form1.Command18
show Form1.Text38

pause long rows, offset to one side
set Form1.Text32 0.06
click Form1.Command20
show Form1.Text38
click Form1.Command19
show Form1.Text38
click Form1.Command21
show Form1.Text38
click Form1.Command17
show Form1.Text38
click Form1.Command18
show Form1.Text38

pause long rows, offset to the other side
set Form1.Text32 -0.06
click Form1.Command20
show Form1.Text38
click Form1.Command19
show Form1.Text38
click Form1.Command21
show Form1.Text38
click Form1.Command17
show Form1.Text38
click Form1.Command18
show Form1.Text38

pause short rows, offset to the other side
check Form1.Check3
set Form1.Text39 30
set Form1.Text41 360
set Form1.Text40 -30
click Form1.Command20
show Form1.Text38
click Form1.Command19
show Form1.Text38
click Form1.Command21
show Form1.Text38
click Form1.Command17
show Form1.Text38
click Form1.Command18
show Form1.Text38

pause short rows, offset to one side, small end weighed
check Form1.Check2
set Form1.Text32 .125
set Form1.Text14 200.25
click Form1.Command20
show Form1.Text38
click Form1.Command19
show Form1.Text38
click Form1.Command21
show Form1.Text38
click Form1.Command17
show Form1.Text38
click Form1.Command18
show Form1.Text38

pause short rows, no offset, another engine
set Form1.Text1 4.155
set Form1.Text3 3.75
set Form1.Text4 6.0
set Form1.Text5 7200
set Form1.Text2 6
set Form1.Text32 0
set Form1.Text30 412.5
set Form1.Text31 590
click Form1.Command20
show Form1.Text38
click Form1.Command19
show Form1.Text38
click Form1.Command21
show Form1.Text38
click Form1.Command17
show Form1.Text38
click Form1.Command18
show Form1.Text38

messages
