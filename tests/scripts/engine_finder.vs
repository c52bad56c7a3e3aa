# arguments: --folder finder
pause A make by its menu entry
menu Chrysler_SB
rows Form21.Combo1
state Form21.Combo1
get Form21.Combo1
pause Picks
menu AMC
select Form21.Combo1 I-151 (Pontiac) | 4.00 3.00 6.05 4
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Buick
select Form21.Combo1 I-225 | 3.75 3.4 5.96 6
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Cadillac
select Form21.Combo1 v8-346 5.7L - CTS-V(LS6) | 3.9 3.62 0.0 8
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Chevy_SB
select Form21.Combo1 262 | 3.671 3.109 5.7 8
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Cummins
select Form21.Combo1 I4-122 1991cc Marine | 3.26772 3.62205 0.0 4
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Ford_BB
select Form21.Combo1 332 | 4.0 3.3 0.0 8
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Porsche
select Form21.Combo1 I4-2479cc | 3.93701 3.1063 0.0 8
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Harley_Davidson
select Form21.Combo1 2- 53.88 ci 883 cc | 3.0 3.81102 0.0 2
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Yamaha
select Form21.Combo1 1-49.0 cc | 1.5748 1.53543 0.0 1
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu AirCraft
select Form21.Combo1 1710 ci | 5.5 6.0 0.0 12
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Packard
select Form21.Combo1 I6-237 ci | 3.44 4.25 0.0 6
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
menu Mazda
select Form21.Combo1 I4-1.3L 81ci | 2.79528 3.29134 0.0 4
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
get Form21.Combo1
value Bore
value Number of Cylinders
pause Rows that select nothing
menu AMC
select Form21.Combo1       -- 6 Cylinder --
select Form21.Combo1 499
get Form21.Combo1
get Form1.Text1
menu Chrysler_SB
select Form21.Combo1  
get Form21.Combo1
pause The user's rows
menu User_BSR
rows Form21.Combo1
select Form21.Combo1 Blue 355 | 4.030 3.48 5.7 8
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
select Form21.Combo1 Bad bore | four 3.5 6.0 8
messages
get Form1.Text1
select Form21.Combo1 Short row | 4.25 3.5
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
select Form21.Combo1 No rod | 3.0 2.5 0.0 1
get Form1.Text1
get Form1.Text3
get Form1.Text4
get Form1.Text2
get Form1.Text6
get Form1.Text7
pause Typing narrows the list
menu Chevy_SB
type Form21.Combo1 350 4.0
rows Form21.Combo1
type Form21.Combo1 LS7{BS}6
rows Form21.Combo1
type Form21.Combo1 {ENTER}
get Form21.Combo1
type Form21.Combo1 {BS}
rows Form21.Combo1
pause All makes, from the displacement screen
menu CubicInch
click Form1.EngineFinder
type Form21.Combo1 mazda 81ci
rows Form21.Combo1
messages
