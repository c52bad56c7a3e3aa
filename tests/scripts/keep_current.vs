# A screen's last command runs again after every entry while the switch in its foot is on.
menu CubicInch
get Form1.KeepUpToDate
click Form1.Command1
get Form1.Text6

pause -- off: an entry changes nothing else
type Form1.Text1 4.125
get Form1.Text6

pause -- on: the next entry is followed
check Form1.KeepUpToDate
get Form1.KeepUpToDate
get Form1.Text6
type Form1.Text3 3.5
get Form1.Text6
set Form1.Text2 6
get Form1.Text6
history
undo
get Form1.Text2
get Form1.Text6
redo
get Form1.Text2
get Form1.Text6

pause -- what cannot be computed brings no box, and the line says why
set Form1.Text1
get Form1.Text6
hover Form1.KeepUpToDate
get Form1.Label7
set Form1.Text1 4
get Form1.Text6
hover Form1.KeepUpToDate
get Form1.Label7
messages

pause -- a command that works out what was entered rests
click Form1.Command2
get Form1.Text1
set Form1.Text1 4.5
get Form1.Text1
hover Form1.KeepUpToDate
get Form1.Label7

pause -- a report that is not in sight is not shown
click Form1.Command19
press Form1.Text38 x
set Form1.Text3 3.25
state Form1.Text38
hover Form1.KeepUpToDate
get Form1.Label7

pause -- a report in sight is shown anew
click Form1.Command19
set Form1.Text39 90
show Form1.Text38
messages

pause -- a command that adds up rests: on the acceleration screen the shift of the torque curve
menu ACCELERATION
check Form13.KeepUpToDate
set Form13.Text72 500
click Form13.Command8
click Form13.TorqueTable
get Form13.TorquePeaks
click Form13.CloseTorque
set Form13.Text72 1000
click Form13.TorqueTable
get Form13.TorquePeaks
click Form13.CloseTorque
hover Form13.KeepUpToDate
get Form13.Text58
uncheck Form13.KeepUpToDate

pause -- off again: nothing follows
uncheck Form1.KeepUpToDate
click Form1.Command1
set Form1.Text1 4
get Form1.Text6
