# What the weather screen says to values that it cannot compute with: one box for each command,
# the field is named, earlier results stay written and later ones keep their texts.
menu WEATHER
pause no number
set Form7.Text10 
click Form7.Command5
set Form7.Text10 29.92
set Form7.Text3 
click Form7.Command5
set Form7.Text3 60
set Form7.Text9 
click Form7.Command5
set Form7.Text9 80
set Form7.Text39 
click Form7.Command5
set Form7.Text39 29.92
set Form7.Text29 
click Form7.Command5
set Form7.Text29 7.25
set Form7.Text19 .
click Form7.Command9
set Form7.Text19 0.082
set Form7.Text4 wet
check Form7.Check1
get Form7.Check1
set Form7.Text4 25
messages
get Form7.Text17
get Form7.Text30
pause the pole of the vapor pressure, and below it
set Form7.Text11 -395.86
click Form7.Command5
click Form7.Command8
click Form7.Command6
set Form7.Text11 -500
click Form7.Command5
click Form7.Command8
click Form7.Command6
messages
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text20
set Form7.Text11 59
set Form7.Text3 -395.86
click Form7.Command7
messages
get Form7.Text17
get Form7.Text22
pause absolute zero and no air for the power
set Form7.Text3 -460
click Form7.Command1
set Form7.Text3 60
set Form7.Text11 -460
click Form7.Command1
set Form7.Text11 59
set Form7.Text10 0
click Form7.Command3
set Form7.Text10 29.92
set Form7.Text1 0
click Form7.Command3
set Form7.Text1 29.62
messages
get Form7.Text18
pause no air: the dew point is written, the corrections keep their texts
set Form7.Text10 0
set Form7.Text11 70
set Form7.Text12 50
click Form7.Command5
messages
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text42
set Form7.Text10 0.3
click Form7.Command5
click Form7.Command8
messages
set Form7.Text10 29.92
set Form7.Text12 5000
click Form7.Command5
messages
set Form7.Text10 0.3
set Form7.Text12 0
click Form7.Command5
messages
set Form7.Text10 29.92
set Form7.Text11 59
set Form7.Text12 5
set Form7.Text1 0.3
set Form7.Text3 90
set Form7.Text4 50
click Form7.Command6
click Form7.Command12
set Form7.Text1 29.62
set Form7.Text4 9000
click Form7.Command10
set Form7.Text1 0
set Form7.Text4 25
click Form7.Command13
set Form7.Text1 29.62
set Form7.Text3 60
messages
get Form7.Text2
get Form7.Text20
pause no standard pressure: what comes before it is written
set Form7.Text39 0
set Form7.Text11 80
set Form7.Text12 40
click Form7.Command5
click Form7.Command11
messages
get Form7.Text25
get Form7.Text16
get Form7.Text10
set Form7.Text39 -1
click Form7.Command5
click Form7.Command11
messages
set Form7.Text39 29.92
pause above the standard atmosphere
set Form7.Text8 200000
click Form7.Command11
set Form7.Text8 145443
click Form7.Command11
messages
get Form7.Text10
pause jets and rods that do not fit
set Form7.Text19 0
click Form7.Command6
click Form7.Command12
set Form7.Text19 0.03
set Form7.Text21 0.04
click Form7.Command7
click Form7.Command13
click Form7.Command12
messages
click Form7.Command6
get Form7.Text20
set Form7.Text19 82
click Form7.Command12
set Form7.Text19 0.082
set Form7.Text21 0.01
set Form7.Text1 30.5
set Form7.Text3 -20
click Form7.Command7
messages
get Form7.Text22
set Form7.Text10 12
click Form7.Command12
messages
get Form7.Text43
set Form7.Text10 29.92
pause pulleys of no size
set Form7.Text27 0
click Form7.Command9
set Form7.Text27 7.25
set Form7.Text29 0
click Form7.Command9
messages
get Form7.Text30
get Form7.Text31
get Form7.Text32
set Form7.Text29 7.25
set Form7.Text26 0
click Form7.Command9
messages
get Form7.Text30
get Form7.Text31
get Form7.Text32
set Form7.Text26 5.25
pause too large
set Form7.Text15 1e308
set Form7.Text11 59
set Form7.Text3 -459
click Form7.Command1
set Form7.Text15 555
set Form7.Text3 60
set Form7.Text10 1e308
click Form7.Command5
set Form7.Text10 29.92
set Form7.Text11 1e308
click Form7.Command5
set Form7.Text11 59
set Form7.Text12 1e308
set Form7.Text10 1e300
click Form7.Command12
messages
get Form7.Text43
pause a rod of less than nothing
set Form7.Text10 29.92
set Form7.Text12 5.0
set Form7.Text21 -0.05
click Form7.Command7
click Form7.Command13
click Form7.Command12
get Form7.Text22
messages
