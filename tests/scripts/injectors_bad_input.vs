# What the injector panel does with values it cannot compute with.
menu AIRFUEL
click Form4.Command37
pause zeros
set Form4.Text12 0
click Form4.CommandF3(0)
click Form4.CommandF3(8)
messages
set Form4.Text12 .85
set Form4.Text14 0
click Form4.CommandF3(0)
click Form4.CommandF3(8)
click Form4.CommandF3(9)
messages
set Form4.Text14 8
set Form4.Text8 0
click Form4.CommandF3(1)
click Form4.CommandF3(2)
messages
set Form4.Text8 43.5
set Form4.Text9 0
click Form4.CommandF3(2)
messages
get Form4.Text13
set Form4.Text9 55
set Form4.Text6 0
click Form4.CommandF3(3)
messages
set Form4.Text6 18
pause a duty cycle or a pulse of 0 is no fault where nothing is divided by it
set Form4.Text12 0
click Form4.CommandF3(6)
get Form4.Text41
click Form4.CommandF3(7)
get Form4.Text12
messages
pause a pulse of 0, dead time as long as the pulse, and longer
set Form4.Text12 .85
set Form4.Text41 0
click Form4.CommandF3(9)
set Form4.Text41 10
set Form4.Text82 10
click Form4.CommandF3(9)
set Form4.Text82 10.5
click Form4.CommandF3(9)
messages
get Form4.Text6
set Form4.Text82 9.5
click Form4.CommandF3(9)
messages
pause zeros of the main page: the box names them, and the panel shows which they are
click Form4.Command91(8)
set Form4.Text10 0
set Form4.Text2 0
set Form4.Text30 0
click Form4.Command37
click Form4.CommandF3(1)
click Form4.CommandF3(4)
messages
pause without speed the size and its conversions are shown, of nothing, before the pulse fails
click Form4.CommandF3(6)
click Form4.CommandF3(7)
messages
click Form4.Command91(8)
set Form4.Text30 12.5
click Form4.Command37
click Form4.CommandF3(8)
get Form4.Text6
get Form4.Text7(0)
messages
click Form4.CommandF3(9)
messages
pause an empty field: the panel is put away all the same
click Form4.Command91(8)
set Form4.Text10 .5
set Form4.Text2 6500
click Form4.Command37
set Form4.Text12 
click Form4.CommandF3(0)
messages
click Form4.Command91(8)
state Form4.Text12
messages
pause with an empty speed the size and its conversions are shown, and the pulse is not
set Form4.Text12 .8
set Form4.Text3 500
click Form4.Command37
set Form4.Text2 
click Form4.CommandF3(0)
messages
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
set Form4.Text2 6500
click Form4.CommandF3(0)
messages
get Form4.Text41
