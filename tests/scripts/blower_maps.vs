# The flow maps of the blower screen as reports and graphs, and the graph of old and new power.
menu Blowers
set Form14.Text7 345.6
set Form14.Text9 1
set Form14.Text33 2000
pause by pressure ratio: 0.1 cubic feet a revolution are 100 CFM at 1000 RPM
click Form14.Command2
show Form14.Text38
press Form14.Text38 ,
pages
pause by boost, in pounds
choose Form14.Option1(1)
set Form14.Text25 2
click Form14.Command3
show Form14.Text38
press Form14.Text38 ,
pages
pause with an intercooler, a two-stroke
choose Form14.Option1(0)
set Form14.Text25 1
check Form14.Check2
click Form14.Command20
show Form14.Text38
file blower-map.txt
press Form14.Text38 .
uncheck Form14.Check2
messages
pause from the tables
click Form14.Command22
state Form14.Text29(0)
set Form14.Text29(0) 0.5
type Form14.Text29(1) 0.625{ENTER}
set Form14.Text29(2) 0.8
click Form14.Command23
click Form14.Command25
state Form14.Text34(53)
set Form14.Text34(0) 5
set Form14.Text34(1) 5.5
click Form14.Command26
check Form14.Check4
check Form14.Check5
click Form14.Command2
show Form14.Text38
value VE RPM 1
value BSAC RPM 1
press Form14.Text38 x
pause reset from the main page
set Form14.Text9 0.910
set Form14.Text30 5.75
click Form14.Command24
get Form14.Text29(0)
click Form14.Command22
click Form14.Command24
get Form14.Text29(0)
get Form14.Text29(53)
click Form14.Command23
click Form14.Command25
click Form14.Command27
get Form14.Text34(0)
get Form14.Text34(53)
click Form14.Command26
state Form14.Text34(53)
uncheck Form14.Check4
uncheck Form14.Check5
pause as graphs
set Form14.Text9 1
set Form14.Text3 7.5
check Form14.Check3
click Form14.Command2
plot
set Form14.Text25 2
set Form14.Text31 400
set Form14.Text32 2
click Form14.Command3
plot
choose Form14.Option1(1)
set Form14.Text31 0
set Form14.Text32 0
set Form14.Text33 1000
click Form14.Command20
plot
pause boost that the last step takes beyond the pressure ratio of 3
choose Form14.Option1(0)
set Form14.Text25 1
set Form14.Text33 3000
click Form14.Command3
plot
set Form14.Text33 1000
pause old and new power
click Form14.Command1
plot
set Form14.Text27 1.2
set Form14.Text28 0.9
click Form14.Command1
plot
pause in Metric
uncheck Form14.Check3
choose Form14.Option1(0)
set Form14.Text25 1
check Form14.Check1
click Form14.Command2
show Form14.Text38
press Form14.Text38 x
click Form14.Command3
show Form14.Text38
press Form14.Text38 x
click Form14.Command20
show Form14.Text38
press Form14.Text38 x
messages
