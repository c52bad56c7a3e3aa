# arguments: --decimal-comma
# The air and fuel screen where decimals have a comma.
menu AIRFUEL
get Form4.Text11
get Form4.Text124
get Form4.Mixture
click Form4.Command8
get Form4.Text5
get Form4.Text86
set Form4.Text30 0,9
get Form4.Mixture
click Form4.Command54
get Form4.Text80
get Form4.Text81
get Form4.Text69
get Form4.Text3
choose Form4.Option8(5)
check Form4.Check1(7)
click Form4.Command42
show Form4.Text78
press Form4.Text78 x
click Form4.Command37
get Form4.Text12
click Form4.CommandF3(0)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text41
set Form4.Text12 0,96
click Form4.CommandF3(2)
messages
