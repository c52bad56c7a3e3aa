# arguments: --folder finder
# Picks transmissions from the lists of the finder and looks at the screens that they fill.
menu GEAR
set Form5.Text2(0) 9.9
pause a motorcycle, with its primary and secondary drive and their teeth
menu Motorc
get Form19.Combo1
type Form19.Combo1 rsv4 '09
rows Form19.Combo1
press Form19.Combo1 {ENTER}
get Form19.Label1
get Form5.Check2
get Form5.Text62
get Form5.Text18
get Form5.Text60
get Form5.Text61
get Form5.Text29
get Form5.Text30
get Form5.Text2(0)
get Form5.Text2(5)
get Form5.Text2(6)
value Use Primary Drive
value Automatic Trans
click Form5.Command1
get Form5.Text62
get Form5.Label2(13)
pause one whose teeth nobody knows keeps its ratio until they are entered
type Form19.Combo1 cbr600rr p-2.1111
press Form19.Combo1 {ENTER}
get Form5.Text62
click Form5.Command1
get Form5.Text62
value Primary Drive
set Form5.Text60 20
click Form5.Command1
get Form5.Text62
pause the misprinted teeth
type Form19.Combo1 v rod
press Form19.Combo1 {ENTER}
get Form5.Text61
get Form5.Text60
pause an automatic switches the primary drive off and the converter on
menu Automatic
type Form19.Combo1 10r80
press Form19.Combo1 {ENTER}
get Form19.Label1
get Form5.Check2
get Form5.Text2(0)
get Form5.Text2(9)
get Form5.Text18
get Form3.Check2
state Form3.Text26
value T Gear 9
pause all lists at once, with the one in use found again
menu Trans
type Form19.Combo1 tremec tko-600
rows Form19.Combo1
press Form19.Combo1 {ENTER}
get Form19.Label1
get Form3.Check2
get Form5.Text2(4)
get Form5.Text2(9)
pause rows without figures and headings pick nothing
menu Quaife
type Form19.Combo1 vincent
rows Form19.Combo1
press Form19.Combo1 {ENTER}
value T Gear 0
pause the user's own
menu User_Trans
rows Form19.Combo1
type Form19.Combo1 five
press Form19.Combo1 {ENTER}
get Form5.Text2(0)
value T Gear 4
value T Gear 5
type Form19.Combo1 bad
press Form19.Combo1 {ENTER}
type Form19.Combo1 none
press Form19.Combo1 {ENTER}
type Form19.Combo1 eleven
press Form19.Combo1 {ENTER}
messages
value T Gear 0
click Form5.GearboxFinder
get Form19.Label1
click Form19.subend
messages
