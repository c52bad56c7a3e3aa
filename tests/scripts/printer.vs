# The printer dialog: paper upright or lying, cancelled, and what was chosen before.
menu CubicInch
set Form1.Text39 90
pause a report on paper that lies
click Form1.Command18
printer landscape
press Form1.Text38 ,
pages
state Form1.Text38
pause the next dialog shows what was chosen
click Form1.Command18
press Form1.Text38 ,
pages
pause a report on upright paper
click Form1.Command18
printer portrait
press Form1.Text38 ,
pages
pause a cancelled dialog prints nothing
click Form1.Command18
printer cancel
press Form1.Text38 ,
messages
state Form1.Text38
pause chosen by the printer setup of the menu
printer landscape
menu Printer
messages
click Form1.Command18
press Form1.Text38 ,
pages
printer cancel
menu Printer
messages
pause a screen is printed where there is a printer, and not when its dialog is cancelled
printer cancel
menu Print1
messages
menu Print1
messages
