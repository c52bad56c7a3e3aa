# What the port timing screen shares with the parameter file and other screens, there and back in
# both units.
menu SRKVAL
file ports.prm
menu Write
messages
set Form18.Text48 1.234
set Form18.Text23 4.5
set Form18.Text37 0.6
set Form18.Text38 0.04
set Form18.Text1 4.006996
check Form18.Check1
get Form18.Text1
get Form18.Text48
get Form18.Text23
get Form18.Text38
click Form18.Command2
value 2 S Exhaust Distance
value 2 S Exhaust Degrees
menu CubicInch
get Form1.Text1
value 2 S Exhaust Distance
file changed.prm
menu Write
messages
click Form18.subend
get Form18.Check1
get Form18.Text1
get Form18.Text48
get Form18.Text23
get Form18.Text37
get Form18.Text38
file ports.prm
menu Read
messages
get Form18.Text48
get Form18.Text47
get Form18.Text8
get Form18.Text9
get Form18.Text13
get Form18.Text14
get Form18.Text23
get Form18.Text24
get Form18.Text25
get Form18.Text37
get Form18.Text38
file changed.prm
menu Read
messages
get Form18.Text48
get Form18.Text47
get Form18.Text23
get Form18.Text37
get Form18.Text38
