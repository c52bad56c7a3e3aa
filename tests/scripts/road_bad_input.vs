# What the road charts and the dyno sheet refuse.
menu ACCELERATION
pause the gear
set Form13.Text12 0
click Form13.Command26
set Form13.Text12 19
click Form13.Command27
set Form13.Text12 6
click Form13.Command26
messages
click Form13.Command33
set Form13.Text12 1
click Form13.Command21
set Form13.Text2(0) 0
click Form13.Command33
click Form13.Command32
set Form13.Text2(0) 3.25
set Form13.Text32(0) x
click Form13.Command33
click Form13.Command26
set Form13.Text32(0) 0
click Form13.Command33
messages
pause the car
set Form13.Text51 0
click Form13.Command29
set Form13.Text51 abc
click Form13.Command26
set Form13.Text51 2350
set Form13.Text21 0
click Form13.Command26
click Form13.Command32
set Form13.Text21
click Form13.Command27
set Form13.Text21 26
set Form13.Text18 0
click Form13.Command26
click Form13.Command32
set Form13.Text18 4.1
check Form13.Check2
set Form13.Text62 0
click Form13.Command27
click Form13.Command32
uncheck Form13.Check2
set Form13.Text65 -3
click Form13.Command29
set Form13.Text65 19.4
set Form13.Text73
click Form13.Command29
set Form13.Text73 29.92
set Form13.Text66 -1
click Form13.Command26
set Form13.Text66 0.015
set Form13.Text70 -5
click Form13.Command27
set Form13.Text70 1e300
click Form13.Command27
set Form13.Text70 1e-300
click Form13.Command27
set Form13.Text70 0
check Form13.Check1
set Form13.Text41 100
click Form13.Command32
set Form13.Text41 3
uncheck Form13.Check1
set Form13.Text51 1e308
click Form13.Command29
messages
set Form13.Text51 2350
pause tables without rows
answer No
file dyno/no_road.prm
menu Read
messages
menu ACCELERATION
click Form13.Command26
click Form13.Command27
click Form13.Command29
messages
pause the sheet
click Form13.Command15
set Form13.Text67 0
click Form13.Command18
messages
set Form13.Text67 1
click Form13.Command15
set Form13.Text83 0.2
click Form13.Command18
click Form13.Command31(10)
set Form13.Text83 29.92
set Form13.Text85 -500
click Form13.Command18
set Form13.Text85 hot
click Form13.Command10
set Form13.Text85 80
set Form13.Text40 perhaps
click Form13.Command31(5)
set Form13.Text40 y
click Form13.Command31(5)
messages
value Dyno Temp
