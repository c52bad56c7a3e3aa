# What the compression gauge screen says to values that it cannot compute with: one box for
# each command, the field is named, and what cannot be reached changes nothing.
menu CompGauge
pause a ratio of 1
set Form12.Text17 1
click Form12.Command18
click Form12.Command8
click Form12.Command2
messages
get Form12.Text35
get Form12.Text36
set Form12.Text17 13.5
pause a dynamic ratio at, above and far below the ratio
set Form12.Text45 13.5
click Form12.Command1
set Form12.Text45 14
click Form12.Command1
set Form12.Text45 0.5
click Form12.Command1
set Form12.Text22 0.1
click Form12.Command1
messages
get Form12.Text36
set Form12.Text22 0
set Form12.Text45 7.432
pause readings that no closing angle gives
set Form12.Text35 14
click Form12.Command2
set Form12.Text35 5000
click Form12.Command2
set Form12.Text35 0
check Form12.Check2
click Form12.Command2
uncheck Form12.Check2
messages
get Form12.Text35
get Form12.Text36
get Form12.Text33
set Form12.Text35 165.5
pause no bore
set Form12.Text1 0
click Form12.Command18
click Form12.Command19
click Form12.Command1
click Form12.Command2
choose Form12.Option1(0)
click Form12.Command6
messages
set Form12.Text1 4
pause a rod that is too short, an offset that is too large
set Form12.Text4 1.6
click Form12.Command18
click Form12.Command1
click Form12.Command2
set Form12.Text4 1.625
click Form12.Command18
set Form12.Text4 5.7
set Form12.Text22 6
click Form12.Command19
click Form12.Command1
click Form12.Command6
messages
set Form12.Text22 0
pause no stroke becomes the smallest
set Form12.Text3 0
click Form12.Command7
value Stroke
messages
set Form12.Text3 3.25
pause no air outside
set Form12.Text30 0
click Form12.Command19
click Form12.Command2
choose Form12.Option1(4)
click Form12.Command6
set Form12.Text30 29.92
messages
pause no number
set Form12.Text32 
click Form12.Command18
set Form12.Text32 5
set Form12.Text6 warm
click Form12.Command18
set Form12.Text6 120
messages
pause graphs out of range
choose Form12.Option1(0)
set Form12.Text36 171
click Form12.Command6
set Form12.Text36 95.5
choose Form12.Option1(8)
set Form12.Text10 180
click Form12.Command6
choose Form12.Option1(13)
set Form12.Text10 0
click Form12.Command6
set Form12.Text10 10
choose Form12.Option1(5)
set Form12.Text35 5000
click Form12.Command6
set Form12.Text35 165.5
check Form12.Check3
choose Form12.Option1(4)
set Form12.Text13 0
click Form12.Command6
choose Form12.Option1(6)
set Form12.Text13 0.5
click Form12.Command6
messages
pause Weather without any pressure left
menu CompGauge
set Form12.Text30 29.92
set Form12.Text31 500
set Form12.Text32 500
click Form12.Command8
click Form12.Command9
messages
pause Ratios and readings that no engine has
set Form12.Text31 59
set Form12.Text32 5
set Form12.Text17 0.5
click Form12.Command18
set Form12.Text17 0
click Form12.Command8
set Form12.Text17 11
set Form12.Text35 14
click Form12.Command19
set Form12.Text35 0
click Form12.Command9
set Form12.Text35 15
click Form12.Command19
messages
get Form12.Text17
set Form12.Text45 0
click Form12.Command7
messages
get Form12.Text17
pause Air as hot as an oven
set Form12.Text17 11
set Form12.Text31 9999
click Form12.Command8
messages
get Form12.Text17
pause What is refused shows nothing of the weather
set Form12.Text31 70
set Form12.Text32 50
set Form12.Text35 0
click Form12.Command9
messages
get Form12.Text33
set Form12.Text35 165.5
click Form12.Command9
get Form12.Text33
