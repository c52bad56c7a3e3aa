# What the port timing screen says to values that it cannot compute with: one box for each
# command, the field is named, earlier results stay, later ones keep their text.
menu SRKVAL
pause no stroke
set Form18.Text3 0
click Form18.Command1
click Form18.Command2
click Form18.Command7
click Form18.Command8
click Form18.Command17
messages
set Form18.Text3 3.25
pause no text
set Form18.Text1 
click Form18.Command11
set Form18.Text1 4
set Form18.Text47 wide
click Form18.Command1
click Form18.Command7
click Form18.Command20
messages
set Form18.Text47 74.125
pause no RPM: angle and duration are shown, the time is not
set Form18.Text5 0
set Form18.Text6 9
click Form18.Command2
get Form18.Text47
get Form18.Text2
get Form18.Text6
click Form18.Command7
get Form18.Text17
get Form18.Text18
click Form18.Command14
click Form18.Command19
messages
pause without revolutions the gas stands still
click Form18.Command17
get Form18.Text41
messages
set Form18.Text5 6500
pause ports beyond the stroke, at its ends, and above the piston
set Form18.Text48 3.26
click Form18.Command2
messages
set Form18.Text48 3.25
click Form18.Command2
get Form18.Text47
get Form18.Text2
set Form18.Text48 0
click Form18.Command2
get Form18.Text47
get Form18.Text2
set Form18.Text10 0.02
set Form18.Text48 0.01
click Form18.Command2
messages
set Form18.Text48 0.02
click Form18.Command9
messages
set Form18.Text48 1.399
set Form18.Text10 0
pause a rod that is too short
set Form18.Text4 1.6
click Form18.Command1
click Form18.Command2
set Form18.Text47 90
click Form18.Command1
click Form18.Command17
click Form18.Command21
messages
set Form18.Text4 5.7
set Form18.Text47 74.125
pause ratios
set Form18.Text20 1
click Form18.Command8
get Form18.Text21
get Form18.Text30
get Form18.Text31
click Form18.Command10
click Form18.Command17
messages
set Form18.Text20 10.1
pause no bore, no cylinders
set Form18.Text1 0
click Form18.Command11
click Form18.Command14
click Form18.Command15
get Form18.Text35
click Form18.Command20
messages
set Form18.Text1 4
set Form18.Text50 0
click Form18.Command14
set Form18.Text50 99999
click Form18.Command14
messages
set Form18.Text50 1
pause the piston has its area whatever the ratio is
set Form18.Text1 2
set Form18.Text37 half
click Form18.Command15
get Form18.Text35
get Form18.Text36
messages
set Form18.Text1 4
pause no squish band, no closing
set Form18.Text37 0
click Form18.Command17
click Form18.Command15
get Form18.Text36
get Form18.Text40
set Form18.Text37 0.53
set Form18.Text47 0.5
click Form18.Command21
click Form18.Command20
set Form18.Text47 1.5
click Form18.Command22
click Form18.Command20
get Form18.Text42
set Form18.Text38 .
click Form18.Command16
set Form18.Text38 0
set Form18.Text47 74
click Form18.Command17
get Form18.Text41
messages
pause numbers beyond all engines
set Form18.Text38 0.047244
set Form18.Text1 1e200
click Form18.Command8
click Form18.Command17
check Form18.Check1
get Form18.Check1
get Form18.Text1
uncheck Form18.Check1
get Form18.Text1
messages
set Form18.Text1 4
set Form18.Text33 1e308
click Form18.Command18
get Form18.Text43
messages
pause what is negative is shown
set Form18.Text33 5
click Form18.Command18
get Form18.Text45
set Form18.Text14 70
click Form18.Command7
get Form18.Text17
messages
pause metric does not take what is no number
set Form18.Text4 rod
check Form18.Check1
get Form18.Check1
messages
