# The timing tape, and a balancer of no size
menu Timing_Tape
state Main.Frame13
get Main.Text18
click Main.Command13
state Main.Frame13
pages
pause typing a diameter is no change of the data
menu Timing_Tape
type Main.Text18 3.99
click Main.Command18
dialogs
click Main.Command13
pages
menu Timing_Tape
set Main.Text18 0
click Main.Command13
messages
state Main.Frame13
set Main.Text18 
click Main.Command13
messages
set Main.Text18 1e9
click Main.Command13
messages
click Main.Command20
state Main.Frame13
pause the printer is cancelled
menu Timing_Tape
set Main.Text18 10
printer cancel
click Main.Command13
messages
menu Exit
messages
