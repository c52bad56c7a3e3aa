# Millimeters of the port time area panel: its lifts, lashes and clearance, and nothing else.
menu AIRFUEL
click Form4.Command48
file cam_info/harmonic.cmm
click Form4.ReadCam
messages
set Form4.Text77 .1
check Form4.Check1(4)
get Form4.Text78
get Form4.Text88
get Form4.Text91
get Form4.Text77
get Form4.Text68
get Form4.Text95(4)
get Form4.Text96(4)
get Form4.Text95(20)
get Form4.Text52
get Form4.Text113
get Form4.Text42
get Form4.Text48(0)
get Form4.Text1
value Intake Lash
click Form4.Command71
show Form4.Text78
press Form4.Text78 x
click Form4.Command52
show Form4.Text78
press Form4.Text78 x
choose Form4.Option6(1)
click Form4.Command67
plot
click Form4.Command87
get Form4.Text95(3)
get Form4.Text96(3)
set Form4.Text88 .5
click Form4.Command111
value Intake Lash
pause the other panels go on in inches
click Form4.Command91(5)
click Form4.Command35
click Form4.Command33
get Form4.Text50(3)
click Form4.Command91(9)
pause a file in millimeters
click Form4.Command48
file cam_info/metric.cmm
click Form4.ReadCam
messages
show Form4.CamNotes
get Form4.Text88
value Intake Lash
uncheck Form4.Check1(4)
get Form4.Text88
get Form4.Text77
get Form4.Text95(3)
show Form4.CamNotes
messages
pause the menu item ticks the box while the panel is put away, and Quit unticks it
click Form4.Command53
menu Metric
click Form4.subend
menu AIRFUEL
get Form4.Check1(4)
get Form4.Text78
get Form4.Text88
get Form4.Text52
get Form4.Text79
click Form4.subend
get Form4.Check1(4)
get Form4.Text88
value Intake Lash
pause with the box ticked on the panel the screen is left from its page
menu Metric
menu AIRFUEL
get Form4.Check1(4)
click Form4.Command48
check Form4.Check1(4)
click Form4.Command53
click Form4.subend
state Form4.subend
get Form4.Check1(4)
messages
