# What the acceleration screen does with values that no car can run with: one box that names the
# field, its page in sight, and nothing that was typed is lost.
menu ACCELERATION
pause nothing, text, and huge numbers
set Form13.Text51 
click Form13.Command25
set Form13.Text51 heavy
click Form13.Command25
set Form13.Text51 1e300
click Form13.Command25
click Form13.Command23
set Form13.Text51 1e400
click Form13.Command24
messages
get Form13.Text51
pause a car without weight, ratio, tire, air or grip
set Form13.Text51 0
click Form13.Command25
click Form13.Command13
click Form13.Command23
set Form13.Text51 2350
set Form13.Text18 0
click Form13.Command25
set Form13.Text18 4.1
set Form13.Text21 0
set Form13.Text49 0
click Form13.Command25
click Form13.Command23
set Form13.Text21 24
set Form13.Text49 12
set Form13.Text67 0
click Form13.Command25
click Form13.Command14
set Form13.Text67 1.00
set Form13.Text42 5.142857142857143
click Form13.Command25
set Form13.Text42 6
click Form13.Command13
set Form13.Text42 0
click Form13.Command25
set Form13.Text42 1e-300
click Form13.Command25
click Form13.Command13
set Form13.Text42 5.0
set Form13.Text51 1e-300
click Form13.Command25
set Form13.Text51 2350
set Form13.Text67 1e300
click Form13.Command14
set Form13.Text67 1e-300
click Form13.Command14
click Form13.Command25
set Form13.Text67 1.00
check Form13.Check2
set Form13.Text62 0
click Form13.Command25
uncheck Form13.Check2
messages
pause losses that leave no power
set Form13.Text28 60
set Form13.Text47 40
click Form13.Command17
set Form13.Text28 100
click Form13.Command25
set Form13.Text28 6.5
set Form13.Text78 100
click Form13.Command13
set Form13.Text78 20.0
messages
pause a launch above and below the table
set Form13.Text69 10000
click Form13.Command25
messages
press Form13.Text58 x
set Form13.Text69 100
click Form13.Command25
messages
press Form13.Text58 x
set Form13.Text69 5200
pause a CVT that keeps an engine speed the table does not have
set Form13.Text77 20000
click Form13.Command13
set Form13.Text77 9500
messages
pause a tire that rolls larger than it is, and wind from beyond the compass
set Form13.Text49 12.5
set Form13.Text38 400
click Form13.Command25
get Form13.Text21
get Form13.Text38
messages
press Form13.Text58 x
pause gears
set Form13.Text2(0) 0
click Form13.Command25
state Form13.Frame4
state Form13.Frame1
set Form13.Text2(0) 3.25
set Form13.Text2(2) 2.26
click Form13.Command25
set Form13.Text2(2) 1.25
set Form13.Text13(1) 100
click Form13.Command25
set Form13.Text13(1) x
click Form13.Command25
set Form13.Text13(1) 6.0
set Form13.Text22(0) 
click Form13.Command25
set Form13.Text22(0) 10000
click Form13.Command33
messages
pause nitrous, which counts only with its box
set Form13.Text91(0) much
click Form13.Command25
press Form13.Text58 x
check Form13.Check3
click Form13.Command25
state Form13.NitrousFrame
set Form13.Text91(0) 110
set Form13.Text94(8) 
click Form13.Command9
state Form13.NitrousFrame
set Form13.Text94(8) 0
click Form13.Command9
state Form13.Frame1
messages
pause a torque table that does not rise, is too short, or no table at all
click Form13.TorqueTable
set Form13.TorqueText 3000 300\n4000 310\n4000 320
click Form13.TakeTorque
set Form13.TorqueText 3000 300
click Form13.TakeTorque
set Form13.TorqueText 
click Form13.TakeTorque
set Form13.TorqueText 3000 300\n4000 lots
click Form13.TakeTorque
set Form13.TorqueText 3000 300\n4000
click Form13.TakeTorque
set Form13.TorqueText -100 300\n4000 310
click Form13.TakeTorque
set Form13.TorqueText 3000 300 1 2 3 4 5 6\n4000 310
click Form13.TakeTorque
messages
show Form13.TorqueText
get Form13.TorquePeaks
click Form13.ShowTorque
show Form13.TorqueText
click Form13.CloseTorque
pause a curve shifted below nothing
set Form13.Text72 -5000
click Form13.Command8
set Form13.Text72 x
click Form13.Command8
set Form13.Text72 2350
messages
pause a file with one point of torque
file cars/one_point.prm
answer No
menu Read
click Form13.Command25
click Form13.Command13
click Form13.Command8
click Form13.Command14
messages
