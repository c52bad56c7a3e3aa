# What headers and choking ports keep in the parameter file. The speed of a report is the one that
# the screen opens with.
menu AIRFUEL
click Form4.Command43
click Form4.CommandF2(0)
click Form4.CommandF2(5)
set Form4.Text23 1.875
set Form4.Text26 3.5
click Form4.CommandF2(6)
click Form4.Command91(7)
click Form4.Command55
set Form4.Text83 315
set Form4.Text61 .6
set Form4.Text27 7100
click Form4.Command57
press Form4.Text78 x
click Form4.Command91(3)
file headers.prm
menu Write
messages
pause other values, then the file again
set Form4.Text22 1
set Form4.Text23 1
set Form4.Text24 1
set Form4.Text25 1
set Form4.Text26 1
set Form4.Text83 1
set Form4.Text61 1
answer No
file headers.prm
menu Read
messages
get Form4.Text22
get Form4.Text23
get Form4.Text24
get Form4.Text25
get Form4.Text26
get Form4.Text83
get Form4.Text61
value Tube Length
value Collector Length
value User Velocity fps
click Form4.subend
menu AIRFUEL
get Form4.Text2
messages
