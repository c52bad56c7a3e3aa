# Presses every command of the two stroke exhaust screen for four engines.
# The expected values were worked out apart from the program.
menu SRKEXH
pause a fresh screen: what other screens share comes in millimetres
get Form11.Text1
get Form11.Text11
get Form11.Text36
get Form11.Text5
get Form11.Text6
get Form11.Text12
get Form11.Text10
get Form11.Text9
get Form11.Text2
get Form11.Text3
get Form11.Text4
get Form11.Text15
get Form11.Text7
get Form11.Text26
get Form11.Text28
get Form11.Text29
get Form11.Text14
get Form11.Text32
get Form11.Text33
get Form11.Text30
get Form11.Text31
get Form11.Text34
get Form11.Text35
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
get Form11.Frame5
get Form11.Check1
get Form11.Check3
pause a moped of 50 cc
set Form11.Text1 39.5
set Form11.Text11 39.5
set Form11.Text36 1
set Form11.Text2 125.5
set Form11.Text5 11000
click Form11.Command1
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command2
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command3
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command4
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
get Form11.Text12
get Form11.Text10
get Form11.Text9
value Cubic Inches
value Bore
check Form11.Check1
check Form11.Check3
click Form11.Command2
get Form11.Text15
get Form11.Text7
get Form11.LT
uncheck Form11.Check1
uncheck Form11.Check3
state Form11.Remark
messages
pause a racing cylinder of 125 cc
set Form11.Text1 54
set Form11.Text11 54.5
set Form11.Text36 1
set Form11.Text2 198
set Form11.Text3 44
set Form11.Text4 28.5
set Form11.Text5 12000
set Form11.Text6 29.8
set Form11.Text14 1.25
set Form11.Text15 600
set Form11.Text7 580
set Form11.Text26 0.62
set Form11.Text28 1.08
set Form11.Text29 2.9
set Form11.Text32 12
set Form11.Text33 0.6
set Form11.Text30 8
set Form11.Text31 15
set Form11.Text34 8.5
set Form11.Text35 12
click Form11.Command1
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command2
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command3
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command4
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
get Form11.Text12
get Form11.Text10
get Form11.Text9
value Cubic Inches
value Bore
check Form11.Check1
check Form11.Check3
click Form11.Command2
get Form11.Text15
get Form11.Text7
get Form11.LT
uncheck Form11.Check1
uncheck Form11.Check3
state Form11.Remark
messages
pause a twin of 250 cc
set Form11.Text1 56
set Form11.Text11 50.7
set Form11.Text36 2
set Form11.Text2 186
set Form11.Text3 40
set Form11.Text4 25
set Form11.Text5 10500
set Form11.Text6 44
set Form11.Text14 1.5
set Form11.Text15 480
set Form11.Text7 550
set Form11.Text26 0.65
set Form11.Text28 1.1
set Form11.Text29 2.4
set Form11.Text32 15
set Form11.Text33 0.62
set Form11.Text30 9
set Form11.Text31 20
set Form11.Text34 7
set Form11.Text35 11
click Form11.Command1
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command2
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command3
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command4
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
get Form11.Text12
get Form11.Text10
get Form11.Text9
value Cubic Inches
value Bore
check Form11.Check1
check Form11.Check3
click Form11.Command2
get Form11.Text15
get Form11.Text7
get Form11.LT
uncheck Form11.Check1
uncheck Form11.Check3
state Form11.Remark
messages
pause an outboard cylinder
set Form11.Text1 82.5
set Form11.Text11 64
set Form11.Text36 3
set Form11.Text2 162
set Form11.Text3 55
set Form11.Text4 20
set Form11.Text5 5500
set Form11.Text6 51.5
set Form11.Text14 1
set Form11.Text15 350
set Form11.Text7 500
set Form11.Text26 0.7
set Form11.Text28 1.05
set Form11.Text29 2.2
set Form11.Text32 10
set Form11.Text33 0.58
set Form11.Text30 7
set Form11.Text31 14
set Form11.Text34 11
set Form11.Text35 12.5
click Form11.Command1
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command2
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command3
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
click Form11.Command4
get Form11.L1
get Form11.L2
get Form11.L3
get Form11.L4
get Form11.L5
get Form11.L6
get Form11.L7
get Form11.LT
get Form11.D1
get Form11.D2
get Form11.D3
get Form11.D4
get Form11.D5
state Form11.Frame5
get Form11.Text12
get Form11.Text10
get Form11.Text9
value Cubic Inches
value Bore
check Form11.Check1
check Form11.Check3
click Form11.Command2
get Form11.Text15
get Form11.Text7
get Form11.LT
uncheck Form11.Check1
uncheck Form11.Check3
state Form11.Remark
messages
