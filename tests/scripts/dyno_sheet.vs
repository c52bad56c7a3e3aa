# The dyno sheet as text and as graphs, of the program's own table and of one with fuel and air.
menu ACCELERATION
click Form13.Command15
pause with the table that the program starts with
get Form13.Text83
get Form13.Text84
get Form13.Text85
get Form13.Text7
get Form13.Text39
get Form13.Text3
get Form13.Text40
click Form13.Command18
show Form13.Text58
press Form13.Text58 x
click Form13.Command10
plot
pause columns that the table does not hold
click Form13.Command31(0)
click Form13.Command31(1)
click Form13.Command31(2)
click Form13.Command31(3)
click Form13.Command31(4)
click Form13.Command31(11)
messages
pause a table with fuel and air, and the corrections of its room
file dyno/measured.prm
menu Read
messages
menu ACCELERATION
click Form13.Command15
get Form13.Text83
get Form13.Text84
get Form13.Text85
get Form13.Text7
get Form13.Text39
get Form13.Text3
get Form13.Text40
get Form13.Check8
get Form13.Check9
click Form13.Command18
show Form13.Text58
press Form13.Text58 x
check Form13.Check9
check Form13.Check10
click Form13.Command18
show Form13.Text58
press Form13.Text58 x
uncheck Form13.Check9
uncheck Form13.Check10
click Form13.Command31(0)
plot
click Form13.Command31(1)
plot
click Form13.Command31(2)
plot
click Form13.Command31(3)
plot
click Form13.Command31(4)
plot
click Form13.Command31(5)
plot
set Form13.Text40 N
click Form13.Command31(5)
plot
click Form13.Command31(6)
plot
click Form13.Command31(7)
plot
click Form13.Command31(8)
plot
click Form13.Command31(9)
plot
click Form13.Command31(10)
plot
click Form13.Command31(11)
plot
click Form13.Command10
plot
pause a correction that was entered
set Form13.Text67 1.04
click Form13.Command15
click Form13.Command18
show Form13.Text58
press Form13.Text58 x
click Form13.Command31(9)
plot
pause Graph Plus with another correction
set Form13.Text67 1.10
click Form13.Command19
plot
pause nitrous
click Form13.Command16
check Form13.Check3
click Form13.Command15
click Form13.Command10
plot
value Dyno BP
value Dyno Correction
messages
pause done, and quit
click Form13.Command16
state Form13.Frame8
state Form13.Frame1
click Form13.Command15
click Form13.Command22
state Form13.Frame8
messages
