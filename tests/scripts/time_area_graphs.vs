# Each graph of the port time area panel, and the options that graphs go by.
menu AIRFUEL
click Form4.Command48
pause the piston's graphs need no cam
choose Form4.Option6(8)
click Form4.Command67
plot
choose Form4.Option6(13)
set Form4.Text66 2.5
check Form4.Check1(8)
click Form4.Command67
plot
set Form4.Text66 1
uncheck Form4.Check1(8)
file cam_info/harmonic.cmm
click Form4.ReadCam
messages
choose Form4.Option6(0)
click Form4.Command67
plot
choose Form4.Option6(1)
click Form4.Command67
plot
click Form4.Command91(5)
click Form4.Command69
state Form4.Frame16
choose Form4.Option5(1)
click Form4.Command91(2)
state Form4.Frame16
click Form4.Command48
choose Form4.Option6(2)
click Form4.Command67
plot
choose Form4.Option6(3)
click Form4.Command67
plot
choose Form4.Option6(4)
click Form4.Command67
plot
choose Form4.Option6(5)
click Form4.Command67
plot
choose Form4.Option6(6)
click Form4.Command67
plot
choose Form4.Option6(7)
click Form4.Command67
plot
choose Form4.Option6(10)
click Form4.Command67
plot
choose Form4.Option6(11)
click Form4.Command67
plot
choose Form4.Option6(12)
click Form4.Command67
pause the piston's acceleration fits on the graph of a velocity by its own scale
choose Form4.Option6(14)
set Form4.Text66 .02
click Form4.Command68
plot
pause the middle half, of the exhaust alone
choose Form4.Option6(3)
set Form4.Text65 .5
choose Form4.Option5(2)
click Form4.Command67
plot
choose Form4.Option6(9)
set Form4.Text65 1
click Form4.Command67
plot
pause dots, circles and no lines, on flow graphs too
click Form4.Command91(5)
click Form4.Command69
check Form4.Check1(0)
check Form4.Check1(2)
uncheck Form4.Check1(3)
check Form4.Check1(1)
set Form4.Text67 .7
click Form4.Command91(2)
click Form4.Command35
click Form4.Command63
plot
messages
