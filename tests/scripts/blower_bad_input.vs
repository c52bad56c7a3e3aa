# What each command of the blower screen does with values that it can do nothing with: one box that
# names the field, and everything else stays.
menu Blowers
set Form14.Text3 7.5
pause no number
set Form14.Text1
click Form14.Command4
set Form14.Text1 abc
click Form14.Command5
set Form14.Text1 555.0
set Form14.Text2 1.2.3
click Form14.Command5
set Form14.Text2 0.0
set Form14.Text3 x
click Form14.Command4
click Form14.Command6
click Form14.Command7
click Form14.Command8
click Form14.Command13
click Form14.Command15
click Form14.Command17
set Form14.Text3 7.5
set Form14.Text4
click Form14.Command7
click Form14.Command9
set Form14.Text4 8.5
set Form14.Text5 --
click Form14.Command8
set Form14.Text5 10.5
set Form14.Text6 ?
click Form14.Command9
set Form14.Text6 12.8
set Form14.Text8 12x
click Form14.Command10
click Form14.Command11
click Form14.Command12
click Form14.Command18
set Form14.Text8 6500
set Form14.Text16 none
click Form14.Command16
click Form14.Command3
set Form14.Text16 0.7
set Form14.Text14
click Form14.Command16
click Form14.Command14
click Form14.Command19
click Form14.Command17
click Form14.Command2
set Form14.Text14 59.0
set Form14.Text19 cold
click Form14.Command14
click Form14.Command15
click Form14.Command20
set Form14.Text19 95
set Form14.Text22 -
click Form14.Command21
set Form14.Text22 1.05
set Form14.Text27 one
click Form14.Command1
set Form14.Text27 1.0
set Form14.Text33 fast
click Form14.Command2
set Form14.Text33 8000
messages
pause nothing was lost
get Form14.Text1
get Form14.Text2
get Form14.Text17
get Form14.Text18
get Form14.Text21
get Form14.Text24
get Form14.Text26
pause zero
set Form14.Text1 0
click Form14.Command5
click Form14.Command4
get Form14.Text1
set Form14.Text1 555.0
set Form14.Text4 0
click Form14.Command9
set Form14.Text4 8.5
set Form14.Text11 0
click Form14.Command10
set Form14.Text11 40
set Form14.Text8 0
click Form14.Command11
click Form14.Command10
get Form14.Text13
set Form14.Text13 9750
click Form14.Command12
get Form14.Text11
set Form14.Text11 40
set Form14.Text8 6500
set Form14.Text13 0
click Form14.Command12
set Form14.Text13 9750
set Form14.Text10 0
click Form14.Command12
get Form14.Text11
set Form14.Text10 60
set Form14.Text11 40
set Form14.Text15 0
click Form14.Command13
click Form14.Command15
click Form14.Command17
click Form14.Command3
set Form14.Text15 29.92
set Form14.Text16 0
click Form14.Command16
click Form14.Command3
set Form14.Text16 0.7
set Form14.Text18 59
click Form14.Command14
set Form14.Text18 -460
click Form14.Command17
click Form14.Command15
set Form14.Text18 150.7719
set Form14.Text19 -500
click Form14.Command15
click Form14.Command20
set Form14.Text19 95
set Form14.Text25 0
click Form14.Command18
set Form14.Text25 1
set Form14.Text27 0
click Form14.Command1
set Form14.Text27 1.0
set Form14.Text30 0
click Form14.Command2
set Form14.Text30 6.0
set Form14.Text33 0
click Form14.Command2
set Form14.Text33 33000
click Form14.Command3
set Form14.Text33 2000
messages
pause below zero
set Form14.Text3 -14.69595
click Form14.Command6
click Form14.Command8
click Form14.Command13
click Form14.Command15
click Form14.Command17
click Form14.Command4
get Form14.Text1
get Form14.Text2
set Form14.Text1 555.0
set Form14.Text6 4.25
click Form14.Command9
get Form14.Text3
set Form14.Text3 7.5
set Form14.Text17 -1
click Form14.Command16
set Form14.Text17 0.5
click Form14.Command16
get Form14.Text18
set Form14.Text18 150.7719
set Form14.Text20 30
click Form14.Command15
get Form14.Text22
set Form14.Text20 1.0
messages
pause too large
set Form14.Text8 40000
click Form14.Command10
click Form14.Command18
value RPM
set Form14.Text8 6500
set Form14.Text25 40000
click Form14.Command18
set Form14.Text25 1
set Form14.Text1 1e308
set Form14.Text3 1e10
click Form14.Command4
set Form14.Text1 555.0
set Form14.Text3 7.5
set Form14.Text7 1e308
click Form14.Command2
click Form14.Command18
check Form14.Check3
click Form14.Command2
set Form14.Text7 326.7256
messages
pause limits of the graph
set Form14.Text31 x
click Form14.Command2
set Form14.Text31 0
set Form14.Text32 0.5
click Form14.Command2
set Form14.Text32 1e9
click Form14.Command3
set Form14.Text32 0
messages
pause in the tables
set Form14.Text29(3) many
check Form14.Check4
click Form14.Command2
uncheck Form14.Check4
set Form14.Text34(1) 0
check Form14.Check5
uncheck Form14.Check3
click Form14.Command2
set Form14.Text33 1000
click Form14.Command2
get Form14.Check5
press Form14.Text38 x
set Form14.Text9 y
click Form14.Command22
click Form14.Command24
get Form14.Text29(3)
click Form14.Command23
messages
pause the Metric box stays off, and every value stays
check Form14.Check1
get Form14.Check1
get Form14.Text9
get Form14.Text1
set Form14.Text9 0.85
set Form14.Text18 warm
check Form14.Check1
get Form14.Check1
set Form14.Text18 65
check Form14.Check1
get Form14.Check1
get Form14.Text18
set Form14.Text18 -237.8
click Form14.Command17
messages
pause what the keys let through
type Form14.Text1 -5a.5.5
get Form14.Text1
type Form14.Text14 -5-a.5
get Form14.Text14
type Form14.Text33 7a5.00
get Form14.Text33
type Form14.Text12 5
get Form14.Text12
messages
