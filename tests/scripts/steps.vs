# Steps that are undone and done again, previews, series and targets.
menu CubicInch
pause Typing is one step until the field is left
type Form1.Text1 4.2{BS}125{TAB}
history
preview Form1.Command1
get Form1.Text6
click Form1.Command1
get Form1.Text6
history
undo
get Form1.Text6
get Form1.Text1
undo
get Form1.Text1
value Bore
undo
get Form1.Text1
redo
redo
redo
get Form1.Text6
value Bore

pause What cannot be worked out is told before
set Form1.Text2 0
preview Form1.Command3
get Form1.Text3
messages
undo
get Form1.Text2

pause Units
check Form1.Check1
get Form1.Text1
history
undo
get Form1.Text1
get Form1.Check1
redo
get Form1.Text1
value Bore
undo

pause A new step ends what could be done again
set Form1.Text3 3.5
leave Form1.Text3
redo
history

pause A screen that was never opened
preview Form16.Command1
preview Form5.Command7

pause Commands that ask for files and that print
preview Form4.CommandF7(11)
preview Form8.Save_Points
preview Form8.Read
preview Form1.subend

pause Series
vary Form1.Text1 4 4.3 .1 Form1.Command1 Form1.Text6 Form1.Text11
vary Form1.Text1 4.1 4 -.05 Form1.Command1 Form1.Text6
vary Form1.Text2 0 2 1 Form1.Command3 Form1.Text3
vary Form1.Text1 4 5 0 Form1.Command1 Form1.Text6
vary Form1.Text1 5 4 1 Form1.Command1 Form1.Text6
vary Form1.Text24 5 4 1 Form1.Command1 Form1.Text6
get Form1.Text1
get Form1.Text2

pause Targets
seek Form1.Text1 3 5 Form1.Command1 Form1.Text6 400
get Form1.Text1
get Form1.Text6
history
undo
get Form1.Text1
seek Form1.Text1 3 3.5 Form1.Command1 Form1.Text6 400
seek Form1.Text1 5 3 Form1.Command1 Form1.Text6 400
get Form1.Text1

pause Clear is undone as a whole
answer OK
menu Clear
get Form1.Text1
get Form1.Text6
undo
get Form1.Text1
get Form1.Text6
messages

pause The list of the steps
menu Steps
rows Main.StepList
select Main.StepList Before the first step
get Form1.Text1
menu Redo
get Form1.Text1
menu Undo
get Form1.Text1
history
