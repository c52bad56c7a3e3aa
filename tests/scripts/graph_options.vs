# The panel of graph options.
menu Graph
state Main.GraphFrame
get Main.Graph_Head
click Main.Graph_Head
get Main.Graph_Head
value Graph Heads
get Main.Graph_Logo
get Main.Graph_Line_Color
click Main.Graph_Line_Color
get Main.Graph_Line_Color
click Main.Graph_Line_Color
get Main.Graph_Line_Color
click Main.Solid_Line
get Main.Solid_Line
value Solid Switch
pause colors
color 255
click Main.DrawLn
color cancel
click Main.DrawLn
value Draw Line Color
color 65280
click Main.Grid_Color
value Grid Color
pause size
set Main.Text14 40
set Main.Text24 41
hover Main.Command5
get Main.Label77
click Main.Command5
set Main.Text24 3
click Main.Command5
set Main.Text24 65
click Main.Command5
messages
value Custom Graph Width
set Main.Text24 40
click Main.Command5
messages
value Custom Graph Width
value Custom Graph Height
pause grid
set Main.Text19 1
hover Main.Command3
get Main.Label77
click Main.Command3
set Main.Text19 401
click Main.Command3
messages
set Main.Text19 2
set Main.Text20 400
click Main.Command3
messages
value Custom Grid Line Count x
value Custom Grid Line Count y
pause buttons
choose Main.Option5(2)
value Grid Switch
check Main.Check1
value Large Lines
choose Main.Option3(7)
value Graph Font Size
pause moveable lines show on the grapher too
menu GRAPHER
click Main.Graph_Move_Grid
get Form8.Graph_Move_Grid
click Form8.Graph_Move_Grid
get Main.Graph_Move_Grid
hover Main.Command2
get Main.Label77
click Main.Command2
state Main.GraphFrame
value Draw Switch
