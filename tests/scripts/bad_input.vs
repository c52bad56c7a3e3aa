# What a command does with values it cannot compute with: one box, the field is named,
# earlier results stay, later fields keep their text.
menu CubicInch
pause empty and no number
set Form1.Text3 
click Form1.Command1
get Form1.Text6
messages
set Form1.Text3 three
click Form1.Command3
messages
set Form1.Text3 3.25
set Form1.Text4 5.7.0
click Form1.Command7
messages
set Form1.Text4 -
click Form1.Command7
messages
set Form1.Text4 5.7
pause a number beyond all bounds
set Form1.Text1 1e999
click Form1.Command1
messages
set Form1.Text1 1e300
click Form1.Command1
messages
set Form1.Text1 4
pause no bore, no cylinders, no speed
set Form1.Text1 0
click Form1.Command1
get Form1.Text6
get Form1.Text11
get Form1.Text12
messages
value Cubic Inches
set Form1.Text1 4
set Form1.Text2 0
click Form1.Command2
messages
click Form1.Command4
messages
click Form1.Command11
messages
set Form1.Text2 8
set Form1.Text5 0
click Form1.Command14
messages
set Form1.Text5 6500
pause a count beyond 16 bits
set Form1.Text2 40000
click Form1.Command1
messages
set Form1.Text2 8
pause ratios and sizes that no engine has
set Form1.Text6 326.7256
set Form1.Text11 0
click Form1.Command4
messages
set Form1.Text11 -1
click Form1.Command4
messages
set Form1.Text11 1.2
set Form1.Text6 -300
click Form1.Command4
messages
click Form1.Command2
messages
set Form1.Text6 1e100
click Form1.Command4
messages
set Form1.Text6 326.7256
set Form1.Text16 0
click Form1.Command11
messages
set Form1.Text16 0.8125
pause guards correct in silence
set Form1.Text3 0
click Form1.Command22
get Form1.Text3
value Stroke
get Form1.Text11
messages
set Form1.Text3 3.25
set Form1.Text4 1
click Form1.Command23
get Form1.Text4
get Form1.Text12
messages
pause a unit change that fails changes nothing
set Form1.Text4 5.7
set Form1.Text8 tall
check Form1.Check1
get Form1.Check1
get Form1.Text1
messages
set Form1.Text8 9.245
set Form1.Text48 
check Form1.Check1
get Form1.Text48
get Form1.Text8
messages
pause quitting waits for a number that can be converted
set Form1.Text8 tall
click Form1.subend
messages
get Form1.Check1
set Form1.Text8 234.823
click Form1.subend
get Form1.Check1
messages
pause Numbers too large for a table
menu CubicInch
set Form1.Text5 -1e308
click Form1.Command17
messages
set Form1.Text5 6500
