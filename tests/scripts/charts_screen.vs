# What charts have besides their lines: help, the keys of the report box, pages, the file, and
# a decimal comma in another script.
menu EQUIV
hover Form10.Command1
get Form10.Text38
hover Form10.Command2
get Form10.Text38
hover Form10.Command3
get Form10.Text38
hover Form10.Command30
get Form10.Text38
hover Form10.Command18
get Form10.Text38
hover Form10.Command19
get Form10.Text38
hover Form10.Command20
get Form10.Text38
hover Form10.Command31
get Form10.Text38
hover Form10.Command32
get Form10.Text38
hover Form10.Command4
get Form10.Text38
hover Form10.Command5
get Form10.Text38
hover Form10.Command6
get Form10.Text38
hover Form10.Command7
get Form10.Text38
hover Form10.Command8
get Form10.Text38
hover Form10.Command9
get Form10.Text38
hover Form10.Command10
get Form10.Text38
hover Form10.Command11
get Form10.Text38
hover Form10.Command12
get Form10.Text38
hover Form10.Command13
get Form10.Text38
hover Form10.Command14
get Form10.Text38
hover Form10.Command15
get Form10.Text38
hover Form10.Command16
get Form10.Text38
hover Form10.Command17
get Form10.Text38
hover Form10.Command21
get Form10.Text38
hover Form10.Command22
get Form10.Text38
hover Form10.Command23
get Form10.Text38
hover Form10.Command24
get Form10.Text38
hover Form10.Command25
get Form10.Text38
hover Form10.Command26
get Form10.Text38
hover Form10.Command27
get Form10.Text38
hover Form10.Command28
get Form10.Text38
hover Form10.Command29
get Form10.Text38
hover Form10
state Form10.Text38
pause a chart is printed without the hint
click Form10.Command20
press Form10.Text38 ,
pages
state Form10.Text38
click Form10.Command19
printer landscape
press Form10.Text38 ,
pages
pause the point writes it
click Form10.Command32
file dash.txt
press Form10.Text38 .
dialogs
state Form10.Text38
pause any other key closes it
click Form10.Command2
press Form10.Text38 x
state Form10.Text38
get Form10.Text38
pause quitting closes it
click Form10.Command3
hover Form10.Command2
click Form10.subend
menu EQUIV
state Form10.Text38
messages
