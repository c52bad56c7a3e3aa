# Lift files of the camshaft screen as graphs of every kind and as reports. The file "small.cmm" has
# the lifts .01 .05 .12 .05 .01 every 10 degrees and .02 .1 .02 every 20, so that all numbers can be
# worked out by hand: the velocity of its third record is (.12 - .05) / 10 = .007.
menu CAM_INFO
pause an empty table gives an empty graph and a report of headings
click Form2.Command12
plot
click Form2.Command13
show Form2.Text38
press Form2.Text38 x
messages
pause graph lift
file cam_info/small.cmm
click Form2.Command10
messages
dialogs
plot
value Intake Lash
get Form2.Text23
show Form2.LiftFigures
pause graph first and plus, every kind
choose Form2.Option2(1)
file cam_info/small.cmm
click Form2.Command11
plot
choose Form2.Option2(2)
file cam_info/small.cmm
click Form2.Command11
choose Form2.Option2(4)
click Form2.Command12
plot
choose Form2.Option2(3)
set Form2.Text17 6000
file cam_info/small.cmm
click Form2.Command11
choose Form2.Option2(8)
click Form2.Command12
plot
choose Form2.Option2(5)
file cam_info/small.cmm
click Form2.Command11
choose Form2.Option2(10)
click Form2.Command12
check Form2.Check7
choose Form2.Option2(5)
click Form2.Command12
uncheck Form2.Check7
plot
choose Form2.Option2(6)
file cam_info/small.cmm
click Form2.Command11
choose Form2.Option2(9)
click Form2.Command12
plot
choose Form2.Option2(7)
file cam_info/small.cmm
click Form2.Command11
check Form2.Check7
click Form2.Command12
uncheck Form2.Check7
plot
pause the exhaust, its own ratio and lash, without lash all records
choose Form2.Option1(1)
choose Form2.Option2(1)
set Form2.Text22 1.6
set Form2.Text24 .04
file cam_info/small.cmm
click Form2.Command11
set Form2.Text24 0
click Form2.Command12
plot
choose Form2.Option2(0)
click Form2.Command10
messages
pause graph lift draws the lobe, whatever is chosen
choose Form2.Option2(7)
file cam_info/small.cmm
click Form2.Command10
plot
choose Form2.Option2(0)
choose Form2.Option1(0)
pause smoothing: a mean of three records at a step of 10
check Form2.Check3
set Form2.Text25 ma
check Form2.Check4
check Form2.Check5
file cam_info/small.cmm
click Form2.Command11
check Form2.Check6
click Form2.Command12
plot
pause reports
click Form2.Command13
show Form2.Text38
press Form2.Text38 x
uncheck Form2.Check6
click Form2.Command14
show Form2.Text38
press Form2.Text38 x
uncheck Form2.Check3
click Form2.Command13
show Form2.Text38
press Form2.Text38 ,
pages
click Form2.Command14
show Form2.Text38
press Form2.Text38 x
choose Form2.Option1(1)
click Form2.Command14
show Form2.Text38
press Form2.Text38 x
pause a Cam Doctor file: rows from index 0, every 2 degrees, the axis to 12
choose Form2.Option1(0)
file cam_info/plus.c2
click Form2.Command10
choose Form2.Option1(1)
click Form2.Command12
plot
show Form2.LiftFigures
messages
pause a second cam over the first
choose Form2.Option1(0)
file cam_info/no_step.cmm
click Form2.Command11
file cam_info/plus.c2
click Form2.Command15
plot
messages
pause a cam without exhaust
file cam_info/no_step.cmm
click Form2.Command10
choose Form2.Option1(1)
click Form2.Command12
plot
show Form2.LiftFigures
messages
pause millimetres
choose Form2.Option1(0)
check Form2.Check1
file cam_info/metric.cmm
click Form2.Command10
get Form2.Text23
get Form2.Text24
show Form2.LiftFigures
choose Form2.Option2(3)
click Form2.Command12
click Form2.Command13
press Form2.Text38 x
uncheck Form2.Check1
get Form2.Text23
value Exhaust Lash
messages
