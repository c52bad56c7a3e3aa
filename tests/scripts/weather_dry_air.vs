# Air without humidity: the last vapor pressure holds, and air that never held water computes too.
menu WEATHER
pause dry from the beginning: no dew point, a correction of exactly 1
set Form7.Text10 29.92
set Form7.Text11 60
set Form7.Text12 0
set Form7.Text39 29.92
choose Form7.Option1(1)
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text16
get Form7.Text2
get Form7.Text6
get Form7.Text33
get Form7.Text34
get Form7.Text36
get Form7.Text37
get Form7.Text40
get Form7.Text41
get Form7.Text42
messages
pause the water of a humid day stays when the humidity is taken away
set Form7.Text11 80
set Form7.Text12 50
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
set Form7.Text11 60
set Form7.Text12 0
click Form7.Command5
get Form7.Text17
get Form7.Text13
get Form7.Text14
get Form7.Text5
get Form7.Text35
get Form7.Text38
get Form7.Text23
get Form7.Text7
get Form7.Text24
get Form7.Text25
get Form7.Text16
get Form7.Text2
get Form7.Text6
get Form7.Text33
get Form7.Text34
get Form7.Text36
get Form7.Text37
get Form7.Text40
get Form7.Text41
get Form7.Text42
set Form7.Text12 -5
click Form7.Command8
get Form7.Text17
get Form7.Text13
get Form7.Text2
pause the new weather keeps its own
set Form7.Text12 50
set Form7.Text4 0
click Form7.Command6
get Form7.Text20
set Form7.Text4 80
click Form7.Command6
get Form7.Text20
set Form7.Text4 0
click Form7.Command6
get Form7.Text20
messages
