# arguments: --folder finder
# Picks cars from the lists of the drag finder.
pause the American cars
menu CD_FA
state Form20.Combo1
state Form20.Combo2
type Form20.Combo1 '08 avenger
rows Form20.Combo1
press Form20.Combo1 {ENTER}
get Form20.Combo1
get Form20.Label1
value Coefficient of Drag
value Frontal Area
pause a row with a coefficient alone leaves the area
type Form20.Combo1 pacer
press Form20.Combo1 {ENTER}
get Form20.Label1
value Coefficient of Drag
value Frontal Area
pause headings and rows without figures pick nothing
type Form20.Combo1 yamaha
rows Form20.Combo1
select Form20.Combo1        -- Bonneville --
press Form20.Combo1 {ENTER}
value Coefficient of Drag
click Form20.subend
state Form20.Combo1
pause the others
menu CD_FA_Other
state Form20.Combo1
state Form20.Combo2
type Form20.Combo2 polo
rows Form20.Combo2
press Form20.Combo2 {ENTER}
value Coefficient of Drag
value Frontal Area
hover Form20.subend
get Form20.Label1
click Form20.subend
pause both at once, with one's own
menu CoeffDrag_FrontalArea
type Form20.Combo1 corvette 0.29
rows Form20.Combo1
type Form20.Combo1 kit
rows Form20.Combo1
press Form20.Combo1 {ENTER}
value Coefficient of Drag
value Frontal Area
type Form20.Combo1 alone
press Form20.Combo1 {ENTER}
value Coefficient of Drag
value Frontal Area
type Form20.Combo1 bad car
press Form20.Combo1 {ENTER}
type Form20.Combo1 no figures
press Form20.Combo1 {ENTER}
type Form20.Combo1 minus
press Form20.Combo1 {ENTER}
type Form20.Combo1 bad area
press Form20.Combo1 {ENTER}
messages
value Coefficient of Drag
value Frontal Area
click Form20.subend
messages
