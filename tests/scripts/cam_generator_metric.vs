# The cam lift curve generator in millimetres.
menu Cam_Gen
set Form33.Text58(24) .36
click Form33.Command26
check Form33.Check1
get Form33.Text58(0)
get Form33.Text58(1)
get Form33.Text58(11)
get Form33.Text58(12)
get Form33.Text58(24)
get Form33.Text59(0)
get Form33.Text60(0)
get Form33.Text5
get Form33.Text1
get Form33.Text2
get Form33.Text20
get Form33.Text21
pause a lobe in millimetres
set Form33.Text2 50
file mm.cmm
click Form33.Command2
show Form33.Text38
get Form33.LobeAreaText
get Form33.PeakVelocityText
get Form33.VelocityNote
pause durations in millimetres
choose Form33.Option2(1)
file mm.cmm
click Form33.Generate
show Form33.Text38
pause flat tappets
click Form33.Command9
get Form33.Text1
click Form33.Command24
get Form33.Text5
set Form33.Text5 33
click Form33.Command9
get Form33.Text1
set Form33.Text1 .25
click Form33.Command24
get Form33.Text5
pause back to inches
uncheck Form33.Check1
get Form33.Text58(0)
get Form33.Text58(1)
get Form33.Text58(11)
get Form33.Text58(12)
get Form33.Text58(24)
get Form33.Text5
get Form33.Text1
get Form33.LobeAreaText
get Form33.PeakVelocityText
get Form33.VelocityNote
pause in millimetres without a lift
check Form33.Check1
set Form33.Text58(24) 
file mm.cmm
click Form33.Command6
messages
get Form33.Text58(24)
set Form33.Text58(24) 9.5
pause closing goes back to inches
click Form33.subend
menu Cam_Gen
get Form33.Check1
get Form33.Text58(24)
messages
