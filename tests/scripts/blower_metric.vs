# The same commands in Metric: power in kW, boost in kPa, the barometer in mbar, cc, Celsius.
# The expected values were worked out apart from the program.
menu Blowers
set Form14.Text1 555.0
set Form14.Text2 0.0
set Form14.Text3 7.5
set Form14.Text4 8.5
set Form14.Text5 10.5
set Form14.Text6 12.83793
set Form14.Text7 326.7256
set Form14.Text8 6500
set Form14.Text9 0.85
set Form14.Text10 60
set Form14.Text11 40
set Form14.Text13 9750
set Form14.Text14 59.0
set Form14.Text15 29.92
set Form14.Text16 0.7
set Form14.Text17 1.510366
set Form14.Text18 150.7719
set Form14.Text19 95
set Form14.Text20 1.0
set Form14.Text21 0.607723
set Form14.Text22 1.050908
set Form14.Text23 1.283425
set Form14.Text25 1
check Form14.Check1
get Form14.Text1
get Form14.Text2
get Form14.Text3
get Form14.Text4
get Form14.Text5
get Form14.Text6
get Form14.Text7
get Form14.Text8
get Form14.Text9
get Form14.Text10
get Form14.Text11
get Form14.Text12
get Form14.Text13
get Form14.Text14
get Form14.Text15
get Form14.Text16
get Form14.Text17
get Form14.Text18
get Form14.Text19
get Form14.Text20
get Form14.Text21
get Form14.Text22
get Form14.Text23
get Form14.Text24
get Form14.Text25
get Form14.Text26
get Form14.Text27
get Form14.Text28
uncheck Form14.Check1
get Form14.Text1
get Form14.Text3
get Form14.Text7
get Form14.Text14
get Form14.Text15
get Form14.Text18
get Form14.Text19
get Form14.Text20
check Form14.Check1
pause its own engine
set Form14.Text1 413.86
set Form14.Text3 51.71
set Form14.Text4 8.5
set Form14.Text5 10.5
set Form14.Text7 5354
set Form14.Text8 6500
set Form14.Text9 0.85
set Form14.Text10 60
set Form14.Text11 40
set Form14.Text14 15.0
set Form14.Text15 1013.2
set Form14.Text16 0.7
set Form14.Text19 35
set Form14.Text20 6.895
set Form14.Text25 1
click Form14.Command4
get Form14.Text2
get Form14.Text1
click Form14.Command5
get Form14.Text3
click Form14.Command6
get Form14.Text1
click Form14.Command7
get Form14.Text6
click Form14.Command9
get Form14.Text3
click Form14.Command8
get Form14.Text4
click Form14.Command10
get Form14.Text12
get Form14.Text13
click Form14.Command11
get Form14.Text10
get Form14.Text12
click Form14.Command12
get Form14.Text11
get Form14.Text12
click Form14.Command13
get Form14.Text17
click Form14.Command16
get Form14.Text18
click Form14.Command17
get Form14.Text23
click Form14.Command14
get Form14.Text21
click Form14.Command19
get Form14.Text19
click Form14.Command15
get Form14.Text22
click Form14.Command21
get Form14.Text24
click Form14.Command18
get Form14.Text26
pause a turbocharged four
set Form14.Text1 142.8
set Form14.Text3 98.25
set Form14.Text4 8.05
set Form14.Text5 10.1
set Form14.Text7 1997.5
set Form14.Text8 6800
set Form14.Text9 0.925
set Form14.Text10 62
set Form14.Text11 31.5
set Form14.Text14 29.15
set Form14.Text15 986.1
set Form14.Text16 0.715
set Form14.Text19 48.05
set Form14.Text20 9.3
set Form14.Text25 1
click Form14.Command4
get Form14.Text2
get Form14.Text1
click Form14.Command5
get Form14.Text3
click Form14.Command6
get Form14.Text1
click Form14.Command7
get Form14.Text6
click Form14.Command9
get Form14.Text3
click Form14.Command8
get Form14.Text4
click Form14.Command10
get Form14.Text12
get Form14.Text13
click Form14.Command11
get Form14.Text10
get Form14.Text12
click Form14.Command12
get Form14.Text11
get Form14.Text12
click Form14.Command13
get Form14.Text17
click Form14.Command16
get Form14.Text18
click Form14.Command17
get Form14.Text23
click Form14.Command14
get Form14.Text21
click Form14.Command19
get Form14.Text19
click Form14.Command15
get Form14.Text22
click Form14.Command21
get Form14.Text24
click Form14.Command18
get Form14.Text26
pause a V8 with two turbos on a cold day
set Form14.Text1 538.4
set Form14.Text3 127.55
set Form14.Text4 7.25
set Form14.Text5 11.5
set Form14.Text7 8855.1
set Form14.Text8 6250
set Form14.Text9 0.96
set Form14.Text10 57
set Form14.Text11 61
set Form14.Text14 -24.7
set Form14.Text15 1031.15
set Form14.Text16 0.62
set Form14.Text19 22.35
set Form14.Text20 5.85
set Form14.Text25 2
click Form14.Command4
get Form14.Text2
get Form14.Text1
click Form14.Command5
get Form14.Text3
click Form14.Command6
get Form14.Text1
click Form14.Command7
get Form14.Text6
click Form14.Command9
get Form14.Text3
click Form14.Command8
get Form14.Text4
click Form14.Command10
get Form14.Text12
get Form14.Text13
click Form14.Command11
get Form14.Text10
get Form14.Text12
click Form14.Command12
get Form14.Text11
get Form14.Text12
click Form14.Command13
get Form14.Text17
click Form14.Command16
get Form14.Text18
click Form14.Command17
get Form14.Text23
click Form14.Command14
get Form14.Text21
click Form14.Command19
get Form14.Text19
click Form14.Command15
get Form14.Text22
click Form14.Command21
get Form14.Text24
click Form14.Command18
get Form14.Text26
pause a rotary engine
set Form14.Text1 109.05
set Form14.Text3 39.65
set Form14.Text4 9.0
set Form14.Text5 9.7
set Form14.Text7 1307.7
set Form14.Text8 8750
set Form14.Text9 1.045
set Form14.Text10 48
set Form14.Text11 25
set Form14.Text14 21.65
set Form14.Text15 968.5
set Form14.Text16 0.74
set Form14.Text19 40
set Form14.Text20 2.75
set Form14.Text25 1
check Form14.Check2
click Form14.Command4
get Form14.Text2
get Form14.Text1
click Form14.Command5
get Form14.Text3
click Form14.Command6
get Form14.Text1
click Form14.Command7
get Form14.Text6
click Form14.Command9
get Form14.Text3
click Form14.Command8
get Form14.Text4
click Form14.Command10
get Form14.Text12
get Form14.Text13
click Form14.Command11
get Form14.Text10
get Form14.Text12
click Form14.Command12
get Form14.Text11
get Form14.Text12
click Form14.Command13
get Form14.Text17
click Form14.Command16
get Form14.Text18
click Form14.Command17
get Form14.Text23
click Form14.Command14
get Form14.Text21
click Form14.Command19
get Form14.Text19
click Form14.Command15
get Form14.Text22
click Form14.Command21
get Form14.Text24
click Form14.Command18
get Form14.Text26
uncheck Form14.Check2
pause a cc is 0.061023744 cubic inches
set Form14.Text7 5354
uncheck Form14.Check1
value Cubic Inches
get Form14.Text7
messages
