# What the air and fuel screen does with values it cannot compute with: one box that names the
# field, what earlier steps wrote stays, and nothing that was typed is lost.
menu AIRFUEL
pause an empty field keeps the keyboard, and a click goes nowhere
set Form4.Text1 
click Form4.Command8
messages
get Form4.Text5
set Form4.Text1 .
click Form4.Command8
messages
get Form4.Text5
pause a number with two points is told when it is read
set Form4.Text1 3.2.7
click Form4.Command8
messages
get Form4.Text1
pause so does one that only commands of a panel read
set Form4.Text1 327
set Form4.Text20 
click Form4.Command99
get Form4.Text10
get Form4.Text20
messages
set Form4.Text20 210.0
click Form4.Command99
get Form4.Text10
messages
pause a count of cylinders that rounds to none is named
set Form4.Text29 .45
click Form4.Command6
click Form4.Command15
messages
pause no cylinders: nothing is shown
set Form4.Text29 0
click Form4.Command6
click Form4.Command15
click Form4.Command16
messages
get Form4.Text19
get Form4.Text27
click Form4.Command17
get Form4.Text3
click Form4.Command123
messages
set Form4.Text29 8
pause no engine size: two flows were computed, none is shown
set Form4.Text3 500
set Form4.Text1 0
click Form4.Command6
messages
get Form4.Text19
get Form4.Text20
get Form4.Text27
value Intake Flow
value Exhaust Flow
click Form4.Command65
click Form4.Command82
click Form4.Command88
messages
click Form4.Command54
messages
set Form4.Text1 327
pause no vacuum: the first size stands
set Form4.Text124 0
click Form4.Command8
get Form4.Text5
get Form4.Text86
click Form4.Command27
messages
set Form4.Text124 1
pause runner, filter and depression
set Form4.Text33 0
click Form4.Command9
set Form4.Text33 2
set Form4.Text32 0
click Form4.Command9
set Form4.Text27 0
click Form4.Command28
set Form4.Text35 0
click Form4.Command14
click Form4.Command24
set Form4.Text15 0
click Form4.Command1
messages
get Form4.Text34
get Form4.Text36
get Form4.Text37
get Form4.Text18
pause no mixture, no fuel consumption: the air stands, and then the fuel
set Form4.Text30 0
click Form4.Command54
get Form4.Text80
get Form4.Text69
set Form4.Text30 12.5
set Form4.Text10 0
click Form4.Command54
get Form4.Text69
get Form4.Text3
messages
click Form4.Command36
messages
state Form4.Text78
press Form4.Text78 x
click Form4.Command38
click Form4.Command42
click Form4.Command123
messages
set Form4.Text10 .08
pause a column at exactly 0
click Form4.Command38
messages
set Form4.Text10 .5
set Form4.Text30 .6
choose Form4.Option8(0)
click Form4.Command36
press Form4.Text78 x
set Form4.Text30 0
click Form4.Command36
click Form4.Command38
click Form4.Command42
messages
set Form4.Text30 12.5
pause speeds beyond counting
set Form4.Text2 32000
click Form4.Command36
messages
choose Form4.Option8(2)
click Form4.Command38
messages
choose Form4.Option8(1)
click Form4.Command36
messages
press Form4.Text78 x
set Form4.Text2 32767
click Form4.Command36
messages
click Form4.Command42
messages
press Form4.Text78 x
pause a dyno sheet that would begin at 0 RPM
set Form4.Text2 1200
click Form4.Command123
messages
set Form4.Text2 1301
click Form4.Command123
messages
press Form4.Text78 x
pause colder than cold, and numbers out of all proportion
set Form4.Text71 -500
click Form4.Command54
set Form4.Text71 59
set Form4.Text2 6500
set Form4.Text11 99999999999999999999
click Form4.Command36
set Form4.Text11 .85
set Form4.Text1 1e300
set Form4.Text3 1e200
click Form4.Command8
set Form4.Text79 1e200
click Form4.Command38
messages
pause quit works whatever a field is left with
set Form4.Text1 
click Form4.subend
messages
state Form4.Text1
