# Graphs of Mach number, velocity and tuned length.
menu AIRFUEL
click Form4.Command39
click Form4.CommandF7(7)
plot
click Form4.CommandF7(8)
plot
pause at and above 10000 RPM the graph reaches further
set Form4.Text2 10000
click Form4.CommandF7(7)
plot
pause it does not begin below 0
set Form4.Text2 900
click Form4.CommandF7(8)
plot
click Form4.CommandF7(11)
plot
messages
