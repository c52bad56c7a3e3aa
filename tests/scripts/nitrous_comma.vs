# arguments: --decimal-comma
# The nitrous screen where decimals have a comma.
menu Nitrous
get Form17.Text3
get Form17.Text6
click Form17.Command1
get Form17.Text18
get Form17.Text11
get Form17.Text16
get Form17.Text19
click Form17.Command2
get Form17.Text8
set Form17.Text18 150,5
click Form17.Command6
get Form17.Text3
click Form17.Command5
get Form17.Text1
messages
