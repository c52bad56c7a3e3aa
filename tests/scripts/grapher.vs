# The grapher: files, zoom, messages.
menu GRAPHER
plot
pause nothing to zoom
click Form8.Command4
click Form8.Command8
messages
pause a file
file graphs/two_curves.txt
click Form8.Read
messages
dialogs
get Form8.Label1
plot
pause an overlay takes the next pen
file graphs/overlay.txt
click Form8.Read
messages
plot
pause zoom of the overlay
click Form8.Command8
click Form8.Command8
messages
plot
pause files that are no graphs leave it as it is
file graphs/bad_color.txt
click Form8.Read
file graphs/bad_style.txt
click Form8.Read
file graphs/no_graph.txt
click Form8.Read
file cancel
click Form8.Read
messages
get Form8.Label1
pause curve types
set Form8.Text6 9
click Form8.Command2
messages
get Form8.Label1
pause other screens take the surface
menu CubicInch
state Form8.Command2
state Form8.Read
state Form8.Text4
state Form8.Command3
menu GRAPHER
state Form8.Command2
click Form8.Command1
