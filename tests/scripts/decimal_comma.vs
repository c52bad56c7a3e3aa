# arguments: --decimal-comma
# A system whose decimal separator is a comma.
messages
get Form1.Text1
get Form1.Text10
get Form1.Text2
menu CubicInch
get Form1.Text1
get Form1.Text6
type Form1.Text1 4,125
get Form1.Text1
click Form1.Command1
get Form1.Text6
value Bore
pause a point typed is refused in silence, a point pasted counts as a comma
type Form1.Text3 3.5
get Form1.Text3
set Form1.Text3 3.48
type Form1.Text3 ,
messages
click Form1.Command1
get Form1.Text6
pause a second comma is taken, and told when the field is read
type Form1.Text4 5,7,0
get Form1.Text4
messages
click Form1.Command1
messages
set Form1.Text4 5,7
pause files have commas and read files with points
file comma.prm
menu Write
file comma.prm
menu Read
messages
value Bore
value Stroke
menu CubicInch
get Form1.Text3
