# Presses every command of the cam lift curve generator. The numbers of its expected lines were
# worked out apart from the program.
menu Cam_Gen
pause a fresh screen
get Form33.Text2
get Form33.Text20
get Form33.Text21
get Form33.Text5
get Form33.Text1
get Form33.Combo1
get Form33.Option1
get Form33.Option2
get Form33.Option3
get Form33.Check1
get Form33.Check2
get Form33.Check3
get Form33.Text58(0)
get Form33.Text58(1)
get Form33.Text58(11)
get Form33.Text58(12)
get Form33.Text58(24)
get Form33.Text59(0)
get Form33.Text59(23)
get Form33.Text60(0)
get Form33.Text61(0)
get Form33.Text62(0)
get Form33.Text63(0)
rows Form33.Combo1
pause durations of a cam report
click Form33.Command26
get Form33.Text59(0)
get Form33.Text59(1)
get Form33.Text59(2)
get Form33.Text59(3)
get Form33.Text59(4)
get Form33.Text59(5)
get Form33.Text59(6)
get Form33.Text59(7)
get Form33.Text59(8)
get Form33.Text59(9)
get Form33.Text59(10)
get Form33.Text59(11)
get Form33.Text59(12)
messages
pause motion laws
set Form33.Text2 10
set Form33.Text58(24) .5
set Form33.Text59(0) 100
file lobe.cmm
click Form33.Command16
show Form33.Text38
file lobe.cmm
click Form33.Command17
show Form33.Text38
file lobe.cmm
click Form33.Command18
show Form33.Text38
file lobe.cmm
click Form33.Command1
show Form33.Text38
file lobe.cmm
click Form33.Command12
show Form33.Text38
file lobe.cmm
click Form33.Command13
show Form33.Text38
file lobe.cmm
click Form33.Command2
show Form33.Text38
file lobe.cmm
click Form33.Command19
show Form33.Text38
file lobe.cmm
click Form33.Command7
show Form33.Text38
file lobe.cmm
click Form33.Command3
show Form33.Text38
file lobe.cmm
click Form33.Command20
show Form33.Text38
file lobe.cmm
click Form33.Command11
show Form33.Text38
file lobe.cmm
click Form33.Command4
show Form33.Text38
file lobe.cmm
click Form33.Command5
show Form33.Text38
file lobe.cmm
click Form33.Command6
show Form33.Text38
file lobe.cmm
click Form33.Command10
show Form33.Text38
file lobe.cmm
click Form33.Command15
show Form33.Text38
messages
dialogs
get Form33.LobeRecords
get Form33.LobeAreaText
get Form33.PeakVelocityText
get Form33.VelocityNote
choose Form33.Option3(1)
get Form33.PeakVelocityText
get Form33.VelocityNote
pause a lobe that closes slower
check Form33.Check2
set Form33.Text20 140
file lobe.cmm
click Form33.Command2
show Form33.Text38
file lobe.cmm
click Form33.Command11
show Form33.Text38
uncheck Form33.Check2
pause lash ramps
set Form33.Text2 2
set Form33.Text59(0) 8
set Form33.Text58(24) .064
choose Form33.Option1(0)
file ramp.cmm
click Form33.Command14
show Form33.Text38
choose Form33.Option1(1)
file ramp.cmm
click Form33.Command14
show Form33.Text38
choose Form33.Option1(2)
file ramp.cmm
click Form33.Command14
show Form33.Text38
choose Form33.Option1(3)
file ramp.cmm
click Form33.Command14
show Form33.Text38
choose Form33.Option1(4)
file ramp.cmm
click Form33.Command14
show Form33.Text38
choose Form33.Option1(5)
file ramp.cmm
click Form33.Command14
show Form33.Text38
pause lash ramps by a rate
set Form33.Text58(24) .003
choose Form33.Option1(0)
file ramp.cmm
click Form33.Command21
show Form33.Text38
choose Form33.Option1(1)
file ramp.cmm
click Form33.Command22
show Form33.Text38
choose Form33.Option1(2)
file ramp.cmm
click Form33.Command21
show Form33.Text38
choose Form33.Option1(3)
file ramp.cmm
click Form33.Command22
show Form33.Text38
choose Form33.Option1(4)
click Form33.Command21
choose Form33.Option1(5)
click Form33.Command22
messages
pause a report of durations
click Form33.Command26
set Form33.Text2 15
set Form33.Text58(24) .36
choose Form33.Option2(0)
file lobe.cmm
click Form33.Generate
show Form33.Text38
choose Form33.Option2(1)
file lobe.cmm
click Form33.Generate
show Form33.Text38
choose Form33.Option2(2)
file lobe.cmm
click Form33.Generate
show Form33.Text38
choose Form33.Option2(0)
select Form33.Combo1 9
file lobe.cmm
click Form33.Generate
show Form33.Text38
select Form33.Combo1 3
file lobe.cmm
click Form33.Generate
show Form33.Text38
select Form33.Combo1 5
pause a report of opening and closing events
choose Form33.Option2(0)
file lobe.cmm
click Form33.Generate_OC
show Form33.Text38
choose Form33.Option2(1)
file lobe.cmm
click Form33.Generate_OC
show Form33.Text38
choose Form33.Option2(2)
file lobe.cmm
click Form33.Generate_OC
show Form33.Text38
pause the closing flank of other events
check Form33.Check2
set Form33.Text20 370
choose Form33.Option2(0)
file lobe.cmm
click Form33.Generate_OC
show Form33.Text38
choose Form33.Option2(1)
file lobe.cmm
click Form33.Generate_OC
show Form33.Text38
choose Form33.Option2(2)
file lobe.cmm
click Form33.Generate_OC
show Form33.Text38
uncheck Form33.Check2
messages
pause clear and sort
click Form33.Command8
get Form33.Text58(1)
get Form33.Text59(1)
get Form33.Text60(1)
get Form33.Text61(1)
get Form33.Text62(1)
get Form33.Text63(1)
set Form33.Text59(0) 5
set Form33.Text58(0) 0.3
set Form33.Text59(1) 0
set Form33.Text58(1) 0.1
set Form33.Text59(2) 9
set Form33.Text58(2) 0.7
set Form33.Text59(3) 3
set Form33.Text58(3) 0.4
set Form33.Text58(4) 
set Form33.Text58(5) 
set Form33.Text58(6) 
set Form33.Text58(7) 
set Form33.Text58(8) 
set Form33.Text58(9) 
set Form33.Text58(10) 
set Form33.Text58(11) 
click Form33.Command25
get Form33.Text59(0)
get Form33.Text58(0)
get Form33.Text59(1)
get Form33.Text58(1)
get Form33.Text59(2)
get Form33.Text58(2)
get Form33.Text59(3)
get Form33.Text58(3)
get Form33.Text59(4)
get Form33.Text58(4)
set Form33.Text60(2) 7
click Form33.Command23
get Form33.Text59(0)
get Form33.Text58(0)
get Form33.Text60(0)
get Form33.Text59(1)
get Form33.Text58(1)
get Form33.Text60(1)
get Form33.Text59(2)
get Form33.Text58(2)
get Form33.Text60(2)
get Form33.Text59(3)
get Form33.Text58(3)
get Form33.Text60(3)
get Form33.Text59(4)
get Form33.Text58(4)
get Form33.Text60(4)
click Form33.Command25
set Form33.Text2 1.5
pause curves
choose Form33.Option2(0)
file curve.txt
click Form33.Gen_Curv
show Form33.Text38
file curve.txt
click Form33.Gen_Curv2
show Form33.Text38
choose Form33.Option2(1)
file curve.txt
click Form33.Gen_Curv
show Form33.Text38
file curve.txt
click Form33.Gen_Curv2
show Form33.Text38
choose Form33.Option2(2)
file curve.txt
click Form33.Gen_Curv
show Form33.Text38
file curve.txt
click Form33.Gen_Curv2
show Form33.Text38
messages
pause flat tappets
set Form33.Text5 .842
click Form33.Command9
get Form33.Text1
click Form33.Command24
get Form33.Text5
set Form33.Text1 .0085
click Form33.Command24
get Form33.Text5
click Form33.Command9
get Form33.Text1
messages
pause single columns of 360 degrees
set Form33.Text58(24) .36
set Form33.Text59(0) 20
set Form33.Text2 2
check Form33.Check3
file lobe.s96
click Form33.Command6
dialogs
show Form33.Text38
check Form33.Check2
set Form33.Text20 26
file lobe.s96
click Form33.Command6
show Form33.Text38
set Form33.Text2 1
click Form33.Command6
messages
uncheck Form33.Check3
uncheck Form33.Check2
pause on paper
set Form33.Text59(0) 20
set Form33.Text2 5
file lobe.cmm
click Form33.Command6
press Form33.Text38 ,
pages
pause a dialog that is cancelled writes nothing
file cancel
click Form33.Command6
messages
dialogs
press Form33.Text38 x
state Form33.Text38
click Form33.subend
