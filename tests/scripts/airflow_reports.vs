# The reports of the air and fuel screen in all six groupings, each of the value entered alone, and one
# of each in full; what is expected was worked out apart from the program.
menu AIRFUEL
set Form4.Text1 327
set Form4.Text2 6500
set Form4.Text4 7.5
set Form4.Text11 .85
set Form4.Text30 12.5
set Form4.Text71 104.0
set Form4.Text79 29.53
set Form4.Text10 .5
set Form4.Text29 8
check Form4.Check1(7)
choose Form4.Option8(0)
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
choose Form4.Option8(1)
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
choose Form4.Option8(2)
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
choose Form4.Option8(3)
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
choose Form4.Option8(4)
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
choose Form4.Option8(5)
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
click Form4.Command123
show Form4.Text78
press Form4.Text78 x
uncheck Form4.Check1(7)
choose Form4.Option8(5)
pause in full
click Form4.Command36
show Form4.Text78
press Form4.Text78 x
pause in full
click Form4.Command38
show Form4.Text78
press Form4.Text78 x
pause in full
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
pause in full
click Form4.Command123
show Form4.Text78
press Form4.Text78 x
pause printed: 10 points, 8 where there are 115 columns
check Form4.Check1(7)
choose Form4.Option8(3)
click Form4.Command36
press Form4.Text78 ,
pages
click Form4.Command38
press Form4.Text78 ,
pages
click Form4.Command42
press Form4.Text78 ,
pages
click Form4.Command123
press Form4.Text78 ,
pages
choose Form4.Option8(1)
click Form4.Command36
press Form4.Text78 ,
pages
click Form4.Command38
press Form4.Text78 ,
pages
click Form4.Command42
press Form4.Text78 ,
pages
click Form4.Command123
press Form4.Text78 ,
pages
pause written
click Form4.Command123
file dyno.prt
press Form4.Text78 .
dialogs
state Form4.Text78
messages
