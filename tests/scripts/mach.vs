# Mach index of the intake valve and tuned length, each solved for its terms.
menu AIRFUEL
click Form4.Command39
state Form4.Frame7
pause the engine as it comes
click Form4.CommandF7(0)
get Form4.Text56
get Form4.Text57
value Mach Number
pause RPM by the Mach number: the whole RPM below
click Form4.CommandF7(1)
get Form4.Text2
set Form4.Text56 .6
click Form4.CommandF7(1)
get Form4.Text2
value RPM
click Form4.CommandF7(2)
get Form4.Text55
value Mach Valve Lift
set Form4.Text56 .5
click Form4.CommandF7(3)
get Form4.Text54
value Mach Valve Diameter
pause by cross-section
set Form4.Text2 6500
click Form4.CommandF7(4)
get Form4.Text57
get Form4.Text56
set Form4.Text57 500
click Form4.CommandF7(5)
get Form4.Text58
pause by the coefficient of discharge
set Form4.Text54 2.02
click Form4.CommandF7(6)
get Form4.Text57
get Form4.Text56
set Form4.Text60 2
click Form4.CommandF7(6)
get Form4.Text57
get Form4.Text56
set Form4.Text60 1
pause Helmholtz
set Form4.Text52 4
set Form4.Text53 3.48
set Form4.Text58 2.2
set Form4.Text84 10
set Form4.Text34 13
click Form4.CommandF7(9)
get Form4.Text32
value Peak Torque RPM
click Form4.CommandF7(10)
get Form4.Text34
pause the H factor counts as a whole number, half to even
set Form4.Text34 13
set Form4.Text114 77.5
click Form4.CommandF7(9)
get Form4.Text32
set Form4.Text114 76.5
click Form4.CommandF7(9)
get Form4.Text32
get Form4.Text114
value H Factor
set Form4.Text114 77
pause what stands in two places is one value
click Form4.Command91(6)
state Form4.Frame7
get Form4.Text32
get Form4.Text34
messages
