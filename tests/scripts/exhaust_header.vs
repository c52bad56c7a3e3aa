# Header tubes, collector and exhaust system, of four engines.
menu AIRFUEL
click Form4.Command43
state Form4.Frame2
pause as it comes: 327 cubic inches, eight cylinders, 6500 RPM
click Form4.CommandF2(0)
get Form4.Text22
value Tube Length
click Form4.CommandF2(2)
get Form4.Text23
click Form4.CommandF2(5)
get Form4.Text24
value Affected RPM
click Form4.CommandF2(1)
get Form4.Text22
click Form4.CommandF2(3)
get Form4.Text23
value Tube Diameter
set Form4.Text32 1
click Form4.CommandF2(8)
get Form4.Text32
value Peak Torque RPM
click Form4.CommandF2(4)
get Form4.Text23
click Form4.CommandF2(6)
get Form4.Text25
value Collector Length
click Form4.CommandF2(7)
get Form4.Text38
pause a four of 1600 cc
set Form4.Text1 97.6
set Form4.Text29 4
set Form4.Text2 7800
set Form4.Text23 1.5
click Form4.CommandF2(0)
get Form4.Text22
click Form4.CommandF2(2)
get Form4.Text23
click Form4.CommandF2(5)
get Form4.Text24
set Form4.Text27 7400
click Form4.CommandF2(1)
get Form4.Text22
set Form4.Text32 6100
click Form4.CommandF2(3)
get Form4.Text23
click Form4.CommandF2(8)
get Form4.Text32
set Form4.Text20 92
click Form4.CommandF2(4)
get Form4.Text23
set Form4.Text26 2.25
click Form4.CommandF2(6)
get Form4.Text25
set Form4.Text3 164
click Form4.CommandF2(7)
get Form4.Text38
pause a single of 450 cc
set Form4.Text1 27.4
set Form4.Text29 1
set Form4.Text2 10500
set Form4.Text23 1.625
click Form4.CommandF2(0)
get Form4.Text22
click Form4.CommandF2(5)
get Form4.Text24
set Form4.Text32 8200
click Form4.CommandF2(3)
get Form4.Text23
set Form4.Text26 2.5
click Form4.CommandF2(6)
get Form4.Text25
set Form4.Text3 58
click Form4.CommandF2(7)
get Form4.Text38
pause a big block
set Form4.Text1 565
set Form4.Text29 8
set Form4.Text2 7600
set Form4.Text22 31.5
click Form4.CommandF2(2)
get Form4.Text23
set Form4.Text27 7700
click Form4.CommandF2(1)
get Form4.Text22
set Form4.Text20 295
click Form4.CommandF2(4)
get Form4.Text23
set Form4.Text26 4.5
click Form4.CommandF2(6)
get Form4.Text25
pause a report and Quit leave the flow of the system
get Form4.Text38
hover Form4.CommandF2(0)
show Form4.Text78
hover Form4.CommandF2(1)
show Form4.Text78
hover Form4.CommandF2(2)
show Form4.Text78
hover Form4.CommandF2(3)
show Form4.Text78
hover Form4.CommandF2(4)
show Form4.Text78
hover Form4.CommandF2(5)
show Form4.Text78
hover Form4.CommandF2(6)
show Form4.Text78
hover Form4.CommandF2(7)
show Form4.Text78
hover Form4.CommandF2(8)
show Form4.Text78
click Form4.Command91(7)
state Form4.Frame2
click Form4.subend
get Form4.Text38
messages
