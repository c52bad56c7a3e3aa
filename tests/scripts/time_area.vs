# Port time area: each command without a cam, with one, and for other engines.
menu AIRFUEL
click Form4.Command48
state Form4.Frame12
get Form4.Frame12
show Form4.CamNotes
pause without a cam the lift tables alone tell something
click Form4.Command52
show Form4.Text78
press Form4.Text78 x
click Form4.Command71
click Form4.Command111
click Form4.Command67
click Form4.Command87
get Form4.Text95(1)
get Form4.Text96(1)
messages
pause a cam of harmonic motion, whose lashes come with it
file cam_info/harmonic.cmm
click Form4.ReadCam
messages
show Form4.CamNotes
get Form4.Text88
get Form4.Text91
value Intake Lash
click Form4.Command71
show Form4.Text78
press Form4.Text78 x
click Form4.Command111
show Form4.Text78
press Form4.Text78 x
pause its durations at the lifts of the flow tables
click Form4.Command87
get Form4.Text95(0)
get Form4.Text96(0)
get Form4.Text95(1)
get Form4.Text96(1)
get Form4.Text95(4)
get Form4.Text96(4)
get Form4.Text95(5)
get Form4.Text96(5)
get Form4.Text95(16)
get Form4.Text96(16)
value IntakeLift 1
value Lift Table 1
click Form4.Command52
show Form4.Text78
press Form4.Text78 x
pause a four-valve single without seats, on camshafts of its own
set Form4.Text52 3.78
set Form4.Text53 2.445
set Form4.Text113 4.3
set Form4.Text94 -.04
set Form4.Text2 11000
set Form4.Text61 .6
click Form4.Command50(1)
set Form4.Text42 1.457
set Form4.Text62 2
set Form4.Text45 1.22
set Form4.Text63 2
set Form4.Text43 .1969
set Form4.Text46 .1969
set Form4.Text121 0
set Form4.Text122 0
click Form4.Command91(4)
check Form4.Check1(5)
set Form4.Text74 4
set Form4.Text75 -2
set Form4.Text72 13
set Form4.Text73 15.5
set Form4.Text92 1.0
set Form4.Text93 1.0
set Form4.Text88 .006
set Form4.Text91 .008
set Form4.Text77 .09
set Form4.Text68 .1
show Form4.CamNotes
click Form4.Command71
show Form4.Text78
press Form4.Text78 x
click Form4.Command111
show Form4.Text78
press Form4.Text78 x
set Form4.Text64 103
set Form4.Text76 104
click Form4.Command52
show Form4.Text78
press Form4.Text78 x
value RPM
value Rocker Arm Ratio
value Degree TDC
value A-F Lobe Sep Angle
value DOHC
pause the steps of the file are cam degrees
check Form4.CamDegrees
show Form4.CamNotes
uncheck Form4.CamDegrees
pause a file of a lift tester, with the flow of another
file samples/lobe_pair.c1
click Form4.ReadCam
messages
show Form4.CamNotes
click Form4.Command111
show Form4.Text78
press Form4.Text78 x
uncheck Form4.Check1(6)
show Form4.CamNotes
file flow/iron.flw
click Form4.Read(1)
messages
get Form4.Text48(0)
pause both buttons that put the panel away
click Form4.Command53
state Form4.Frame12
click Form4.Command48
click Form4.Command91(5)
state Form4.Frame12
messages
