# What the chassis screen shares with the parameter file and with other screens.
menu CHASSIS
pause what no command has read is written as the fields show it
file chassis.prm
menu Write
messages
pause a car of its own
set Form6.Text1 505
set Form6.Text2 497
set Form6.Text3 478
set Form6.Text4 470
click Form6.Command7
set Form6.Text40 -4.5
click Form6.Command11
press Form6.Text38 x
click Form6.Command8
set Form6.Text27 0
set Form6.Text22 1020
set Form6.Text33 -1.25
click Form6.Command2
click Form6.Command10
click Form6.Command3
set Form6.Text112 0
set Form6.Text113 56.25
set Form6.Text83 425
click Form6.Command24
value Car Weight
value Weight Right Rear
value Percent Cross Weight
value Cross Weight
value Vertical CG
value Weight Transfer
value Ballast X
value Unsprung Weight Left Front
value Front Roll Center Height
value Rear Sway Bar Rate
value Front Track Width
value Left Front Spring Rate
value Left Front Spring Move
file own.prm
menu Write
messages
pause other values, then the file again
set Form6.Text112 99
set Form6.Text113 77
set Form6.Text27 66
click Form6.Command24
click Form6.Command1
set Form6.Text1 800
set Form6.Text40 12
click Form6.Command7
click Form6.Command12
value Car Weight
file own.prm
answer No
menu Read
messages
get Form6.Text1
get Form6.Text4
get Form6.Text5
get Form6.Text19
get Form6.Text10
get Form6.Text40
get Form6.Text27
get Form6.Text22
get Form6.Text26
get Form6.Text33
get Form6.Text37
get Form6.Text83
get Form6.Text112
get Form6.Text113
value Car Weight
pause the weight of the car is shown when the screen opens
get Form6.Text9
click Form6.subend
menu CHASSIS
get Form6.Text9
pause and so is the G force of the skid pad
get Form6.Text31
menu GEAR
click Form5.Command13
value Skid Pad Gs
click Form6.subend
menu CHASSIS
get Form6.Text31
pause a weight transfer calculates springs anew that have changed since
click Form6.Command8
click Form6.Command10
get Form6.Text35(11)
get Form6.Text124
messages
pause a sample
file samples/road_race_four.prm
menu Read
messages
get Form6.Text1
get Form6.Text19
get Form6.Text20
get Form6.Text113
get Form6.Text83
click Form6.Command1
click Form6.Command7
get Form6.Text5
get Form6.Text19
messages
pause a command takes what is typed on every page, but for what is no number
click Form6.Command8
set Form6.Text31 0.9
set Form6.Text33 high
click Form6.Command3
set Form6.Text106 0.45
click Form6.Command1
value Skid Pad Gs
click Form6.Command12
messages
value Skid Pad Gs
value Right Rear Sway Bar Move
value Front Roll Center Height
file typed.prm
menu Write
messages
pause so it stands there when the screen opens again
click Form6.subend
menu CHASSIS
get Form6.Text31
get Form6.Text33
get Form6.Text106
menu GEAR
click Form5.subend
get Form6.Text31
pause digits behind those that are shown are kept
value Percent Weight Left Front
click Form6.Command12
value Percent Weight Left Front
pause a weight transfer leaves the spring page as it is typed
set Form6.Text33 2
click Form6.Command3
set Form6.Text83 500
set Form6.Text87 111
set Form6.Text90 none
set Form6.Text91 95
set Form6.Text94 
get Form6.Text99
get Form6.Text120
click Form6.Command8
set Form6.Text1 10
click Form6.Command10
messages
get Form6.Text87
get Form6.Text90
get Form6.Text91
get Form6.Text94
get Form6.Text99
get Form6.Text120
get Form6.Text124
get Form6.Text35(11)
get Form6.Text35(18)
click Form6.Command10
get Form6.Text35(11)
get Form6.Text35(18)
