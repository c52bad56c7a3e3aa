# The unit screen besides its numbers: conversion while the value is typed, the unit that stays,
# what is no number or too large, and help.
menu UNIT
pause typing converts, and so does another unit
type Form9.Text1 -40
show Form9.Text2
choose Form9.Option1(24)
show Form9.Text2
click Form9.Command1
show Form9.Text2
type Form9.Text1 1.2.5
get Form9.Text1
messages
pause what is no number leaves the last values
set Form9.Text1 
show Form9.Text2
click Form9.Command1
messages
show Form9.Text2
set Form9.Text1 warm
click Form9.Command1
set Form9.Text1 -
click Form9.Command1
messages
show Form9.Text2
pause numbers beyond all bounds
choose Form9.Option1(25)
set Form9.Text1 1e308
click Form9.Command1
set Form9.Text1 1e999
click Form9.Command1
messages
show Form9.Text2
set Form9.Text1 2
show Form9.Text2
pause results take no key
type Form9.Text2 7
show Form9.Text2
pause the unit stays while the program runs
click Form9.subend
menu UNIT
get Form9.Option1
get Form9.Text1
show Form9.Text2
pause help
hover Form9.Command1
get Form9.Text38
hover Form9.Text1
get Form9.Text38
hover Form9.Option1(3)
state Form9.Text38
hover Form9.subend
get Form9.Text38
hover Form9
state Form9.Text38
pause blank forms
answer OK
menu Clear
messages
get Form9.Text1
get Form9.Text2
choose Form9.Option1(9)
get Form9.Text2
messages
