# What the two stroke exhaust screen says to values that it cannot compute with: one box for each
# command, the field is named, earlier results stay, later ones keep their text.
menu SRKEXH
pause no report without a chamber
click Form11.ChamberReport
messages
set Form11.Text36 1
set Form11.Text2 125.5
set Form11.Text5 11000
click Form11.Command1
pause a field that is worked out refuses keys, and can be reached
check Form11.Check1
type Form11.Text15 5{TAB}
messages
get Form11.Text15
uncheck Form11.Check1
type Form11.Text15 400{TAB}
get Form11.Text15
check Form11.Check3
type Form11.Text7 5{TAB}
messages
uncheck Form11.Check3
pause no RPM, no cylinders, no bore, no stroke
set Form11.Text5 0
set Form11.LT kept
click Form11.Command1
get Form11.Text12
get Form11.Text10
get Form11.LT
messages
set Form11.Text5 11000
set Form11.Text36 0
click Form11.Command2
set Form11.Text36 1
set Form11.Text1 0
click Form11.Command3
set Form11.Text1 40
set Form11.Text11 0
click Form11.Command4
set Form11.Text11 40
messages
pause texts that are no numbers
set Form11.Text6 much
click Form11.Command1
set Form11.Text6 3.71
set Form11.Text28 
click Form11.Command1
set Form11.Text28 1.125
set Form11.Text30 steep
click Form11.Command1
click Form11.Command3
set Form11.Text30 8.5
set Form11.Text36 40000
click Form11.Command1
set Form11.Text36 1
messages
pause no horn without diameters
set Form11.Text28 0
click Form11.Command1
get Form11.D1
click Form11.Command2
get Form11.L6
get Form11.D1
messages
set Form11.Text28 1.125
set Form11.Text29 0
click Form11.Command2
set Form11.Text29 2.25
set Form11.Text3 0
click Form11.Command2
set Form11.Text3 19.5
set Form11.Text4 0
click Form11.Command2
set Form11.Text4 9.25
messages
pause no length
set Form11.Text2 0
click Form11.Command1
click Form11.Command2
get Form11.LT
set Form11.Text2 125.5
set Form11.Text7 0
click Form11.Command1
messages
set Form11.Text7 518.15
pause no angles
set Form11.Text31 0
click Form11.Command3
set Form11.Text31 17
set Form11.Text30 0
click Form11.Command4
get Form11.L2
set Form11.Text30 8.5
messages
pause below absolute zero
set Form11.Text15 -300
check Form11.Check3
click Form11.Command1
uncheck Form11.Check3
messages
pause too hot to compute
set Form11.Text15 380
set Form11.Text6 1e9
check Form11.Check1
click Form11.Command1
uncheck Form11.Check1
set Form11.Text6 3.71
messages
pause a negative section is shown and told
set Form11.Text34 40
click Form11.Command3
get Form11.L5
state Form11.Remark
get Form11.Remark
set Form11.Text34 8
click Form11.Command3
state Form11.Remark
messages
pause unusual values are told, and computed with
set Form11.Text28 1.3
state Form11.StageHints
get Form11.StageHints
set Form11.Text30 12
set Form11.Text32 9
get Form11.SingleHints
click Form11.Command1
set Form11.Text28 1.1
state Form11.StageHints
messages
