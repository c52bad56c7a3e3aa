# The degree tables of an engine in millimetres.
menu CubicInch
check Form1.Check1

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

pause long rows, offset
set Form1.Text32 1.5
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

pause short rows, offset to the other side, another engine
check Form1.Check3
set Form1.Text1 86
set Form1.Text3 86
set Form1.Text4 145
set Form1.Text5 7500
set Form1.Text2 4
set Form1.Text32 -1.2
set Form1.Text39 30
set Form1.Text41 360
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

pause short rows, no offset
set Form1.Text32 0
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
