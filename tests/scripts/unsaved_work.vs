# When the program asks about work that is not saved, and what settles the question.
menu CubicInch
pause read, no, and then cancel: the work is still there and still asked about
type Form1.Text1 4.03
answer No
file cancel
menu Read
messages
get Form1.Text1
pause read, yes, and a save that is cancelled: nothing is read, the next try asks again
answer Yes
file cancel
menu Read
messages
dialogs
pause exit, yes, and a save that is cancelled: the program stays
answer Yes
file cancel
menu Exit
messages
get Form1.Text1
pause a write settles it
file unsaved-work.prm
menu Write
messages
dialogs
file cancel
menu Read
messages
dialogs
pause read, yes, a save, and then cancel: settled by the save
type Form1.Text1 4.06
answer Yes
file unsaved-work.prm
file cancel
menu Read
messages
dialogs
file cancel
menu Read
messages
pause read, no, and a file: settled by the reading
type Form1.Text1 4.25
answer No
file unsaved-work.prm
menu Read
messages
file cancel
menu Read
messages
value Bore
pause a box, an option and a pick that the file holds ask as a typed key does
check Form1.Check3
answer No
file unsaved-work.prm
menu Read
messages
choose Form1.Option1(1)
answer No
file unsaved-work.prm
menu Read
messages
menu CompGauge
select Form12.Combo1 1.25
answer No
file unsaved-work.prm
menu Read
messages
pause what stands so already, and what no file holds, do not ask
check Form1.Check2
choose Form1.Option2(2)
choose Form1.Option1(0)
uncheck Form1.Check3
file cancel
menu Read
messages
pause options of the main form do not ask
menu Graph
check Main.Check1
choose Main.Option5(2)
type Main.Text19 20
click Main.Command3
click Main.Command2
file cancel
menu Read
messages
value Custom Grid Line Count x
value Grid Switch
pause nor does leaving
menu Exit
messages
