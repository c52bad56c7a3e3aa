# The chamber as a report: on the screen, and printed with its drawing on one page.
menu SRKEXH
set Form11.Text1 39.5
set Form11.Text11 39.5
set Form11.Text36 1
set Form11.Text2 125.5
set Form11.Text5 11000
click Form11.Command2
# What was typed since is not what the chamber was computed from.
set Form11.Text2 999
click Form11.ChamberReport
show Form11.Text38
printer portrait
press Form11.Text38 ,
pages
set Form11.Text2 125.5
click Form11.Command1
printer landscape
click Form11.ChamberReport
press Form11.Text38 ,
pages
click Form11.Command4
click Form11.ChamberReport
show Form11.Text38
press Form11.Text38 x
hover Form11.Command1
get Form11.Text38
hover Form11.Command2
get Form11.Text38
hover Form11.Command3
get Form11.Text38
hover Form11.Command4
get Form11.Text38
hover Form11.ChamberReport
get Form11.Text38
get Form11.Stages
state Form11.Stages
messages
