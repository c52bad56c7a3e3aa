# What the springs screen shares with the parameter file: values go into it and come back, and
# opening the screen copies nothing.
menu SPRINGS
pause what no command has read is written as the fields show it
file springs.prm
menu Write
messages
pause what commands have solved
set Form16.Text4 146.48
click Form16.Command9
get Form16.Text18
value Modulus of Rigidity
file modulus.prm
menu Write
messages
set Form16.Text10 1.0625
set Form16.Text16 1.1875
set Form16.Text36 6
set Form16.Text26 1178097
click Form16.Command10
click Form16.Command4
get Form16.Text5
value Torsion Bar Diameter
value Sway Bar Out Diameter
value New Sway Bar Out Diameter
value Number Leafs
value Number Coils
file solved.prm
menu Write
messages
pause other values, then the file again
set Form16.Text1 0.7
set Form16.Text10 1.5
set Form16.Text36 9
set Form16.Text18 1
click Form16.Command1
value Modulus of Rigidity
value Spring Rate
file solved.prm
answer No
menu Read
messages
get Form16.Text1
get Form16.Text2
get Form16.Text3
get Form16.Text18
get Form16.Text4
get Form16.Text22
get Form16.Text5
get Form16.Text25
get Form16.Text6
get Form16.Text8
get Form16.Text26
get Form16.Text9
get Form16.Text33
get Form16.Text34
get Form16.Text35
get Form16.Text36
get Form16.Text10
get Form16.Text11
get Form16.Text12
get Form16.Text13
get Form16.Text14
get Form16.Text16
value Modulus of Rigidity
pause the file has the modulus in whole pounds
file modulus.prm
menu Read
messages
get Form16.Text18
value Modulus of Rigidity
pause opening copies nothing
set Form16.Text1 0.444
choose Form16.Option1(0)
click Form16.subend
menu SPRINGS
get Form16.Text1
get Form16.Option1
value Spring Wire Diameter
messages
