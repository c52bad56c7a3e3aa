# The report box and its keys, the limits of a table, pages, and what wrong ranges get.
menu CubicInch
check Form1.Check3
set Form1.Text39 90

pause a report stays until a key closes it
state Form1.Text38
click Form1.Command18
state Form1.Text38
hover Form1.Command1
get Form1.Text38
get Form1.Label7
press Form1.Text38 x
state Form1.Text38
get Form1.Text38

pause written to a file
click Form1.Command18
file load.prt
press Form1.Text38 .
dialogs
state Form1.Text38

pause the dialog cancelled: the report closes as with any key
click Form1.Command18
file cancel
press Form1.Text38 .
messages
state Form1.Text38

pause printed
pages
click Form1.Command18
press Form1.Text38 ,
pages
state Form1.Text38

pause closed by the screen
click Form1.Command18
click Form1.subend
state Form1.Text38
get Form1.Text38
menu CubicInch

pause two rows when the step is the range
set Form1.Text40 10
set Form1.Text41 100
click Form1.Command21
show Form1.Text38

pause one row when the range is a point
uncheck Form1.Check3
set Form1.Text41 10
click Form1.Command18
show Form1.Text38

pause wrong ranges
set Form1.Text40 0
set Form1.Text41 360
set Form1.Text39 0.09
click Form1.Command20
show Form1.Text38
set Form1.Text39 5
set Form1.Text41 360.001
click Form1.Command19
show Form1.Text38
set Form1.Text40 361
click Form1.Command21
show Form1.Text38
set Form1.Text40 370
click Form1.Command17
show Form1.Text38
set Form1.Text40 -720
set Form1.Text39 0.25
click Form1.Command18
show Form1.Text38
press Form1.Text38 x
messages
set Form1.Text40 0
set Form1.Text41 360
set Form1.Text39 0
click Form1.Command18
set Form1.Text39 -5
click Form1.Command18
set Form1.Text39
click Form1.Command18
messages
set Form1.Text40 90
set Form1.Text41 90
set Form1.Text39 1e-20
click Form1.Command18
messages

pause many lines
set Form1.Text40 0
set Form1.Text41 180.25
set Form1.Text39 0.25
click Form1.Command18
press Form1.Text38 x
messages
set Form1.Text41 180.5
click Form1.Command18
press Form1.Text38 x
messages
check Form1.Check3
click Form1.Command18
press Form1.Text38 x
messages
set Form1.Text41 299.75
click Form1.Command18
press Form1.Text38 x
messages

pause engines that cannot be
set Form1.Text39 90
set Form1.Text40 0
set Form1.Text41 360
set Form1.Text5 0
click Form1.Command20
click Form1.Command21
set Form1.Text5 6500
set Form1.Text32 5
click Form1.Command17
click Form1.Command19
set Form1.Text32 0
set Form1.Text20 0
click Form1.Command20
set Form1.Text20 2.25
set Form1.Text31 0
click Form1.Command17
set Form1.Text31 700.5
set Form1.Text4 1
click Form1.Command20
get Form1.Text4
state Form1.Text38
messages
