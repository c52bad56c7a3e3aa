# What the nitrous screen shares: the cylinders come from the engine, its own values stay as typed,
# go to the parameter file and come back.
menu CubicInch
set Form1.Text2 6
click Form1.Command1
click Form1.subend
menu Nitrous
pause the opener copies the cylinders only
get Form17.Text5
get Form17.Text1
get Form17.Text19
set Form17.Text3 0.041
set Form17.Text7 6
set Form17.Text9 3
set Form17.Text10 0.0365
choose Form17.Option1(4)
get Form17.Option1
click Form17.Command1
get Form17.Text18
get Form17.Text19
value Nitrous Option
value Nitrous Jet Size
value Fuel Jet Size
pause closed and opened again, it keeps what it showed
click Form17.subend
menu Nitrous
get Form17.Text3
get Form17.Text18
get Form17.Text10
get Form17.Option1
pause written, with what no command has read
file nitrous.prm
menu Write
messages
pause other values, then the file again
set Form17.Text3 0.1
set Form17.Text7 1
set Form17.Text10 0.5
choose Form17.Option1(0)
click Form17.Command3
click Form17.Command1
file nitrous.prm
answer No
menu Read
messages
value Nitrous Option
value Fuel Pressure
value Nitrous Pressure
value Nitrous Jet Size
value Number Nitrous Jets
value Specific Gravity Gas
value Specific Gravity Methanol
value Specific Gravity Ethanol
value Specific Gravity E85
value Fuel Jet Size
value Number Fuel Jets
value Fuel Jet Size S2
value Number Fuel Jets S2
get Form17.Option1
get Form17.Text3
get Form17.Text7
get Form17.Text10
get Form17.Text9
click Form17.Command1
get Form17.Text18
messages
