# What the compression ratio screen does with values it cannot compute with: each note at most
# once for a click, else one box that names the field.
menu CompRatio
pause a ratio of 1
set Form1CR.Text17 1
click Form1CR.Command11
click Form1CR.Command12
click Form1CR.Command14
messages
set Form1CR.Text17 13.5
pause a ring land above the bore, a thin one, and one that the user does not enter
set Form1CR.Text20 4.001
click Form1CR.Command10
get Form1CR.Text20
messages
set Form1CR.Text20 3.87
click Form1CR.Command8
messages
check Form1CR.Check3
click Form1CR.Command10
messages
state Form1CR.Text19
state Form1CR.Text20
state Form1CR.Text43
uncheck Form1CR.Check3
state Form1CR.Text19
state Form1CR.Text20
set Form1CR.Text20 3.965
pause a gasket bore out of range, at its ends, and one that the user does not enter
set Form1CR.Text18 4.11
click Form1CR.Command11
messages
set Form1CR.Text18 3.99
click Form1CR.Command14
messages
check Form1CR.Check2
click Form1CR.Command10
messages
state Form1CR.Text14
state Form1CR.Text18
state Form1CR.Text42
uncheck Form1CR.Check2
state Form1CR.Text14
state Form1CR.Text18
set Form1CR.Text18 4
click Form1CR.Command10
set Form1CR.Text18 4.1
click Form1CR.Command10
messages
set Form1CR.Text18 0
click Form1CR.Command20
messages
click Form1CR.Command19
messages
set Form1CR.Text18 4.01
pause a dish radius above its depth
set Form1CR.Text8 0.07
click Form1CR.Command2
get Form1CR.Text8
messages
set Form1CR.Text8 0.5
click Form1CR.Command3
get Form1CR.Text8
get Form1CR.Text6
messages
set Form1CR.Text8 0.5
click Form1CR.Command5
get Form1CR.Text8
messages
set Form1CR.Text5 0
click Form1CR.Command3
set Form1CR.Text6 0
click Form1CR.Command5
set Form1CR.Text6 0.06
set Form1CR.Text7 -1
click Form1CR.Command5
messages
set Form1CR.Text5 3.88
set Form1CR.Text7 11.63
pause no volume
set Form1CR.Text21 0
click Form1CR.Command13
click Form1CR.Command1
set Form1CR.Text21 2
click Form1CR.Command1
set Form1CR.Text21 1.7e308
click Form1CR.Command1
messages
set Form1CR.Text16 100
click Form1CR.Command4
click Form1CR.Command8
messages
set Form1CR.Text16 19.5
set Form1CR.Text15 1e300
click Form1CR.Command4
messages
set Form1CR.Text15 65
pause no ratio to gain by
click Form1CR.Command10
click Form1CR.Command17
set Form1CR.Text29 14
set Form1CR.Text17 0
click Form1CR.Command17
messages
set Form1CR.Text17 13.5
pause no bore, no stroke
set Form1CR.Text3 0
click Form1CR.Command12
get Form1CR.Text3
value Stroke
messages
set Form1CR.Text3 3.25
set Form1CR.Text1 0
set Form1CR.Text20 0
set Form1CR.Text18 0
click Form1CR.Command10
messages
set Form1CR.Text1 4
set Form1CR.Text20 3.965
set Form1CR.Text18 4.01
pause empty and no number
set Form1CR.Text42 
click Form1CR.Command10
set Form1CR.Text42 4.3
set Form1CR.Text15 many
click Form1CR.Command10
click Form1CR.Command11
messages
set Form1CR.Text10 deep
check Form1CR.Check1
get Form1CR.Check1
get Form1CR.Text1
messages
set Form1CR.Text10 0
check Form1CR.Check1
click Form1CR.subend
get Form1CR.Check1
get Form1CR.Text1
messages
pause A dome that fills everything, and ratios below 1
menu CompRatio
set Form1CR.Text16 100
click Form1CR.Command10
messages
get Form1CR.Text17
set Form1CR.Text16 19.5
set Form1CR.Text17 0.5
click Form1CR.Command11
click Form1CR.Command14
click Form1CR.Command12
messages
set Form1CR.Text17 10
set Form1CR.Text6 -1
click Form1CR.Command2
messages
get Form1CR.Text8
pause A box that switches fields off
check Form1CR.Check2
state Form1CR.Text14
set Form1CR.Text14 9.9
type Form1CR.Text14 8
get Form1CR.Text14
uncheck Form1CR.Check2
pause Numbers too small for a chart
menu CompRatio
set Form1CR.Text6 0.06
set Form1CR.Text18 1e-300
click Form1CR.Command19
messages
pause What takes more room than there is, whichever it is, changes no ratio, in the charts neither
set Form1CR.Text1 4
set Form1CR.Text18 4.01
set Form1CR.Text17 9.5
set Form1CR.Text21 61
set Form1CR.Text16 90
click Form1CR.Command8
click Form1CR.Command9
click Form1CR.Command18
click Form1CR.Command19
get Form1CR.Text17
get Form1CR.Text21
set Form1CR.Text16 19.5
set Form1CR.Text10 -1
click Form1CR.Command10
set Form1CR.Text10 0
set Form1CR.Text14 -1
click Form1CR.Command10
set Form1CR.Text14 .021
set Form1CR.Text15 -70
click Form1CR.Command10
set Form1CR.Text15 65
check Form1CR.Check2
set Form1CR.Text42 -80
click Form1CR.Command10
uncheck Form1CR.Check2
set Form1CR.Text21 -5
click Form1CR.Command13
set Form1CR.Text17 -3
click Form1CR.Command6
messages
get Form1CR.Text17
set Form1CR.Text17 9.5
pause A bore of 0 leaves the ring land as it is
set Form1CR.Text1 0
click Form1CR.Command9
get Form1CR.Text20
messages
set Form1CR.Text1 4
pause A negative radius
set Form1CR.Text8 -0.01
click Form1CR.Command2
click Form1CR.Command3
click Form1CR.Command5
messages
set Form1CR.Text8 0
