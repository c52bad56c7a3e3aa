# Timing, lifts and durations of the camshaft screen, every command with its own values and others.
# The expected values were worked out by hand.
menu CAM_INFO
pause a fresh screen
get Form2.Text1
get Form2.Text2
get Form2.Text6
get Form2.Text5
get Form2.Text12
get Form2.Text13
get Form2.Text14
get Form2.Text23
get Form2.Text3
get Form2.Text4
get Form2.Text9
get Form2.Text8
get Form2.Text20
get Form2.Text21
get Form2.Text22
get Form2.Text24
get Form2.Text10
get Form2.Text11
get Form2.Text16
get Form2.Text15
get Form2.Text17
get Form2.Text18
get Form2.Text27
get Form2.Text19
get Form2.Text25
get Form2.Option1
get Form2.Option2
get Form2.Label1(15)
show Form2.LiftFigures
pause its own events: 318 and 316 degrees, 117 separation, half a degree advanced
click Form2.Command1
get Form2.Text6
get Form2.Text9
get Form2.Text5
get Form2.Text8
get Form2.Text10
get Form2.Text11
get Form2.Text16
value Intake Duration
value Exhaust CL
value Advance Retard
pause 20-60-60-20 is 260 degrees
set Form2.Text1 20
set Form2.Text2 60
set Form2.Text3 60
set Form2.Text4 20
click Form2.Command1
get Form2.Text6
get Form2.Text9
get Form2.Text5
get Form2.Text8
get Form2.Text10
get Form2.Text11
get Form2.Text16
pause advanced 5: 25-55-65-15
set Form2.Text11 5
click Form2.Command8
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text5
get Form2.Text8
get Form2.Text10
get Form2.Text11
get Form2.Text16
pause a second click turns it once more
click Form2.Command8
get Form2.Text1
get Form2.Text11
pause from 20-60-60-20 retarded 5: 15-65-55-25, by durations and centerlines
set Form2.Text6 260
set Form2.Text9 260
set Form2.Text5 110
set Form2.Text8 110
set Form2.Text11 -5
click Form2.Command7
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text5
get Form2.Text8
get Form2.Text10
get Form2.Text11
get Form2.Text16
pause 6-42 is 228 degrees with a centerline of 108
set Form2.Text1 6
set Form2.Text2 42
click Form2.Command1
get Form2.Text6
get Form2.Text5
pause and back from durations and centerlines
set Form2.Text1 0
set Form2.Text2 0
set Form2.Text3 0
set Form2.Text4 0
set Form2.Text9 236
set Form2.Text8 112
click Form2.Command2
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text10
get Form2.Text11
get Form2.Text16
pause 110 on 112 is 2 degrees advanced
set Form2.Text5 110
set Form2.Text10 112
click Form2.Command3
get Form2.Text8
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text10
get Form2.Text11
get Form2.Text16
pause valve lift and cam lift
set Form2.Text12 .32
set Form2.Text14 1.6
set Form2.Text20 .31
set Form2.Text22 1.5
click Form2.Command4
get Form2.Text13
get Form2.Text21
set Form2.Text13 .48
set Form2.Text21 .48
click Form2.Command5
get Form2.Text12
get Form2.Text20
value Cam LIft
value Exhaust Cam LIft
pause durations by ratio: 270 at 9, 284.75 at 10.5, 260 at 8, 311 at 13.5
set Form2.Text15 9
click Form2.Command6
get Form2.Text6
set Form2.Text15 10.5
click Form2.Command6
get Form2.Text6
set Form2.Text15 8
click Form2.Command6
get Form2.Text6
set Form2.Text15 13.5
click Form2.Command6
get Form2.Text6
pause at 2500 RPM the size has no part: (270 + 225) / 2
set Form2.Text15 9
set Form2.Text17 2500
click Form2.Command9
get Form2.Text6
pause cylinders of 500 cc at 6500 RPM: (270 + 265) / 2
set Form2.Text18 122.047488
get Form2.Text27
set Form2.Text19 4
set Form2.Text17 6500
click Form2.Command9
get Form2.Text6
value Cubic Inches
value Number of Cylinders
pause other screens have what was shared, and this one what they changed
menu CubicInch
get Form1.Text6
get Form1.Text2
set Form1.Text5 7250
click Form1.Command6
click Form1.subend
menu CAM_INFO
get Form2.Text17
get Form2.Text18
get Form2.Text6
pause metric: lifts and lash change, degrees stay
set Form2.Text12 .4
set Form2.Text13 .6
set Form2.Text20 .3
set Form2.Text21 .5
check Form2.Check1
get Form2.Text12
get Form2.Text13
get Form2.Text20
get Form2.Text21
get Form2.Text23
get Form2.Text24
get Form2.Text6
get Form2.Text10
get Form2.Text18
value Cam LIft
click Form2.Command4
get Form2.Text13
click Form2.Command5
get Form2.Text12
click Form2.Command1
get Form2.Text6
click Form2.Command9
get Form2.Text6
uncheck Form2.Check1
get Form2.Text12
get Form2.Text13
get Form2.Text23
get Form2.Text24
value Cam LIft
value Valve LIft
value Intake Lash
hover Form2.Command8
get Form2.Text38
hover Form2.Command3
get Form2.Text38
click Form2.subend
messages
