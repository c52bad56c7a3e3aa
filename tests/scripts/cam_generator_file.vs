# What the cam lift curve generator shares with the parameter file.
menu Cam_Gen
set Form33.Text58(24) .36
click Form33.Command26
set Form33.Text21 .01
set Form33.Text20 333
set Form33.Text5 .9
set Form33.Text1 .0081
set Form33.Text62(1) -3.25
set Form33.Text63(23) 4
check Form33.Check2
check Form33.Check3
choose Form33.Option1(4)
choose Form33.Option2(2)
file cam.prm
menu Write
messages
value Cam Gen D 0
value Cam Gen D 11
pause other values, then the file again
click Form33.Command8
set Form33.Text58(24) .1
set Form33.Text21 .5
set Form33.Text20 1
set Form33.Text5 2
set Form33.Text1 3
set Form33.Text58(1) 
uncheck Form33.Check2
uncheck Form33.Check3
choose Form33.Option1(1)
choose Form33.Option2(1)
file cam.prm
answer No
menu Read
messages
get Form33.Text58(0)
get Form33.Text58(1)
get Form33.Text58(12)
get Form33.Text58(24)
get Form33.Text59(0)
get Form33.Text59(1)
get Form33.Text60(1)
get Form33.Text61(1)
get Form33.Text62(1)
get Form33.Text63(1)
get Form33.Text63(23)
get Form33.Text20
get Form33.Text21
get Form33.Text5
get Form33.Text1
get Form33.Check2
get Form33.Check3
get Form33.Option1
get Form33.Option2
value Asymmetrical
value Output S96
value Lash Ramp Option
value Generation Method Option
value Tappet Bucket Diameter
value M E Ratio
value Asymmetrical Zero Durat
value Tappet Max Velocity
pause written in millimetres, the file is in inches
check Form33.Check1
get Form33.Text58(24)
file cam_mm.prm
menu Write
messages
click Form33.subend
menu Cam_Gen
set Form33.Text58(24) 5
set Form33.Text5 5
file cam_mm.prm
answer No
menu Read
messages
get Form33.Text58(24)
get Form33.Text58(12)
get Form33.Text5
get Form33.Text1
get Form33.Text62(1)
pause an empty field is nothing in the file
set Form33.Text58(24) 
set Form33.Text58(3) 
file cam_empty.prm
menu Write
messages
set Form33.Text58(24) .4
file cam_empty.prm
answer No
menu Read
messages
get Form33.Text58(24)
get Form33.Text58(3)
get Form33.Text58(4)
click Form33.subend
