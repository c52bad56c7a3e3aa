# Two runs of the car side by side, and a chart that follows the fields.
menu ACCELERATION
pause nothing to compare with
click Form13.Command34
messages

pause the run that is kept
set Form13.Text51 3500
click Form13.Command25
press Form13.Text58 x
pause a lighter car beside it
set Form13.Text51 2900
click Form13.Command34
show Form13.Text58
value ET
messages

pause kept up to date: each entry gives another run beside the same one
check Form13.KeepUpToDate
set Form13.Text51 3200
show Form13.Text58
set Form13.Text42 6
set Form13.Text42 0.9
show Form13.Text58
messages
undo
undo
get Form13.Text42
get Form13.Text51
show Form13.Text58

pause the CVT beside itself
press Form13.Text58 x
set Form13.Text42 5.0
click Form13.Command13
press Form13.Text58 x
click Form13.Command34
show Form13.Text58
set Form13.Text78 5.0
show Form13.Text58
uncheck Form13.KeepUpToDate
