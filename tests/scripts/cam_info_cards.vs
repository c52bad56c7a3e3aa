# Specification cards of every kind.
menu CAM_INFO
file cam_info/card.cam
click Form2.Read
get Form2.Label1(15)
get Form2.Text13
get Form2.Text21
get Form2.Text12
get Form2.Text20
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text6
get Form2.Text9
get Form2.Text5
get Form2.Text8
get Form2.Text10
get Form2.Text11
get Form2.Text16
pause a dyno card; the dialog opens with the filter of the last card
file cam_info/card.dyn
click Form2.Read
get Form2.Label1(15)
get Form2.Text13
get Form2.Text21
get Form2.Text12
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
pause a *.cqu card as it stands, and at 0.050
file cam_info/card.cqu
click Form2.Read
get Form2.Label1(15)
get Form2.Text13
get Form2.Text1
get Form2.Text6
check Form2.Check2
file cam_info/card.cqu
click Form2.Read
get Form2.Label1(15)
get Form2.Text13
get Form2.Text1
get Form2.Text2
get Form2.Text3
get Form2.Text4
get Form2.Text6
get Form2.Text9
pause the box has no part in a *.cam card
file cam_info/card.cam
click Form2.Read
get Form2.Text1
uncheck Form2.Check2
file cam_info/card.dym
click Form2.Read
get Form2.Text21
dialogs
pause in metric the lifts are millimetres
check Form2.Check1
file cam_info/card.cam
click Form2.Read
get Form2.Text13
get Form2.Text12
uncheck Form2.Check1
get Form2.Text13
messages
