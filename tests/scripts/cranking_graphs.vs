# Graphs of the compression gauge screen: those over the crank angle from one degree before the
# bottom, whose three points agree to thirteen digits with values worked out apart.
menu CompGauge
set Form12.Text17 11
set Form12.Text10 179
set Form12.Text35 700
select Form12.Combo1 1.00
choose Form12.Option1(8)
click Form12.Command6
plot
pause another exponent in the next pen
select Form12.Combo1 1.50
click Form12.Command5
plot
pause force on the piston
choose Form12.Option1(9)
click Form12.Command6
plot
pause turning force
choose Form12.Option1(10)
click Form12.Command6
plot
choose Form12.Option1(12)
click Form12.Command6
plot
pause closing angles that give a reading up to a low barometer
set Form12.Text35 165.5
set Form12.Text13 12
check Form12.Check3
choose Form12.Option1(5)
click Form12.Command6
value Crank Angle CG
value Base Exponent
messages
