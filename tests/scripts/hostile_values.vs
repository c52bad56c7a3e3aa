# Values out of all proportion end every command with a reason.
menu CompGauge
set Form12.Text3 1e-320
click Form12.Command2
messages
get Form12.Text36
set Form12.Text3 1e308
click Form12.Command2
messages
# Notes beyond their limits are not taken; those within are.
menu Notes
set Main.Text22 Dyno Day, 3.5\nSecond LINE
click Main.Command11
# A graph of limits that no pixel can tell apart.
menu GRAPHER
file graphs/narrow.txt
click Form8.Read
messages
# A file that is no parameter file leaves all as it was.
answer No
file graphs/two_curves.txt
menu Read
messages
menu Notes
get Main.Text22
get Main.Label8
