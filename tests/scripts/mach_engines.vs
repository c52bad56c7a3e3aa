# Mach index and tuned length of three engines: a motorcycle four, a diesel-like long stroke, a
# small block.
menu AIRFUEL
click Form4.Command39
pause 600 cc four
set Form4.Text52 2.638
set Form4.Text53 1.673
set Form4.Text54 1.083
set Form4.Text55 .335
set Form4.Text2 14000
click Form4.CommandF7(0)
get Form4.Text56
get Form4.Text57
click Form4.CommandF7(1)
get Form4.Text2
set Form4.Text60 2
set Form4.Text59 .62
click Form4.CommandF7(6)
get Form4.Text57
get Form4.Text56
set Form4.Text58 1.05
click Form4.CommandF7(4)
get Form4.Text57
get Form4.Text56
set Form4.Text84 12.8
set Form4.Text34 7.9
set Form4.Text99 1135
click Form4.CommandF7(9)
get Form4.Text32
pause a long stroke
set Form4.Text52 4.29
set Form4.Text53 4.88
set Form4.Text54 1.82
set Form4.Text55 .42
set Form4.Text2 3200
click Form4.CommandF7(0)
get Form4.Text56
set Form4.Text56 .45
click Form4.CommandF7(2)
get Form4.Text55
set Form4.Text55 .42
click Form4.CommandF7(3)
get Form4.Text54
set Form4.Text57 260
click Form4.CommandF7(5)
get Form4.Text58
set Form4.Text84 17.5
set Form4.Text32 2100
click Form4.CommandF7(10)
get Form4.Text34
pause a small block
set Form4.Text52 4.155
set Form4.Text53 3.75
set Form4.Text54 2.08
set Form4.Text55 .68
set Form4.Text2 7200
set Form4.Text60 1
set Form4.Text58 2.62
click Form4.CommandF7(0)
get Form4.Text56
click Form4.CommandF7(4)
get Form4.Text57
get Form4.Text56
messages
