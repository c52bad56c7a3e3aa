# What differs between a parameter file and what is there now, and between two files.
menu CubicInch
set Form1.Text1 4.125
click Form1.Command1
file mine.prm
menu Write
messages
pause the same
compare mine.prm
pause another bore
set Form1.Text1 4.25
click Form1.Command1
compare mine.prm
value Bore
get Form1.Text1
pause a file of other values, of few keys: those that it lacks stand with it as "-"
check Form1.Check1
compare samples/motorcycle.prm
uncheck Form1.Check1
pause no file
compare build_sheet.vs
messages
pause as a report
file mine.prm
menu Compare_File
show Main.Sheet
state Main.SheetFrame
file report.txt
press Main.Sheet .
state Main.SheetFrame
pause two files
file mine.prm
file samples/motorcycle.prm
menu Compare_Files
get Main.SheetFrame
press Main.Sheet x
file cancel
menu Compare_File
messages
history
