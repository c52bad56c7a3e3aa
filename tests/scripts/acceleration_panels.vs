# The panels of the acceleration screen take turns, the run's commands stay beside them, and what
# stands in them acts before it is put away. A gearbox picked in the finder acts here too.
menu ACCELERATION
state Form13.Frame1
state Form13.Frame4
click Form13.Command21
state Form13.Frame1
state Form13.Frame4
pause a run from beside the gears
set Form13.Text2(3) 0
click Form13.Command25
value T Gear 3
value ET
press Form13.Text58 x
set Form13.Text2(3) 1.00
set Form13.Text52(0) 0.5
click Form13.Command25
value ET
press Form13.Text58 x
click Form13.Command33
state Form13.Frame1
pause nitrous without and with its box, before Done
click Form13.Command11
set Form13.Text91(0) 300
click Form13.Command25
value ET8
press Form13.Text58 x
click Form13.Command9
check Form13.Check3
click Form13.Command11
set Form13.Text90(1) 2
set Form13.Text91(1) 200
set Form13.Text93(1) 50
set Form13.Text92(1) 6000
set Form13.Text94(1) 9000
set Form13.Text90(7) 100
set Form13.Text91(7) 3
set Form13.Text94(7) 6
click Form13.Command25
value ET8
press Form13.Text58 x
click Form13.Command9
check Form13.Check5
click Form13.Command25
value ET8
press Form13.Text58 x
state Form13.Frame1
uncheck Form13.Check3
uncheck Form13.Check5
pause scoop, rate and throttle stop
check Form13.Check4
check Form13.Check7
check Form13.Check6
set Form13.Text79 7000
click Form13.Command25
value ET
show Form13.Text58
press Form13.Text58 x
uncheck Form13.Check4
uncheck Form13.Check7
uncheck Form13.Check6
messages
pause the torque table edited
click Form13.TorqueTable
show Form13.TorqueText
set Form13.TorqueText 5000\t350\n6000\t375;400\n\n; a note\nAcceleration = 9000 300\n
click Form13.TakeTorque
show Form13.TorqueText
get Form13.TorquePeaks
value ET
click Form13.Command25
value ET
press Form13.Text58 x
pause a file read while the torque table is shown
answer No
file cars/truck.prm
menu Read
show Form13.TorqueText
get Form13.TorquePeaks
click Form13.CloseTorque
messages
pause a gearbox picked in the finder
menu Motorc
select Form19.Combo1 '09 RSV4 P-1.6591 S-2.5 PT-73/44 ST-40/16 | 2.6 2.0625 1.7 1.4545 1.3077 1.2222
click Form19.subend
get Form13.Check1
get Form13.Check2
get Form13.Text62
get Form13.Text18
get Form13.Text2(0)
get Form13.Text2(2)
get Form13.Text2(3)
get Form13.Text2(10)
messages
