# Whatever is typed into the chassis screen ends in one box that names the field, and nothing typed
# is lost.
menu CHASSIS
pause percentages that do not add up change nothing
set Form6.Text5 26.5
click Form6.Command6
messages
get Form6.Text1
get Form6.Text5
value Percent Weight Left Front
value Weight Left Front
set Form6.Text5 27.005
click Form6.Command6
messages
set Form6.Text5 26.995
click Form6.Command6
messages
pause the limits pass
set Form6.Text5 27.004
click Form6.Command6
messages
get Form6.Text1
get Form6.Text14
set Form6.Text5 26.996
click Form6.Command6
messages
get Form6.Text1
pause no percentages at all
set Form6.Text5 
click Form6.Command6
messages
set Form6.Text5 0
set Form6.Text6 0
set Form6.Text7 0
set Form6.Text8 0
click Form6.Command6
messages
set Form6.Text5 -27
set Form6.Text6 80
set Form6.Text7 24
set Form6.Text8 23
click Form6.Command6
messages
set Form6.Text5 27
set Form6.Text6 26
pause a car without weight
set Form6.Text9 0
click Form6.Command6
messages
click Form6.Command9
messages
get Form6.Text1
set Form6.Text9 2350
set Form6.Text1 0
set Form6.Text2 0
set Form6.Text3 0
set Form6.Text4 0
click Form6.Command7
messages
get Form6.Text9
pause a motorcycle stands on two
set Form6.Text1 300
set Form6.Text3 340
click Form6.Command7
messages
get Form6.Text9
get Form6.Text19
get Form6.Text17
set Form6.Text2 2.5.1
click Form6.Command7
messages
set Form6.Text2 -10
click Form6.Command7
messages
set Form6.Text2 1e308
set Form6.Text4 1e308
click Form6.Command7
messages
set Form6.Text1 634.5
set Form6.Text2 611
set Form6.Text3 564
set Form6.Text4 540.5
click Form6.Command7
messages
pause targets that no car can have
set Form6.Text16 20
set Form6.Text19 90
click Form6.Command9
messages
get Form6.Text1
set Form6.Text16 120
set Form6.Text19 50
click Form6.Command9
messages
set Form6.Text16 all of it
click Form6.Command9
messages
set Form6.Text16 51
click Form6.Command9
messages
pause ballast
set Form6.Text20 0
click Form6.Command11
messages
get Form6.Text38
click Form6.Command5
messages
set Form6.Text20 108
set Form6.Text21 0
click Form6.Command11
messages
set Form6.Text21 60
set Form6.Text40 ahead
click Form6.Command11
messages
set Form6.Text40 -2000
click Form6.Command5
messages
get Form6.Text1
set Form6.Text40 0
click Form6.Command11
show Form6.Text38
press Form6.Text38 x
set Form6.Text1 nothing
click Form6.Command11
show Form6.Text38
press Form6.Text38 x
click Form6.Command5
messages
set Form6.Text1 634.5
set Form6.Text15 rear
click Form6.Command12
messages
set Form6.Text15 47
pause lifting
click Form6.Command8
set Form6.Text24 0
click Form6.Command2
messages
set Form6.Text24 12
click Form6.Command2
messages
click Form6.Command4
messages
set Form6.Text24 20
set Form6.Text22 1190
click Form6.Command2
messages
get Form6.Text26
set Form6.Text22 
click Form6.Command2
messages
set Form6.Text22 1278
set Form6.Text27 2350
click Form6.Command2
messages
set Form6.Text27 75
set Form6.Text9 0
click Form6.Command2
messages
set Form6.Text9 2350
click Form6.Command2
messages
pause a field at fault on another page brings its page
state Form6.Text26
set Form6.Text95 half
click Form6.Command10
messages
state Form6.Text95
state Form6.Text26
set Form6.Text95 0.8
click Form6.Command8
pause weight transfer
set Form6.Text113 0
click Form6.Command8
click Form6.Command10
messages
set Form6.Text113 175
set Form6.Text21 0
click Form6.Command8
click Form6.Command10
messages
set Form6.Text21 60
set Form6.Text20 0
click Form6.Command8
click Form6.Command10
messages
set Form6.Text20 108
set Form6.Text31 fast
click Form6.Command8
click Form6.Command10
messages
set Form6.Text31 0
set Form6.Text32 0
click Form6.Command8
click Form6.Command10
messages
get Form6.Text37
get Form6.Text35(11)
get Form6.Text35(18)
get Form6.Text35(26)
pause springs
click Form6.Command3
set Form6.Text83 0
click Form6.Command24
messages
set Form6.Text83 -800
click Form6.Command24
messages
set Form6.Text83 soft
click Form6.Command24
messages
set Form6.Text83 800
set Form6.Text28 700
click Form6.Command24
messages
state Form6.Text28
set Form6.Text28 75
click Form6.Command3
set Form6.Text113 0
set Form6.Text114 0
click Form6.Command24
messages
set Form6.Text113 60
set Form6.Text114 60
set Form6.Text91 0
click Form6.Command25
messages
set Form6.Text91 many
click Form6.Command25
messages
set Form6.Text91 120
click Form6.Command25
messages
set Form6.Text95 0
click Form6.Command26
messages
set Form6.Text95 0.8
set Form6.Text87 
click Form6.Command26
messages
set Form6.Text87 512
click Form6.Command26
messages
set Form6.Text46 0
click Form6.Command27
messages
set Form6.Text46 14
set Form6.Text48 steep
click Form6.Command27
messages
pause commands of pages that are not shown do nothing
click Form6.Command7
messages
get Form6.Text48
state Form6.Command7
state Form6.Command1
state Form6.Command8
set Form6.Text48 63.5
pause a sum just beyond the limit, and one beyond all cars
set Form6.Text5 25.00400000000001
set Form6.Text6 25.00000000000001
set Form6.Text7 25
set Form6.Text8 25
click Form6.Command1
click Form6.Command6
messages
set Form6.Text6 1e300
click Form6.Command1
click Form6.Command6
messages
set Form6.Text5 27
set Form6.Text6 26
set Form6.Text7 24
set Form6.Text8 23
set Form6.Text16 1e300
click Form6.Command1
click Form6.Command9
messages
set Form6.Text16 51
set Form6.Text9 1e308
click Form6.Command1
click Form6.Command6
messages
click Form6.Command1
click Form6.Command9
messages
set Form6.Text9 -2350
click Form6.Command1
click Form6.Command6
messages
click Form6.Command1
click Form6.Command9
messages
set Form6.Text9 2350
pause ballast beyond all cars
set Form6.Text40 1e300
click Form6.Command1
click Form6.Command11
messages
set Form6.Text40 27
set Form6.Text41 -1e300
click Form6.Command1
click Form6.Command11
messages
set Form6.Text41 30
set Form6.Text39 1e308
set Form6.Text40 1000000
click Form6.Command1
click Form6.Command11
messages
set Form6.Text39 100
set Form6.Text40 27
set Form6.Text21 0
click Form6.Command1
click Form6.Command5
messages
set Form6.Text21 60
set Form6.Text4 -10
click Form6.Command1
click Form6.Command5
messages
set Form6.Text4 540.5
pause the heights of the lift come before what they make of the weights
set Form6.Text23 25
click Form6.Command8
click Form6.Command4
messages
set Form6.Text23 -1
click Form6.Command8
click Form6.Command4
messages
set Form6.Text23 12
set Form6.Text24 -20
click Form6.Command8
click Form6.Command2
messages
set Form6.Text24 20
set Form6.Text22 0
click Form6.Command8
click Form6.Command2
messages
set Form6.Text22 1278
set Form6.Text9 -2350
click Form6.Command8
click Form6.Command4
messages
set Form6.Text9 2350
set Form6.Text10 -1
click Form6.Command8
click Form6.Command4
messages
set Form6.Text10 1245.5
pause an unsprung weight at fault is named by its own corner
set Form6.Text28 -5
click Form6.Command8
click Form6.Command2
messages
set Form6.Text28 75
set Form6.Text29 1e300
click Form6.Command8
click Form6.Command2
messages
click Form6.Command8
click Form6.Command4
messages
click Form6.Command8
click Form6.Command10
messages
click Form6.Command3
click Form6.Command24
messages
set Form6.Text29 -5
click Form6.Command3
click Form6.Command25
messages
set Form6.Text29 0
click Form6.Command3
click Form6.Command25
messages
set Form6.Text29 80
pause so are rates and movements
set Form6.Text84 0
click Form6.Command3
click Form6.Command24
messages
click Form6.Command8
click Form6.Command10
messages
set Form6.Text84 800
set Form6.Text85 -5
click Form6.Command3
click Form6.Command24
messages
set Form6.Text85 600
set Form6.Text98 0
click Form6.Command3
click Form6.Command24
messages
click Form6.Command3
click Form6.Command26
messages
set Form6.Text98 -5
click Form6.Command3
click Form6.Command26
messages
set Form6.Text98 1e300
click Form6.Command3
click Form6.Command24
messages
click Form6.Command8
click Form6.Command10
messages
set Form6.Text98 0.6
set Form6.Text105 1e300
click Form6.Command3
click Form6.Command24
messages
set Form6.Text105 -5
click Form6.Command3
click Form6.Command24
messages
set Form6.Text105 0.55
set Form6.Text112 -5
click Form6.Command3
click Form6.Command24
messages
set Form6.Text112 175
set Form6.Text94 1e300
click Form6.Command3
click Form6.Command25
messages
set Form6.Text94 0
click Form6.Command3
click Form6.Command25
messages
set Form6.Text94 -5
click Form6.Command3
click Form6.Command25
messages
set Form6.Text94 120
set Form6.Text88 -5
click Form6.Command3
click Form6.Command26
messages
set Form6.Text88 512
set Form6.Text114 1e300
click Form6.Command3
click Form6.Command24
messages
set Form6.Text114 60
set Form6.Text113 1e300
click Form6.Command3
click Form6.Command24
messages
pause the tracks and the chassis are named with what they divide
set Form6.Text113 0
click Form6.Command8
click Form6.Command10
messages
set Form6.Text113 60
set Form6.Text114 0
click Form6.Command8
click Form6.Command10
messages
set Form6.Text114 60
set Form6.Text33 1e308
set Form6.Text34 -1e308
click Form6.Command8
click Form6.Command10
messages
set Form6.Text33 2
set Form6.Text34 9
set Form6.Text9 0
click Form6.Command8
click Form6.Command10
messages
set Form6.Text9 2350
pause and all is well again
click Form6.Command8
click Form6.Command10
messages
click Form6.Command3
click Form6.Command24
messages
