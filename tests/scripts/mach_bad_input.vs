# A walk that nothing can end, divisions by zero, no numbers.
menu AIRFUEL
click Form4.Command39
set Form4.Text52 0
click Form4.CommandF7(1)
messages
click Form4.CommandF7(0)
get Form4.Text56
set Form4.Text52 4
set Form4.Text53 0
click Form4.CommandF7(2)
set Form4.Text53 3.25
set Form4.Text56 0
click Form4.CommandF7(1)
click Form4.CommandF7(2)
click Form4.CommandF7(3)
messages
set Form4.Text56 500
click Form4.CommandF7(1)
set Form4.Text56 .0000001
click Form4.CommandF7(2)
messages
set Form4.Text56 .5
set Form4.Text54 0
click Form4.CommandF7(0)
click Form4.CommandF7(1)
click Form4.CommandF7(7)
set Form4.Text54 2.02
set Form4.Text55 0
click Form4.CommandF7(0)
click Form4.CommandF7(3)
set Form4.Text55 .5
set Form4.Text58 0
click Form4.CommandF7(4)
click Form4.CommandF7(11)
set Form4.Text58 2.2
set Form4.Text57 0
click Form4.CommandF7(5)
set Form4.Text59 0
click Form4.CommandF7(6)
messages
set Form4.Text59 .16
click Form4.CommandF7(7)
click Form4.CommandF7(8)
set Form4.Text59 .5
set Form4.Text60 0
click Form4.CommandF7(8)
set Form4.Text60 1
set Form4.Text2 0
click Form4.CommandF7(2)
click Form4.CommandF7(7)
set Form4.Text2 6500
messages
set Form4.Text84 1
click Form4.CommandF7(9)
set Form4.Text84 10
set Form4.Text34 0
click Form4.CommandF7(9)
set Form4.Text34 9
set Form4.Text32 0
click Form4.CommandF7(10)
click Form4.CommandF7(11)
set Form4.Text32 5900
set Form4.Text114 40000
click Form4.CommandF7(10)
set Form4.Text114 77
set Form4.Text99 many
click Form4.CommandF7(10)
set Form4.Text99 1e300
click Form4.CommandF7(10)
messages
