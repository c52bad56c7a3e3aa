# arguments: --decimal-comma
# Port time area where numbers have a comma.
menu AIRFUEL
click Form4.Command48
get Form4.Text88
get Form4.Text95(1)
set Form4.Text76 111,5
set Form4.Text95(3) ,21
click Form4.Command52
show Form4.Text78
press Form4.Text78 x
value A-F Lobe Sep Angle
value Lift Table 3
set Form4.Text88 .5
click Form4.Command52
messages
