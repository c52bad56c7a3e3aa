# The graphs of the flow tables.
menu AIRFUEL
click Form4.Command35
pause nothing to draw again yet
click Form4.Command64
get Form4.Text78
click Form4.Command61(0)
plot
click Form4.Command61(1)
plot
click Form4.Command62(0)
plot
click Form4.Command62(1)
plot
click Form4.Command72(0)
plot
click Form4.Command72(1)
plot
pause again with another table, on the same axes
set Form4.Text49(20) 260
click Form4.Command64
plot
click Form4.Command63
plot
set Form4.Text49(4) 365
click Form4.Command64
plot
pause two rows at least
click Form4.Command66
click Form4.Command63
messages
set Form4.Text48(0) .1
set Form4.Text49(0) 70
click Form4.Command61(0)
messages
set Form4.Text48(1) .25
set Form4.Text49(1) 150
click Form4.Command61(0)
plot
messages
