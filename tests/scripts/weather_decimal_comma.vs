# arguments: --decimal-comma
# The weather screen where the decimal separator is a comma, and with blank fields.
menu WEATHER
get Form7.Text10
get Form7.Text2
get Form7.Text19
set Form7.Text10 29,71
set Form7.Text11 94
set Form7.Text12 82
set Form7.Text1 24,63
set Form7.Text3 41
set Form7.Text4 35
set Form7.Text15 412,5
set Form7.Text19 0,0785
set Form7.Text21 0.0425
click Form7.Command5
get Form7.Text6
get Form7.Text7
check Form7.Check1
get Form7.Text10
click Form7.Command3
get Form7.Text18
uncheck Form7.Check1
set Form7.Text1 29,71
click Form7.Command12
show Form7.Text43
press Form7.Text43 x
value Jet Size
value Metering Rod Size
messages
pause blank after Clear
click Form7.subend
answer OK
menu Clear
menu WEATHER
get Form7.Text10
get Form7.Text42
check Form7.Check1
click Form7.Command9
messages
set Form7.Text11 20
uncheck Form7.Check1
get Form7.Text11
get Form7.Text10
click Form7.subend
messages
