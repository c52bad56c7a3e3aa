# The speeds that ports choke at: report and graph of four engines, by both exhaust logics.
menu AIRFUEL
click Form4.Command55
state Form4.Frame15
pause as it comes
click Form4.Command57
show Form4.Text78
press Form4.Text78 x
value RPM
value RPM Max Horse Power
value User Velocity fps
value User DC
click Form4.Command60
plot
pause the logic changes the exhaust alone
choose Form4.Option9(1)
click Form4.Command57
show Form4.Text78
press Form4.Text78 x
click Form4.Command60
plot
pause the speed is that of all screens, and its field shows it at the next opening
set Form4.Text27 7200
click Form4.Command57
value RPM
get Form4.Text2
pause a four-valve single
click Form4.Command50(2)
state Form4.Frame8
set Form4.Text42 1.457
set Form4.Text62 2
set Form4.Text45 1.22
set Form4.Text63 2
click Form4.Command91(4)
set Form4.Text52 3.78
set Form4.Text53 2.445
set Form4.Text27 11000
set Form4.Text83 310
set Form4.Text61 .62
click Form4.Command57
show Form4.Text78
press Form4.Text78 x
choose Form4.Option9(0)
click Form4.Command57
show Form4.Text78
press Form4.Text78 x
pause a small four with few rows
set Form4.Text42 1.4
set Form4.Text62 1
set Form4.Text45 1.19
set Form4.Text63 1
set Form4.Text52 3.19
set Form4.Text53 3.05
set Form4.Text27 6300
set Form4.Text83 260.5
set Form4.Text61 .55
click Form4.Command91(3)
click Form4.Command35
click Form4.Command66
set Form4.Text48(0) .15
set Form4.Text48(2) .3
set Form4.Text48(5) .3937
click Form4.Command91(9)
click Form4.Command55
click Form4.Command57
show Form4.Text78
press Form4.Text78 x
click Form4.Command60
plot
pause no row
click Form4.Command91(3)
click Form4.Command35
click Form4.Command66
click Form4.Command91(9)
click Form4.Command55
click Form4.Command57
show Form4.Text78
press Form4.Text78 x
hover Form4.Command57
show Form4.Text78
hover Form4.Command60
show Form4.Text78
hover Form4.Option9(0)
show Form4.Text78
hover Form4.Option9(1)
show Form4.Text78
click Form4.Command91(3)
state Form4.Frame15
click Form4.subend
menu AIRFUEL
get Form4.Text2
messages
