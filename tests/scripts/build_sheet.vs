# A sheet for the engine's folder.
file samples/road_race_four.prm
menu Read
messages
menu CubicInch
menu CompRatio
sheet
show Main.Sheet
press Main.Sheet x
state Main.SheetFrame
pause of one screen that is not open, with its table
sheet Form5
show Main.Sheet
press Main.Sheet ,
pages
pause chosen in the main form
menu Build_Sheet
get Main.Sheet_Form1
get Main.Sheet_Form5
uncheck Main.Sheet_Form1
uncheck Main.Sheet_Form1CR
click Main.Sheet_Make
messages
check Main.Sheet_Form16
click Main.Sheet_Make
show Main.Sheet
press Main.Sheet x
state Main.SheetChoiceFrame
click Main.Sheet_Open
get Main.Sheet_Form16
click Main.Sheet_Done
state Main.SheetChoiceFrame
pause none is open
click Form1.subend
click Form1CR.subend
sheet
show Main.Sheet
history
