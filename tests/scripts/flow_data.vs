# The flow tables of both ports as they come: figures, reports and graphs.
menu AIRFUEL
state Form4.Frame11
click Form4.Command35
state Form4.Frame11
state Form4.Text50(15)
pause original: velocity in the throat, coefficient at the curtain; rows without flow are 0
click Form4.Command33
get Form4.Text50(0)
get Form4.Text51(0)
get Form4.Text50(12)
get Form4.Text51(12)
get Form4.Text50(13)
get Form4.Text51(13)
get Form4.Text50(16)
get Form4.Text51(16)
get Form4.Text50(27)
get Form4.Text51(27)
show Form4.FlowNotes
pause curtain
choose Form4.Option2(1)
click Form4.Command33
get Form4.Text50(4)
get Form4.Text51(4)
get Form4.Text50(20)
get Form4.Text51(20)
pause throat: the coefficients above 1 are told
choose Form4.Option2(2)
click Form4.Command33
get Form4.Text50(4)
get Form4.Text51(4)
get Form4.Text50(20)
get Form4.Text51(20)
show Form4.FlowNotes
pause valve
choose Form4.Option2(3)
click Form4.Command33
get Form4.Text50(4)
get Form4.Text51(4)
get Form4.Text50(20)
get Form4.Text51(20)
pause CFM per square inch
choose Form4.Option2(4)
click Form4.Command33
get Form4.Text50(4)
get Form4.Text51(4)
get Form4.Text50(20)
get Form4.Text51(20)
value AirFuel Option2
value Test Depression
value Intake Valve Size
pause more valves: some of the exhaust's figures count the intake's
click Form4.Command50(0)
state Form4.Frame8
set Form4.Text62 2
set Form4.Text63 3
click Form4.Command91(4)
state Form4.Frame8
state Form4.Frame11
choose Form4.Option2(0)
click Form4.Command33
get Form4.Text50(20)
get Form4.Text51(20)
choose Form4.Option2(1)
click Form4.Command33
get Form4.Text50(20)
get Form4.Text51(20)
choose Form4.Option2(2)
click Form4.Command33
get Form4.Text50(20)
get Form4.Text51(20)
choose Form4.Option2(3)
click Form4.Command33
get Form4.Text50(20)
get Form4.Text51(20)
choose Form4.Option2(4)
click Form4.Command33
get Form4.Text50(20)
get Form4.Text51(20)
set Form4.Text62 1
set Form4.Text63 1
choose Form4.Option2(0)
pause the test pressure moves the coefficients alone
set Form4.Text70 7
click Form4.Command33
get Form4.Text50(0)
get Form4.Text51(0)
get Form4.Text49(0)
set Form4.Text70 28
pause reports
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
click Form4.Command95
show Form4.Text78
press Form4.Text78 x
pause a minimum cross-section is taken as it stands
set Form4.Text62 2
set Form4.Text89 2.25
set Form4.Text90 1.5
set Form4.Text48(2) 0
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
pause no rows: heads alone
click Form4.Command66
get Form4.Text48(31)
get Form4.Text49(31)
get Form4.Text50(0)
get Form4.Text51(0)
click Form4.Command33
get Form4.Text50(0)
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
messages
pause a column from a bench sheet fills downward; a graph of both ports draws the one that has rows
set Form4.Text48(0) .1\n.2\n.3
set Form4.Text49(0) 66\n120\n170
get Form4.Text48(2)
get Form4.Text49(2)
click Form4.Command63
plot
pause a further curve goes onto a graph of flow, and begins one of its own on any other
click Form4.Command91(9)
click Form4.Command39
click Form4.CommandF7(7)
click Form4.Command91(6)
click Form4.Command35
click Form4.Command64
plot
messages
