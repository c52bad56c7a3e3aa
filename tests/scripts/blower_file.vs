# What the blower screen shares, and what goes to the parameter file and comes back.
pause the engine comes from its screen
menu CubicInch
set Form1.Text1 3.5
set Form1.Text27 300
set Form1.Text5 7000
click Form1.Command1
click Form1.subend
menu Blowers
get Form14.Text7
get Form14.Text1
get Form14.Text8
set Form14.Text3 12
set Form14.Text5 9.75
set Form14.Text16 0.65
set Form14.Text25 2
set Form14.Text30 5.5
set Form14.Text31 1500
set Form14.Text32 3.5
set Form14.Text33 9000
set Form14.Text29(2) 0.815
set Form14.Text34(53) 7.25
choose Form14.Option1(1)
check Form14.Check2
check Form14.Check3
check Form14.Check4
check Form14.Check5
click Form14.Command13
click Form14.Command16
click Form14.Command17
click Form14.Command10
value Blower Pressure
value Pressure Ratio
value IC In Temp
value Blower Density Ratio
value Blower Ratio
value Blower RPM
pause closed and opened again, it keeps what it showed
click Form14.subend
menu Blowers
get Form14.Text3
get Form14.Text17
get Form14.Text25
get Form14.Text30
file blower.prm
menu Write
messages
pause other values, then the file again
set Form14.Text3 1
set Form14.Text5 1
set Form14.Text16 1
set Form14.Text17 1
set Form14.Text25 1
set Form14.Text29(2) 0.1
set Form14.Text34(53) 1
choose Form14.Option1(0)
uncheck Form14.Check2
uncheck Form14.Check3
uncheck Form14.Check4
uncheck Form14.Check5
set Form14.Text31 0
set Form14.Text32 0
set Form14.Text33 1000
click Form14.Command2
file blower.prm
answer No
menu Read
messages
get Form14.Text3
get Form14.Text5
get Form14.Text10
get Form14.Text11
get Form14.Text12
get Form14.Text13
get Form14.Text16
get Form14.Text17
get Form14.Text18
get Form14.Text19
get Form14.Text20
get Form14.Text23
get Form14.Text25
get Form14.Text29(0)
get Form14.Text29(2)
get Form14.Text34(0)
get Form14.Text34(53)
get Form14.Text30
get Form14.Text31
get Form14.Text32
get Form14.Text33
get Form14.Option1
get Form14.Check2
get Form14.Check3
get Form14.Check4
get Form14.Check5
value Blower Option
value Rotary 2-Stroke
value Max RPM
value VE RPM 2
pause other screens and the file have inches while this one is metric
check Form14.Check1
get Form14.Text3
get Form14.Text15
get Form14.Text20
menu WEATHER
get Form7.Text10
file blower-metric.prm
menu Write
get Form14.Text3
click Form14.Command13
get Form14.Text17
click Form14.subend
value Blower Pressure
value Barometric Pressure
file blower-metric.prm
menu Read
value Blower Pressure
value IC Pressure Loss
messages
