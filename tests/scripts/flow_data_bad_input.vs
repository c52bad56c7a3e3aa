# What the flow panel and the valve panel do with what nobody can compute with.
menu AIRFUEL
click Form4.Command35
set Form4.Text48(3) abc
click Form4.Command33
messages
get Form4.Text48(3)
set Form4.Text48(3) .4
set Form4.Text49(20) 1e308
set Form4.Text48(20) 1e-308
click Form4.Command33
click Form4.Command51
click Form4.Command61(1)
messages
set Form4.Text48(20) .5
set Form4.Text49(20) 238
set Form4.Text70 0
click Form4.Command33
click Form4.Command51
click Form4.Command61(0)
messages
set Form4.Text70 28
pause valves
set Form4.Text42 0
click Form4.Command33
set Form4.Text42 2.02
set Form4.Text62 0
click Form4.Command33
set Form4.Text62 1
set Form4.Text63 40000
click Form4.Command33
set Form4.Text63 0
click Form4.Command33
set Form4.Text63 1
set Form4.Text43 2
click Form4.Command33
messages
set Form4.Text43 0.3415
set Form4.Text120 0
click Form4.Command51
set Form4.Text120 90
click Form4.Command51
set Form4.Text120 45
set Form4.Text123 3
click Form4.Command51
set Form4.Text123 .08
messages
pause a throat that is given in another measure
click Form4.Command50(0)
choose Form4.Option1(2)
click Form4.Command91(4)
click Form4.Command33
show Form4.FlowNotes
get Form4.IntakeThroatArea
click Form4.Command50(0)
choose Form4.Option1(0)
click Form4.Command91(4)
set Form4.Text44 1.84
click Form4.Command33
show Form4.FlowNotes
get Form4.IntakeThroatArea
set Form4.Text44 0
click Form4.Command63
messages
set Form4.Text44 .91
pause engine
set Form4.Text113 0
click Form4.Command95
set Form4.Text113 5.7
set Form4.Text53 0
click Form4.Command95
messages
set Form4.Text53 3.25
pause lifts in millimeters
click Form4.Command66
set Form4.Text48(0) 2.54
set Form4.Text48(1) 5.08
set Form4.Text48(2) 7.62
click Form4.Command33
show Form4.FlowNotes
click Form4.MillimetersToInches
get Form4.Text48(0)
get Form4.Text48(2)
get Form4.Text48(3)
get Form4.Text48(16)
show Form4.FlowNotes
click Form4.MillimetersToInches
get Form4.Text48(0)
show Form4.FlowNotes
pause a flow that falls, lifts that do not rise, a row left out
click Form4.Command66
set Form4.Text48(0) .1
set Form4.Text49(0) 60
set Form4.Text48(1) .2
set Form4.Text49(1) 50
set Form4.Text48(2) .2
set Form4.Text49(2) 120
set Form4.Text48(3) .3
set Form4.Text48(4) .4
set Form4.Text49(4) 200
click Form4.Command33
show Form4.FlowNotes
messages
pause a field that a command reads is not left without digits
type Form4.Text70 {BS}{TAB}
messages
set Form4.Text70 28
type Form4.Text48(0) x{TAB}
messages
get Form4.Text48(0)
