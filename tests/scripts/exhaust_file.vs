# What the two stroke exhaust screen shares: five values come from other screens in millimetres,
# and go back in inches; its own values are in the file as they stand.
menu CubicInch
set Form1.Text1 2
set Form1.Text3 2.5
click Form1.Command1
menu SRKEXH
get Form11.Text1
get Form11.Text11
get Form11.Text36
get Form11.Text5
get Form11.Text2
set Form11.Text1 39.5
set Form11.Text11 40
set Form11.Text36 1
set Form11.Text2 180
set Form11.Text3 21
click Form11.Command1
value Bore
value Stroke
value Cubic Inches
menu CubicInch
get Form1.Text1
get Form1.Text3
get Form1.Text6
value Bore
value Cubic Inches
value Exhaust Port Width
value Exhaust Duration
click Form11.Command3
file chamber.prm
menu Write
messages
value Bore
value Cubic Inches
set Form11.Text3 30
set Form11.Text1 60
click Form11.Command1
file chamber.prm
answer No
menu Read
messages
get Form11.Text1
get Form11.Text3
get Form11.Text4
get Form11.Text15
get Form11.Text7
get Form11.Text6
get Form11.Text26
get Form11.Text28
get Form11.Text29
get Form11.Text14
get Form11.Text30
get Form11.Text31
get Form11.Text34
get Form11.Text35
get Form11.Text32
get Form11.Text33
menu SRKEXH
get Form11.Text1
get Form11.Text11
get Form11.Text2
messages
