# Flow tables, valves and Mach sizing in the parameter file.
menu AIRFUEL
click Form4.Command35
pause written before any command has read them
set Form4.Text49(0) 88.5
set Form4.Text48(31) 1.25
choose Form4.Option2(3)
click Form4.Command50(0)
set Form4.Text44 .9
set Form4.Text123 .09
set Form4.Text63 2
choose Form4.Option1(1)
click Form4.Command91(4)
click Form4.Command91(9)
click Form4.Command39
set Form4.Text114 77.5
set Form4.Text54 1.94
click Form4.Command91(6)
file flow_kept.prm
menu Write
messages
pause other values, then the file again
set Form4.Text49(0) 1
set Form4.Text48(31) 1
set Form4.Text44 1
set Form4.Text123 1
set Form4.Text63 1
set Form4.Text114 1
set Form4.Text54 1
click Form4.Command35
choose Form4.Option2(0)
click Form4.Command50(0)
choose Form4.Option1(0)
answer No
file flow_kept.prm
menu Read
messages
get Form4.Text48(0)
get Form4.Text49(0)
get Form4.Text49(1)
get Form4.Text48(31)
get Form4.Text49(31)
get Form4.Option2
get Form4.Option1
get Form4.Text42
get Form4.Text44
get Form4.Text123
get Form4.Text63
get Form4.Text114
get Form4.Text54
get Form4.Text70
value H Factor
value Exh Seat Width
