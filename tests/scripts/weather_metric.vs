# Presses every calculating command of the weather screen in metric, for three weathers. The
# expected values were worked out apart from the program.
menu WEATHER
pause there and back
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
check Form7.Check1
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
uncheck Form7.Check1
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
pause the fresh screen in metric
check Form7.Check1
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
pause the shared values are those of inches all the while
value Barometric Pressure
value Barometric Pressure New
value Temperature
value Temperature New
value Horse Power
pause what was typed in metric
set Form7.Text10 1006.1
set Form7.Text11 34.5
set Form7.Text12 82
set Form7.Text8 12
set Form7.Text1 834.1
set Form7.Text3 5
set Form7.Text4 35
set Form7.Text9 5280
set Form7.Text15 307.6
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
value Barometric Pressure
value Barometric Pressure New
value Temperature
value Temperature New
value Horse Power
value Horse Power Increase
pause standard air of 60 degrees, frost
choose Form7.Option1(1)
set Form7.Text10 1037
set Form7.Text11 -30
set Form7.Text12 60
set Form7.Text8 -282
set Form7.Text1 1024.4
set Form7.Text3 22
set Form7.Text4 100
set Form7.Text9 -150
set Form7.Text39 1013.25
set Form7.Text15 65.6
set Form7.Text19 1.5
set Form7.Text21 1.25
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
pause dry air of the standard
set Form7.Text10 1013.2075
set Form7.Text11 15
set Form7.Text12 20
click Form7.Command5
get Form7.Text13
get Form7.Text14
uncheck Form7.Check1
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
messages
