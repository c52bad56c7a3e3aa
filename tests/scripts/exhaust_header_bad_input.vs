# Headers and choking ports: empty fields, zeros, texts, huge numbers.
menu AIRFUEL
click Form4.Command43
set Form4.Text29 0
click Form4.CommandF2(0)
click Form4.CommandF2(2)
click Form4.CommandF2(3)
click Form4.CommandF2(5)
click Form4.CommandF2(6)
click Form4.CommandF2(8)
messages
set Form4.Text29 8
set Form4.Text23 0
click Form4.CommandF2(0)
click Form4.CommandF2(5)
set Form4.Text23 1.75
set Form4.Text2 0
click Form4.CommandF2(0)
click Form4.CommandF2(2)
set Form4.Text2 6500
set Form4.Text22 0
click Form4.CommandF2(2)
click Form4.CommandF2(5)
set Form4.Text22 28
messages
set Form4.Text27 0
click Form4.CommandF2(1)
set Form4.Text27 6500
set Form4.Text26 0
click Form4.CommandF2(6)
set Form4.Text26 4
set Form4.Text1 0
click Form4.CommandF2(8)
set Form4.Text1 327
messages
set Form4.Text23 wide
click Form4.CommandF2(0)
set Form4.Text23
click Form4.CommandF2(8)
set Form4.Text23 1.75
messages
set Form4.Text23 1e300
click Form4.CommandF2(8)
set Form4.Text23 1.75
set Form4.Text20 -5
click Form4.CommandF2(4)
set Form4.Text20 210
set Form4.Text3 1e308
click Form4.CommandF2(7)
set Form4.Text3 none
click Form4.CommandF2(7)
set Form4.Text3 400
messages
pause what was shown stands
get Form4.Text22
get Form4.Text25
get Form4.Text38
click Form4.Command91(7)
pause choking ports
click Form4.Command55
set Form4.Text27 0
click Form4.Command57
click Form4.Command60
set Form4.Text27 many
click Form4.Command57
set Form4.Text27 6500
set Form4.Text83 0
click Form4.Command57
set Form4.Text83
click Form4.Command57
set Form4.Text83 280
set Form4.Text61 0
click Form4.Command57
set Form4.Text61 .55
messages
set Form4.Text52 0
click Form4.Command57
set Form4.Text52 4
set Form4.Text53 0
click Form4.Command60
set Form4.Text53 3.25
set Form4.Text42 0
click Form4.Command57
set Form4.Text42 2.02
set Form4.Text45 0
click Form4.Command57
set Form4.Text45 1.6
set Form4.Text62 0
click Form4.Command57
set Form4.Text62 1
set Form4.Text63 0
click Form4.Command57
set Form4.Text63 1
set Form4.Text44 0
click Form4.Command57
set Form4.Text44 .91
messages
set Form4.Text52 1e200
click Form4.Command57
click Form4.Command60
set Form4.Text52 4
set Form4.Text48(3) wide
click Form4.Command57
set Form4.Text48(3) .4
messages
value RPM
click Form4.Command91(3)
click Form4.Command35
click Form4.Command66
click Form4.Command91(9)
click Form4.Command55
click Form4.Command60
set Form4.Text48(0) .2
click Form4.Command60
messages
pause a field of the page that a panel shows again is checked there, and can be filled again
type Form4.Text27 {BS}{TAB}
messages
click Form4.Command57
messages
type Form4.Text27 7000{TAB}
set Form4.Text27 
click Form4.Command57
messages
set Form4.Text27 7100
get Form4.Text27
click Form4.Command57
messages
value RPM
