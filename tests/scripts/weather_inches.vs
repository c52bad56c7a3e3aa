# Presses every calculating command of the weather screen for four weathers, in inches of mercury
# and Fahrenheit. The expected values were worked out apart from the program.
menu WEATHER
pause a fresh screen
get Form7.Text10
get Form7.Text11
get Form7.Text12
get Form7.Text8
get Form7.Text1
get Form7.Text3
get Form7.Text4
get Form7.Text9
get Form7.Text39
get Form7.Text15
get Form7.Text18
get Form7.Text19
get Form7.Text21
get Form7.Text20
get Form7.Text22
get Form7.Text17
get Form7.Text13
get Form7.Text33
get Form7.Text14
get Form7.Text40
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text2
get Form7.Text16
get Form7.Text6
get Form7.Text36
get Form7.Text37
get Form7.Text34
get Form7.Text41
get Form7.Text42
get Form7.Text26
get Form7.Text27
get Form7.Text28
get Form7.Text29
get Form7.Text30
get Form7.Text31
get Form7.Text32
get Form7.Option1
get Form7.Check1
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text16
get Form7.Text2
get Form7.Text6
get Form7.Text33
get Form7.Text34
get Form7.Text36
get Form7.Text37
get Form7.Text40
get Form7.Text41
get Form7.Text42
click Form7.Command8
get Form7.Text17
get Form7.Text13
get Form7.Text2
click Form7.Command1
get Form7.Text18
click Form7.Command2
get Form7.Text18
click Form7.Command3
get Form7.Text18
click Form7.Command4
get Form7.Text18
click Form7.Command6
get Form7.Text20
click Form7.Command10
get Form7.Text20
click Form7.Command13
get Form7.Text20
click Form7.Command7
get Form7.Text22
click Form7.Command9
get Form7.Text30
get Form7.Text31
get Form7.Text32
click Form7.Command11
get Form7.Text10
pause what it shares
value Barometric Pressure
value Barometric Pressure New
value Temperature
value Temperature New
value Humidity
value Humidity New
value Altitude
value Altitude New
value Horse Power
value Horse Power Increase
value Jet Size
value Metering Rod Size
value Crank Pulley
value Accessory Pulley
value New Crank Pulley
value New Accessory Pulley
pause a hot and humid day at the sea, then a cool morning in the mountains
set Form7.Text10 29.71
set Form7.Text11 94
set Form7.Text12 82
set Form7.Text8 12
set Form7.Text1 24.63
set Form7.Text3 41
set Form7.Text4 35
set Form7.Text9 5280
set Form7.Text15 412.5
set Form7.Text19 0.0785
set Form7.Text21 0.0425
set Form7.Text26 6.5
set Form7.Text27 3.25
set Form7.Text28 6.5
set Form7.Text29 2.95
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text16
get Form7.Text2
get Form7.Text6
get Form7.Text33
get Form7.Text34
get Form7.Text36
get Form7.Text37
get Form7.Text40
get Form7.Text41
get Form7.Text42
click Form7.Command8
get Form7.Text17
get Form7.Text13
get Form7.Text2
click Form7.Command1
get Form7.Text18
click Form7.Command2
get Form7.Text18
click Form7.Command3
get Form7.Text18
click Form7.Command4
get Form7.Text18
click Form7.Command6
get Form7.Text20
click Form7.Command10
get Form7.Text20
click Form7.Command13
get Form7.Text20
click Form7.Command7
get Form7.Text22
click Form7.Command9
get Form7.Text30
get Form7.Text31
get Form7.Text32
click Form7.Command11
get Form7.Text10
pause the other way round, with standard air of 60 degrees
set Form7.Text10 24.63
set Form7.Text11 41
set Form7.Text12 35
set Form7.Text8 5280
set Form7.Text1 29.71
set Form7.Text3 94
set Form7.Text4 82
set Form7.Text9 12
set Form7.Text39 30.01
set Form7.Text15 1250
set Form7.Text19 .140
set Form7.Text21 .06
set Form7.Text26 2.75
set Form7.Text27 5.5
set Form7.Text28 2.5
set Form7.Text29 5.5
choose Form7.Option1(1)
get Form7.Option1
get Form7.Text39
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text16
get Form7.Text2
get Form7.Text6
get Form7.Text33
get Form7.Text34
get Form7.Text36
get Form7.Text37
get Form7.Text40
get Form7.Text41
get Form7.Text42
click Form7.Command8
get Form7.Text17
get Form7.Text13
get Form7.Text2
click Form7.Command1
get Form7.Text18
click Form7.Command2
get Form7.Text18
click Form7.Command3
get Form7.Text18
click Form7.Command4
get Form7.Text18
click Form7.Command6
get Form7.Text20
click Form7.Command10
get Form7.Text20
click Form7.Command13
get Form7.Text20
click Form7.Command7
get Form7.Text22
click Form7.Command9
get Form7.Text30
get Form7.Text31
get Form7.Text32
click Form7.Command11
get Form7.Text10
pause frost in a valley below the sea, and saturated air
choose Form7.Option1(0)
set Form7.Text10 30.62
set Form7.Text11 -22
set Form7.Text12 60
set Form7.Text8 -282
set Form7.Text1 30.25
set Form7.Text3 71.5
set Form7.Text4 100
set Form7.Text9 -150
set Form7.Text39 29.92126
set Form7.Text15 88
set Form7.Text19 1.5
set Form7.Text21 1.25
set Form7.Text26 4
set Form7.Text27 4
set Form7.Text28 4
set Form7.Text29 4
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text16
get Form7.Text2
get Form7.Text6
get Form7.Text33
get Form7.Text34
get Form7.Text36
get Form7.Text37
get Form7.Text40
get Form7.Text41
get Form7.Text42
click Form7.Command8
get Form7.Text17
get Form7.Text13
get Form7.Text2
click Form7.Command1
get Form7.Text18
click Form7.Command2
get Form7.Text18
click Form7.Command3
get Form7.Text18
click Form7.Command4
get Form7.Text18
click Form7.Command6
get Form7.Text20
click Form7.Command10
get Form7.Text20
click Form7.Command13
get Form7.Text20
click Form7.Command7
get Form7.Text22
click Form7.Command9
get Form7.Text30
get Form7.Text31
get Form7.Text32
click Form7.Command11
get Form7.Text10
pause the inverse: the barometer at an altitude has that pressure altitude
set Form7.Text8 10000
set Form7.Text39 29.92
click Form7.Command11
get Form7.Text10
click Form7.Command5
get Form7.Text34
messages
