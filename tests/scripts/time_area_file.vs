# All keys of the port time area panel and the graphing options in the parameter file.
menu AIRFUEL
click Form4.Command48
set Form4.Text64 106.5
set Form4.Text76 109
set Form4.Text72 18
set Form4.Text73 -4
set Form4.Text74 2
set Form4.Text75 -3
set Form4.Text77 .125
set Form4.Text68 .025
set Form4.Text85 41
set Form4.Text87 77
set Form4.Text95(3) .21
set Form4.Text96(3) 205
set Form4.Text95(30) .7
set Form4.Text96(31) 12
set Form4.Text61 .6
check Form4.Check1(5)
click Form4.Command91(5)
click Form4.Command69
set Form4.Text65 .8
set Form4.Text66 .3
set Form4.Text67 .9
choose Form4.Option5(2)
check Form4.Check1(0)
check Form4.Check1(1)
check Form4.Check1(2)
uncheck Form4.Check1(3)
click Form4.Command91(2)
file time_area_kept.prm
menu Write
messages
pause other values, then the file again
click Form4.Command48
set Form4.Text64 1
set Form4.Text76 1
set Form4.Text72 1
set Form4.Text73 1
set Form4.Text74 1
set Form4.Text75 1
set Form4.Text77 1
set Form4.Text68 1
set Form4.Text85 1
set Form4.Text87 1
set Form4.Text95(3) 1
set Form4.Text96(3) 1
set Form4.Text95(30) 1
set Form4.Text96(31) 1
set Form4.Text61 1
uncheck Form4.Check1(5)
click Form4.Command91(5)
click Form4.Command69
set Form4.Text65 1
set Form4.Text66 1
set Form4.Text67 1
choose Form4.Option5(0)
uncheck Form4.Check1(0)
uncheck Form4.Check1(1)
uncheck Form4.Check1(2)
check Form4.Check1(3)
answer No
file time_area_kept.prm
menu Read
messages
get Form4.Text64
get Form4.Text76
get Form4.Text72
get Form4.Text73
get Form4.Text74
get Form4.Text75
get Form4.Text77
get Form4.Text68
get Form4.Text85
get Form4.Text87
get Form4.Text95(3)
get Form4.Text96(3)
get Form4.Text95(30)
get Form4.Text96(31)
get Form4.Text61
get Form4.Check1(5)
get Form4.Text65
get Form4.Text66
get Form4.Text67
get Form4.Option5
get Form4.Check1(0)
get Form4.Check1(1)
get Form4.Check1(2)
get Form4.Check1(3)
value Lift Table 3
value IntakeLift 3
pause the cam screen's ratios and lashes are shown at opening
menu CAM_INFO
set Form2.Text14 1.6
set Form2.Text23 .018
click Form2.Command4
click Form2.Command13
click Form2.subend
menu AIRFUEL
get Form4.Text92
get Form4.Text88
pause lifts of a table alone, and beside the table itself, which holds
answer No
file time_area/lifts.prm
menu Read
get Form4.Text95(0)
get Form4.Text96(0)
get Form4.Text95(1)
get Form4.Text95(2)
get Form4.Text95(16)
file time_area/both.prm
menu Read
get Form4.Text95(0)
get Form4.Text96(0)
get Form4.Text95(1)
get Form4.Text95(2)
messages
pause options that no button has end the reading, here as in all groups
file time_area/ports.prm
menu Read
get Form4.Option5
get Form4.Text65
file time_area/throat.prm
menu Read
get Form4.Option1
get Form4.Text65
