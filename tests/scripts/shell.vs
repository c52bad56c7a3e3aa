# The main form: menu switches, notes, reading and writing, clearing, leaving.
pause what is there and what is not yet
get Main.CubicInch
state Main.CubicInch
get Main.CHASSIS
state Main.CHASSIS
state Main.File
state Main.Tools
state Main.CoeffDrag_FrontalArea
get Main.SRKVAL
state Main.Frame12
get Main.Label8
pause the metric switch of the menu ticks the box of a screen as it opens
menu Metric
get Main.Metric
menu CubicInch
get Form1.Check1
get Form1.Text1
click Form1.subend
get Form1.Check1
get Form1.Text1
menu Metric
get Main.Metric
menu CubicInch
get Form1.Check1
pause company info on every page
menu Print_CI
get Main.Print_CI
value Print Heads
menu Print_CI
get Main.Print_CI
pause the size of the screen
menu ScrRes
messages
pause notes
menu Notes
state Main.Frame12
set Main.Text22 Small block\nsecond line
click Main.Command12
state Main.Frame12
menu Notes
get Main.Text22
set Main.Text22 Small block\nsecond line
click Main.Command11
state Main.Frame12
menu Notes
get Main.Text22
click Main.Command12
pause saving and reading
file shell-test.prm
menu Write
messages
dialogs
get Main.Label8
type Form1.Text1 4.03
click Form1.Command1
get Form1.Text6
answer No
file shell-test.prm
menu Read
messages
dialogs
get Form1.Text1
value Bore
menu CubicInch
get Form1.Text1
get Form1.Text6
menu Notes
get Main.Text22
click Main.Command12
pause a cancelled dialog changes nothing
file cancel
menu Write
file cancel
menu Read
messages
dialogs
get Main.Label8
pause reading asks before changed data go
type Form1.Text3 3.48
answer Yes
file shell-test.prm
file shell-test.prm
menu Read
messages
pause clear
answer Cancel
menu Clear
get Form1.Text1
answer OK
menu Clear
messages
get Form1.Text1
get Form1.Text24
menu CubicInch
get Form1.Text1
value Bore
pause leaving
type Form1.Text1 4
answer Cancel
menu Exit
messages
answer No
menu Exit
messages
