# Every command of the weather screen tells what it does.
menu WEATHER
hover Form7.Check1
get Form7.Text43
hover Form7.Command5
get Form7.Text43
hover Form7.Command8
get Form7.Text43
hover Form7.Command11
get Form7.Text43
hover Form7.Option1(0)
get Form7.Text43
hover Form7.Option1(1)
get Form7.Text43
hover Form7.Command1
get Form7.Text43
hover Form7.Command2
get Form7.Text43
hover Form7.Command3
get Form7.Text43
hover Form7.Command4
get Form7.Text43
hover Form7.Command6
get Form7.Text43
hover Form7.Command10
get Form7.Text43
hover Form7.Command7
get Form7.Text43
hover Form7.Command13
get Form7.Text43
hover Form7.Command12
get Form7.Text43
hover Form7.Command9
get Form7.Text43
hover Form7.Text5
get Form7.Text43
hover Form7.Text35
get Form7.Text43
hover Form7.Text38
get Form7.Text43
hover Form7.Text23
get Form7.Text43
hover Form7.Text7
get Form7.Text43
hover Form7.Text24
get Form7.Text43
hover Form7.Text25
get Form7.Text43
hover Form7.subend
get Form7.Text43
get Form7.Frame1
get Form7.Frame2
get Form7.Frame3
get Form7.Frame4
get Form7.Frame5
get Form7.Frame6
get Form7.Frame7
get Form7.Frame8
get Form7.Frame9
get Form7.Command5
get Form7.Command8
get Form7.Command11
get Form7.Command1
get Form7.Command2
get Form7.Command3
get Form7.Command4
get Form7.Command6
get Form7.Command10
get Form7.Command7
get Form7.Command13
get Form7.Command12
get Form7.Command9
get Form7.subend
hover Form7
state Form7.Text43
pause what shows takes no key
type Form7.Text17 7
get Form7.Text17
type Form7.Text13 7
get Form7.Text13
type Form7.Text14 7
get Form7.Text14
type Form7.Text5 7
get Form7.Text5
type Form7.Text35 7
get Form7.Text35
type Form7.Text38 7
get Form7.Text38
type Form7.Text23 7
get Form7.Text23
type Form7.Text7 7
get Form7.Text7
type Form7.Text24 7
get Form7.Text24
type Form7.Text25 7
get Form7.Text25
type Form7.Text16 7
get Form7.Text16
type Form7.Text2 7
get Form7.Text2
type Form7.Text6 7
get Form7.Text6
type Form7.Text33 7
get Form7.Text33
type Form7.Text34 7
get Form7.Text34
type Form7.Text36 7
get Form7.Text36
type Form7.Text37 7
get Form7.Text37
type Form7.Text40 7
get Form7.Text40
type Form7.Text41 7
get Form7.Text41
type Form7.Text42 7
get Form7.Text42
type Form7.Text18 7
get Form7.Text18
type Form7.Text20 7
get Form7.Text20
type Form7.Text22 7
get Form7.Text22
type Form7.Text30 7
get Form7.Text30
type Form7.Text31 7
get Form7.Text31
type Form7.Text32 7
get Form7.Text32
type Form7.Text8 -282.5x
get Form7.Text8
type Form7.Text11 -4
get Form7.Text11
type Form7.Text12 -4
get Form7.Text12
messages
