# Three heads: iron at 10 inches of water from a file, four valves from a file with a bore and a
# stroke of their own, and one with five valves typed.
menu AIRFUEL
click Form4.Command35
file flow/iron.flw
click Form4.Read(0)
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
click Form4.Command61(0)
plot
click Form4.Command62(1)
plot
pause four valves
file flow/four_valves.dfw
click Form4.Read(0)
set Form4.Text43 .2362
set Form4.Text46 .2165
set Form4.Text44 .88
set Form4.Text47 .86
set Form4.Text121 .05
set Form4.Text120 40
set Form4.Text123 .055
set Form4.Text122 50
set Form4.Text52 3.386
set Form4.Text53 3.386
set Form4.Text113 5.31
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
click Form4.Command95
show Form4.Text78
press Form4.Text78 x
click Form4.Command72(1)
plot
pause five valves, the throat as an area, at 25 inches of water
click Form4.Command66
set Form4.Text62 3
set Form4.Text63 2
set Form4.Text42 1.1
set Form4.Text45 1.15
click Form4.Command50(0)
choose Form4.Option1(1)
click Form4.Command91(4)
set Form4.Text44 .78
set Form4.Text47 .85
set Form4.Text70 25
set Form4.Text89 2.1
set Form4.Text48(0) .08
set Form4.Text49(0) 84.5
set Form4.Text48(1) .16
set Form4.Text49(1) 161
set Form4.Text48(2) .32
set Form4.Text49(2) 241.5
set Form4.Text48(16) .1
set Form4.Text49(16) 71
set Form4.Text48(17) .3
set Form4.Text49(17) 158.25
click Form4.Command33
get Form4.Text50(1)
get Form4.Text51(1)
get Form4.Text50(17)
get Form4.Text51(17)
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
messages
