# arguments: --decimal-comma
# Headers and choking ports with a decimal comma.
menu AIRFUEL
click Form4.Command43
get Form4.Text23
click Form4.CommandF2(0)
get Form4.Text22
set Form4.Text23 1,875
click Form4.CommandF2(5)
get Form4.Text24
click Form4.Command91(7)
click Form4.Command55
get Form4.Text61
set Form4.Text83 262,5
click Form4.Command57
show Form4.Text78
messages
