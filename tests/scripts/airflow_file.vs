# What the air and fuel screen shares with others and keeps in the parameter file.
menu CubicInch
set Form1.Text2 6
set Form1.Text1 4.125
click Form1.Command1
click Form1.subend
menu AIRFUEL
pause what the opener shows
get Form4.Text1
get Form4.Text2
get Form4.Text3
get Form4.Text4
get Form4.Text29
get Form4.Text32
get Form4.Text33
get Form4.Text71
get Form4.Text79
get Form4.Text84
get Form4.Text11
pause what it does not
get Form4.Text27
get Form4.Text30
get Form4.Text19
get Form4.Text6
pause on a fresh program no duty cycle has been stored, and the pump flow is 0
click Form4.Command37
set Form4.Text41 12
click Form4.CommandF3(9)
get Form4.Text28
value Duty Cycle
click Form4.CommandF3(6)
set Form4.Text41 12
click Form4.CommandF3(9)
get Form4.Text28
click Form4.Command91(8)
pause the file holds inches and CFM, and the ratio of a lambda value
set Form4.Text11 .92
set Form4.Text15 254
choose Form4.Option3(1)
set Form4.Text17 .05
choose Form4.Option4(1)
click Form4.Command1
get Form4.Text15
value Old Depression
value Old AirFlow
set Form4.Text30 .9
click Form4.Command34
choose Form4.Option7(1)
get Form4.Stoichiometric
click Form4.Command91(1)
get Form4.Mixture
click Form4.Command54
get Form4.Text30
value Air Fuel Ratio
value Lambda Option
choose Form4.Option8(4)
check Form4.Check1(7)
value Report Option8
value Single Grouping
pause the dyno sheet leaves its last row in the shared values, not in the fields
click Form4.Command123
press Form4.Text78 x
get Form4.Text81
get Form4.Text31
get Form4.Text3
value Mass Air Flow
value Fuel Flow
value Horse Power
file airflow.prm
menu Write
messages
click Form4.subend
pause other values, then the file again
menu AIRFUEL
set Form4.Text30 14
set Form4.Text15 10
set Form4.Text11 .5
choose Form4.Option8(0)
uncheck Form4.Check1(7)
click Form4.Command34
choose Form4.Option7(0)
click Form4.Command91(1)
click Form4.subend
file airflow.prm
answer No
menu Read
messages
menu AIRFUEL
get Form4.Text11
get Form4.Text30
get Form4.Mixture
get Form4.Text15
get Form4.Text17
get Form4.Option7
get Form4.Option8
get Form4.Check1(7)
get Form4.Text12
get Form4.Text41
get Form4.Text32
get Form4.Text33
value Air Fuel Ratio
pause with a fuel of the file a lambda value has its ratio
set Form4.Text30 1
click Form4.Command54
value Air Fuel Ratio
menu Clear
messages
get Form4.Text1
get Form4.Text6
get Form4.Mixture
