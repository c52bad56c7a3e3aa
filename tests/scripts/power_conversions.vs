# Power curves and graph files converted without a screen
pause RPM and torque from a file with commas
menu CheckT
state Main.Frame8
set Main.Text11 ,
file cams/pull.csv
file torque.prm
click Main.Command14
state Main.Frame8
dialogs
messages
pause the same with fuel, BSFC and A/F for a dyno sheet
menu CheckT_All
file cams/pull.csv
file sheet.prm
click Main.Command14
messages
pause RPM and horsepower, in field 6
menu CheckH
set Main.Text12 6
file cams/pull.csv
file power.prm
click Main.Command14
messages
pause the parameter reader takes it
file power.prm
menu Read
messages
file torque.prm
menu Read
messages
pause columns with blanks and tabs between them
menu CheckT
set Main.Text11 
set Main.Text12 2
file cams/pull.prt
file blanks.prm
click Main.Command14
messages
pause a graph of two columns
menu CheckVELDOX
set Main.Text11 ,
set Main.Text13 2
set Main.Text12 6
file cams/pull.csv
file graph.prm
click Main.Command14
messages
file graph.prm
menu GRAPHER
click Form8.Read
plot
pause its axes turned
file cams/curve.prm
file turned.prm
menu CheckAxis
messages
file turned.prm
file back.prm
menu CheckAxis
messages
file cams/curve.prm
click Form8.Read
plot
file turned.prm
click Form8.Read
plot
messages
pause files of simulations
file cams/sim.dyn
file dyn.prm
menu CheckCQU
dialogs
messages
file cams/sim.dym
file dym.prm
menu CheckCQU
messages
file cams/sheet.txt
file text.prm
menu CheckCQU
messages
pause nothing of the kind
file cams/no_power.cqu
menu CheckCQU
messages
menu CheckT
set Main.Text13 0
click Main.Command14
messages
set Main.Text13 9
file cams/pull.csv
click Main.Command14
messages
menu CheckT
set Main.Text13 1
set Main.Text12 x
click Main.Command14
messages
click Main.Command15
state Main.Frame8
file cancel
menu CheckCQU
file cancel
menu CheckAxis
messages
