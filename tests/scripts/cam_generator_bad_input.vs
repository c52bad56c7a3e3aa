# What the cam lift curve generator tells of input that it cannot use, and that it goes on all the
# same where it can.
menu Cam_Gen
pause no lift and no duration
set Form33.Text2 50
file bad.cmm
click Form33.Command2
messages
get Form33.Text58(24)
get Form33.Text59(0)
show Form33.Text38
pause a lift and a duration of zero
set Form33.Text58(24) 0.0
set Form33.Text59(0) 0
check Form33.Check2
set Form33.Text20 0
file bad.cmm
click Form33.Command6
messages
get Form33.Text58(24)
get Form33.Text59(0)
get Form33.Text20
pause lifts and durations that are no numbers
set Form33.Text58(24) -
set Form33.Text59(0) 1.2.3
set Form33.Text20 x
file bad.cmm
click Form33.Command6
messages
uncheck Form33.Check2
pause steps
set Form33.Text2 0
click Form33.Command2
messages
set Form33.Text2 -2
click Form33.Command2
messages
set Form33.Text2 
click Form33.Command2
messages
set Form33.Text2 two
click Form33.Command2
messages
set Form33.Text2 1e999
click Form33.Command2
messages
set Form33.Text2 400
click Form33.Command2
messages
leave Form33.Text2
set Form33.Text2 .
leave Form33.Text2
messages
set Form33.Text21 -.
leave Form33.Text21
messages
pause more records than can be read
set Form33.Text2 .1
set Form33.Text59(0) 361
file many.cmm
click Form33.Command2
messages
get Form33.LobeRecords
get Form33.Text59(0)
set Form33.Text59(0) 360
file many.cmm
click Form33.Command2
messages
get Form33.LobeRecords
set Form33.Text2 .01
click Form33.Command2
messages
set Form33.Text2 1e-300
click Form33.Command2
click Form33.Command14
messages
set Form33.Text2 .1
set Form33.Text59(0) 1e300
file many.cmm
click Form33.Command6
messages
set Form33.Text59(0) 300
check Form33.Check2
set Form33.Text20 500
click Form33.Command2
messages
uncheck Form33.Check2
set Form33.Text2 .05
set Form33.Text59(0) 200
click Form33.Generate
messages
pause the ratio of the ellipse
set Form33.Text2 50
set Form33.Text59(0) 200
set Form33.Text21 1
file ellipse.cmm
click Form33.Command15
messages
get Form33.Text21
set Form33.Text21 .99991
file ellipse.cmm
click Form33.Command15
messages
get Form33.Text21
set Form33.Text21 -.99991
file ellipse.cmm
click Form33.Command15
messages
get Form33.Text21
set Form33.Text21 text
file ellipse.cmm
click Form33.Command15
messages
get Form33.Text21
set Form33.Text21 .9999
file ellipse.cmm
click Form33.Command15
messages
show Form33.Text38
set Form33.Text21 -.9999
file ellipse.cmm
click Form33.Command15
messages
show Form33.Text38
pause rows that do not rise
set Form33.Text58(24) .3
click Form33.Command26
set Form33.Text58(3) .005
set Form33.Text58(5) abc
set Form33.Text58(24) .25
file rows.cmm
click Form33.Generate
messages
get Form33.Text58(24)
show Form33.Text38
pause splines of points that cannot be joined
choose Form33.Option2(1)
set Form33.Text58(3) .010
set Form33.Text58(5) .050
set Form33.Text59(4) 290
click Form33.Generate
messages
click Form33.Command8
set Form33.Text59(0) 300
click Form33.Generate
messages
set Form33.Text59(4) 0
set Form33.Text59(11) 300
click Form33.Generate
messages
choose Form33.Option2(2)
click Form33.Generate
messages
set Form33.Text58(11) .25
set Form33.Text58(24) .25
set Form33.Text59(11) 0
choose Form33.Option2(0)
file line.cmm
click Form33.Generate
messages
show Form33.Text38
pause events that leave no duration
set Form33.Text60(2) -100
set Form33.Text61(2) -80
click Form33.Command26
messages
pause a row with half of its events is told and left out, one without events is not given
set Form33.Text60(2) 1-2
set Form33.Text61(3) 
set Form33.Text60(4) 
set Form33.Text61(4) 
set Form33.Text59(4) 200
set Form33.Text60(5) -1
click Form33.Command26
messages
get Form33.Text59(1)
get Form33.Text59(2)
get Form33.Text59(3)
get Form33.Text59(4)
get Form33.Text59(5)
set Form33.Text59(3) 250
file events.cmm
click Form33.Generate_OC
messages
show Form33.Text38
check Form33.Check2
set Form33.Text62(4) 
file events.cmm
click Form33.Generate_OC
messages
uncheck Form33.Check2
set Form33.Text59(3) 0
set Form33.Text59(4) 0
set Form33.Text59(5) 0
set Form33.Text61(3) 0
set Form33.Text60(4) 0
set Form33.Text61(4) 0
set Form33.Text62(4) 0
set Form33.Text60(5) 0
set Form33.Text60(2) 20
set Form33.Text61(2) 60
click Form33.Command26
get Form33.Text59(2)
messages
pause events far from their duration
set Form33.Text59(2) 30
set Form33.Text60(2) 200
set Form33.Text61(2) -150
set Form33.Text60(0) 10
set Form33.Text61(0) 20
file far.cmm
click Form33.Generate_OC
messages
pause curves of too few points
click Form33.Command8
click Form33.Gen_Curv2
messages
set Form33.Text58(1) 0
set Form33.Text58(2) 0
set Form33.Text58(3) 0
set Form33.Text58(4) 0
set Form33.Text58(5) 0
set Form33.Text58(6) 0
set Form33.Text58(7) 0
set Form33.Text58(8) 0
set Form33.Text58(9) 0
set Form33.Text58(10) 0
set Form33.Text58(11) 0
click Form33.Gen_Curv
messages
pause curves that do not ascend
set Form33.Text59(1) 10
set Form33.Text59(2) 5
set Form33.Text59(3) 4
choose Form33.Option2(1)
click Form33.Gen_Curv
messages
set Form33.Text59(2) 15
click Form33.Gen_Curv2
messages
set Form33.Text58(2) 1e308
set Form33.Text58(1) 1e307
choose Form33.Option2(0)
click Form33.Gen_Curv
messages
pause flat tappets
set Form33.Text5 .02
click Form33.Command9
messages
set Form33.Text5 0
click Form33.Command9
messages
set Form33.Text5 
click Form33.Command9
messages
set Form33.Text5 text
click Form33.Command9
messages
set Form33.Text1 -1
click Form33.Command24
messages
set Form33.Text1 
click Form33.Command24
messages
set Form33.Text1 text
click Form33.Command24
messages
set Form33.Text1 1e308
click Form33.Command24
messages
pause single columns
set Form33.Text1 .007
set Form33.Text5 .842
check Form33.Check3
set Form33.Text58(24) .3
set Form33.Text59(0) 380
set Form33.Text2 2
click Form33.Command6
messages
set Form33.Text59(0) 360
file longest.s96
click Form33.Command6
messages
set Form33.Text2 2.5
click Form33.Command6
messages
dialogs
uncheck Form33.Check3
pause tables without a lobe
click Form33.Command14
messages
click Form33.IntakeTable
click Form33.ExhaustTable
messages
pause a folder that is not there
set Form33.Text59(0) 100
set Form33.Text2 10
file /nowhere/lobe.cmm
click Form33.Command6
messages
pause Metric with text that is no number
set Form33.Text58(1) a
check Form33.Check1
messages
get Form33.Check1
set Form33.Text58(1) 
set Form33.Text5 
check Form33.Check1
messages
get Form33.Check1
get Form33.Text58(1)
get Form33.Text5
click Form33.subend
