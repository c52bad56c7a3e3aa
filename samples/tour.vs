# A short tour: the engine of a small-block drag car, stated, solved and saved.
pause VELDOX: a tour of the displacement screen
picture Main veldox-main.png
pause
pause A parameter file is read
file small_block_drag.prm
menu Read
get Main.Label8
pause
pause The displacement screen
menu CubicInch
get Form1.Text1
get Form1.Text3
click Form1.Command1
get Form1.Text6
get Form1.Text12
get Form1.Text13
picture Form1 veldox-displacement.png
pause
pause A bore of 4.185 inches, typed
type Form1.Text1 4.185{TAB}
click Form1.Command1
get Form1.Text6
pause
pause The bore for 383 cubic inches
set Form1.Text6 383
click Form1.Command2
get Form1.Text1
pause
pause The same engine in millimetres and cc
check Form1.Check1
get Form1.Text1
get Form1.Text3
get Form1.Text6
picture Form1 veldox-displacement-metric.png
uncheck Form1.Check1
pause
pause A slip of the finger is told, with the name of the field
set Form1.Text3 3.7x
click Form1.Command1
messages
pause
pause An engine from the list: every 350 with a bore of 4.0 and some
menu Engine_Spec
type Form21.Combo1 350 4.0
rows Form21.Combo1
picture Form21 veldox-engine-finder.png
select Form21.Combo1 350 | 4.00 3.48 5.7 8
get Form1.Text6
pause
pause Two camshafts: the lift of their valves on one graph
menu CAM_INFO
choose Form2.Option2(1)
file street_hydraulic.cmm
click Form2.Command11
file drag_solid_roller.cmm
click Form2.Command15
messages
picture Form2 veldox-camshaft.png
picture Form8 veldox-valve-lifts.png
