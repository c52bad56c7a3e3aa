# The port calculator: every command, as it comes and with other ports.
menu AIRFUEL
click Form4.Command80
state Form4.Frame10
click Form4.CommandF10(0)
get Form4.Text100
get Form4.Text126
click Form4.CommandF10(1)
get Form4.Text111
get Form4.Text126
click Form4.CommandF10(8)
get Form4.Text103
click Form4.CommandF10(9)
get Form4.Text110
click Form4.CommandF10(2)
get Form4.Text102
click Form4.CommandF10(3)
get Form4.Text101
click Form4.CommandF10(4)
get Form4.Text112
get Form4.Text126
click Form4.CommandF10(5)
get Form4.Text117
get Form4.Text119
click Form4.CommandF10(6)
get Form4.Text118
get Form4.Text119
click Form4.CommandF10(7)
get Form4.Text116
get Form4.Text119
pause a round port
set Form4.Text108 1.8
set Form4.Text109 1.8
set Form4.Text105 .9
set Form4.Text107 .9
set Form4.Text106 .9
set Form4.Text104 .9
click Form4.CommandF10(0)
get Form4.Text100
get Form4.Text126
pause another
set Form4.Text108 1.31
set Form4.Text109 2.27
set Form4.Text105 .125
set Form4.Text107 .375
set Form4.Text106 .5
set Form4.Text104 0
click Form4.CommandF10(0)
get Form4.Text100
get Form4.Text126
set Form4.Text110 4.2
set Form4.Text103 178
click Form4.CommandF10(1)
get Form4.Text111
get Form4.Text126
set Form4.Text101 262
set Form4.Text112 2.06
click Form4.CommandF10(2)
get Form4.Text102
set Form4.Text102 310
click Form4.CommandF10(4)
get Form4.Text112
pause a taper of 2.386 degrees by its sine
set Form4.Text115 1.75
set Form4.Text118 6
set Form4.Text117 2.386
click Form4.CommandF10(7)
get Form4.Text116
get Form4.Text119
pause a port that becomes narrower
set Form4.Text116 1.5
click Form4.CommandF10(5)
get Form4.Text117
messages
pause what cannot be computed
set Form4.Text104 2
click Form4.CommandF10(0)
set Form4.Text104 .1
set Form4.Text108 wide
click Form4.CommandF10(0)
set Form4.Text110 0
click Form4.CommandF10(1)
set Form4.Text111 0
click Form4.CommandF10(9)
set Form4.Text112 0
click Form4.CommandF10(2)
set Form4.Text102 0
click Form4.CommandF10(4)
set Form4.Text118 0
click Form4.CommandF10(5)
set Form4.Text117 0
click Form4.CommandF10(6)
set Form4.Text117 x
click Form4.CommandF10(7)
set Form4.Text101 1e300
set Form4.Text112 1e-300
click Form4.CommandF10(2)
messages
click Form4.Command91(0)
state Form4.Frame10
