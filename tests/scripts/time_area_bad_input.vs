# What the port time area panel and the graphing options cannot take.
menu AIRFUEL
click Form4.Command48
file cam_info/harmonic.cmm
click Form4.ReadCam
messages
pause the engine
set Form4.Text2 0
click Form4.Command71
set Form4.Text2 6500
set Form4.Text52 0
click Form4.Command52
set Form4.Text52 4
set Form4.Text53 0
click Form4.Command67
set Form4.Text53 3.25
set Form4.Text94
click Form4.Command67
set Form4.Text94 0
set Form4.Text113 1.6
click Form4.Command71
set Form4.Text113 5.7
set Form4.Text94 9
click Form4.Command71
set Form4.Text94 0
set Form4.Text61 0
click Form4.Command52
set Form4.Text61 .55
messages
pause the valve gear
set Form4.Text92 0
click Form4.Command71
show Form4.CamNotes
set Form4.Text92 1e400
click Form4.Command71
set Form4.Text92 1e300
click Form4.Command71
click Form4.Command67
set Form4.Text92 abc
click Form4.Command111
show Form4.CamNotes
set Form4.Text92 1.5
set Form4.Text91 5
show Form4.CamNotes
click Form4.Command71
click Form4.Command67
set Form4.Text91 .014
set Form4.Text85 1e17
click Form4.Command71
set Form4.Text85 x
show Form4.CamNotes
set Form4.Text85 42
set Form4.Text68 0
click Form4.Command71
set Form4.Text68 .0001
click Form4.Command111
set Form4.Text68 .05
messages
pause valves and flow
set Form4.Text42 0
click Form4.Command71
set Form4.Text42 2.02
set Form4.Text120 95
click Form4.Command71
set Form4.Text120 45
set Form4.Text121 3
click Form4.Command52
set Form4.Text121 .08
set Form4.Text48(2) q
click Form4.Command71
set Form4.Text48(2) .3
messages
pause the lift table
set Form4.Text95(2) .05
click Form4.Command52
set Form4.Text95(2) .1
set Form4.Text96(18) 270
click Form4.Command52
set Form4.Text96(18) t
click Form4.Command52
set Form4.Text96(18) 250
set Form4.Text64 -
click Form4.Command52
set Form4.Text64 108
messages
set Form4.Text96(1) 0
set Form4.Text96(2) 0
set Form4.Text96(3) 0
set Form4.Text96(4) 0
set Form4.Text96(5) 0
set Form4.Text96(6) 0
set Form4.Text96(7) 0
click Form4.Command52
messages
pause graphs
set Form4.Text65 a
click Form4.Command67
set Form4.Text65 1e308
click Form4.Command67
set Form4.Text65 0
set Form4.Text66 0
click Form4.Command67
set Form4.Text66 1e308
choose Form4.Option6(14)
click Form4.Command67
set Form4.Text66 1
click Form4.Command68
set Form4.Text67 b
click Form4.Command63
messages
pause lift files that are none
file cam_info/bad_record.cmm
click Form4.ReadCam
file cam_info/empty.cmm
click Form4.ReadCam
file cancel
click Form4.ReadCam
file cam_info/huge.cmm
click Form4.ReadCam
show Form4.CamNotes
click Form4.Command71
click Form4.Command67
click Form4.Command87
messages
