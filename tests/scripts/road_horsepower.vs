# Power of speeds and times taken on the road, and starting line ratios.
menu ACCELERATION
pause the tables that the program starts with
click Form13.Command26
show Form13.Text58
press Form13.Text58 x
click Form13.Command27
show Form13.Text58
press Form13.Text58 x
click Form13.Command29
show Form13.Text58
press Form13.Text58 x
click Form13.Command32
show Form13.Text58
press Form13.Text58 x
pause another car, in third gear, with wind and a primary drive
file dyno/measured.prm
menu Read
messages
menu ACCELERATION
get Form13.Text12
set Form13.Text37 10
set Form13.Text38 400
check Form13.Check2
set Form13.Text62 0.8
click Form13.Command26
show Form13.Text58
press Form13.Text58 x
get Form13.Text38
click Form13.Command27
show Form13.Text58
press Form13.Text58 x
pause the rate takes the place of the times
set Form13.Text70 600
click Form13.Command27
show Form13.Text58
press Form13.Text58 x
pause the weight alone
set Form13.Text64 0
click Form13.Command29
show Form13.Text58
press Form13.Text58 x
pause an automatic transmission
check Form13.Check1
set Form13.Text41 8
click Form13.Command32
show Form13.Text58
press Form13.Text58 x
messages
