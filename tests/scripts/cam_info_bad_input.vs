# What the camshaft screen does with values and files it cannot work with: one box that names the
# field or the line, and nothing is lost.
menu CAM_INFO
pause every field of every command, empty or a word
set Form2.Text1 
click Form2.Command1
click Form2.Command8
set Form2.Text1 42.5
set Form2.Text4 late
click Form2.Command1
set Form2.Text4 40.5
set Form2.Text6 
click Form2.Command2
click Form2.Command3
click Form2.Command7
set Form2.Text6 318
set Form2.Text8 -
click Form2.Command2
click Form2.Command3
get Form2.Text8
set Form2.Text10 
click Form2.Command3
set Form2.Text10 117
set Form2.Text11 
click Form2.Command7
click Form2.Command8
set Form2.Text11 0
set Form2.Text12 
click Form2.Command4
check Form2.Check1
get Form2.Check1
set Form2.Text12 .4
set Form2.Text14 0
click Form2.Command5
click Form2.Command4
get Form2.Text13
set Form2.Text14 1.5
set Form2.Text22 0
click Form2.Command5
set Form2.Text22 1.5
set Form2.Text15 
click Form2.Command6
click Form2.Command9
set Form2.Text15 10
set Form2.Text19 0
click Form2.Command9
set Form2.Text19 99999
click Form2.Command9
set Form2.Text19 8
set Form2.Text18 -350
click Form2.Command9
set Form2.Text18 350
set Form2.Text17 
click Form2.Command9
set Form2.Text17 6500
set Form2.Text1 1e308
set Form2.Text2 1e308
click Form2.Command1
get Form2.Text6
set Form2.Text1 42.5
set Form2.Text2 95.5
set Form2.Text15 1e300
click Form2.Command6
set Form2.Text15 10
messages
pause an unrelated empty field ends no command
set Form2.Text13 
set Form2.Text17 
click Form2.Command1
get Form2.Text10
click Form2.Command4
get Form2.Text13
set Form2.Text17 6500
messages
pause files that are no lift files
file cam_info/empty.cmm
click Form2.Command10
file cam_info/no_intake.cmm
click Form2.Command11
file cam_info/card.cam
click Form2.Command10
file cam_info/bad_record.cmm
click Form2.Command10
file cam_info/bad_step.cmm
click Form2.Command11
file cam_info/too_many.cmm
click Form2.Command11
file cam_info/short_header.c4
click Form2.Command10
file cancel
click Form2.Command10
file cancel
click Form2.Command11
file cancel
click Form2.Command15
messages
dialogs
plot
show Form2.LiftFigures
pause a row without comma ends the reading; what stands before it is drawn
file cam_info/bad_row.c3
click Form2.Command10
messages
plot
pause a smooth type that is none, and empty fields of the graphs
check Form2.Check3
set Form2.Text25 XY
click Form2.Command12
click Form2.Command13
click Form2.Command14
uncheck Form2.Check3
set Form2.Text25 
click Form2.Command12
set Form2.Text14 
click Form2.Command12
click Form2.Command13
set Form2.Text14 1.5
choose Form2.Option2(4)
file cam_info/huge.cmm
click Form2.Command11
click Form2.Command14
choose Form2.Option2(0)
file cam_info/small.cmm
click Form2.Command10
set Form2.Text24 x
click Form2.Command12
set Form2.Text24 .03
messages
pause cards that are none, and cards that are cut short
file cam_info/card_type.cam
click Form2.Read
get Form2.Label1(15)
file cam_info/harmonic.cmm
click Form2.Read
file cam_info/empty.cmm
click Form2.Read
get Form2.Text1
file cam_info/card_short.cam
click Form2.Read
get Form2.Label1(15)
get Form2.Text13
get Form2.Text1
get Form2.Text2
file cam_info/card_word.cam
click Form2.Read
get Form2.Text13
get Form2.Text21
file cancel
click Form2.Read
check Form2.Check2
file cam_info/card.dym
click Form2.Read
get Form2.Label1(15)
get Form2.Text1
get Form2.Text4
pause the first timing of such a card is calculated with, 30 + 66 + 180 = 276 degrees
get Form2.Text6
file cam_info/card_short050.cqu
click Form2.Read
get Form2.Label1(15)
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text6
get Form2.Text12
set Form2.Text14 
uncheck Form2.Check2
file cam_info/card.cam
click Form2.Read
get Form2.Text6
messages
