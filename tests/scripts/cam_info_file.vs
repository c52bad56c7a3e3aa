# The values of the camshaft screen in the parameter file: what a command has worked out, and the
# texts of fields that none has read yet.
menu CAM_INFO
set Form2.Text1 20
set Form2.Text2 60
set Form2.Text3 62
set Form2.Text4 22
click Form2.Command1
set Form2.Text13 .51
set Form2.Text20 .333
set Form2.Text23 .018
set Form2.Text14 1.6
check Form2.Check1
uncheck Form2.Check1
file cam_info.prm
menu Write
messages
pause other values, then the file again
set Form2.Text1 1
set Form2.Text6 1
set Form2.Text10 1
set Form2.Text11 1
set Form2.Text13 1
set Form2.Text14 1
set Form2.Text20 1
set Form2.Text23 1
set Form2.Text24 1
click Form2.Command1
click Form2.Command4
answer No
file cam_info.prm
menu Read
messages
get Form2.Text1
get Form2.Text6
get Form2.Text10
get Form2.Text11
get Form2.Text13
get Form2.Text14
get Form2.Text20
get Form2.Text23
get Form2.Text24
value Intake Duration
value Valve LIft
value Exhaust Cam LIft
value Exhaust Lash
value Rocker Arm Ratio
pause the screen is left in metric: the file is in inches all the same
check Form2.Check1
get Form2.Text13
file cam_info_metric.prm
menu Write
click Form2.subend
get Form2.Text13
file cam_info_metric.prm
menu Read
get Form2.Text13
value Valve LIft
messages
pause cleared for a blank form
answer OK
menu Clear
get Form2.Text1
get Form2.Text25
get Form2.Label1(15)
messages
