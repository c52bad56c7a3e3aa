# Converts a value of every unit of the unit screen to all the others of its kind.
# The expected values were worked out apart from the program.
menu UNIT
get Form9.Text1
get Form9.Option1
get Form9.Text2
click Form9.Command1
show Form9.Text2
choose Form9.Option1(1)
get Form9.Option1(1)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(2)
get Form9.Option1(2)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(3)
get Form9.Option1(3)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(4)
get Form9.Option1(4)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(5)
get Form9.Option1(5)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(6)
get Form9.Option1(6)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(7)
get Form9.Option1(7)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(8)
get Form9.Option1(8)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(33)
get Form9.Option1(33)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(43)
get Form9.Option1(43)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(45)
get Form9.Option1(45)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(9)
get Form9.Option1(9)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(10)
get Form9.Option1(10)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(11)
get Form9.Option1(11)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(25)
get Form9.Option1(25)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(26)
get Form9.Option1(26)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(27)
get Form9.Option1(27)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(39)
get Form9.Option1(39)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(40)
get Form9.Option1(40)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(46)
get Form9.Option1(46)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(47)
get Form9.Option1(47)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(12)
get Form9.Option1(12)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(13)
get Form9.Option1(13)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(14)
get Form9.Option1(14)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(15)
get Form9.Option1(15)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(16)
get Form9.Option1(16)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(17)
get Form9.Option1(17)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(62)
get Form9.Option1(62)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(18)
get Form9.Option1(18)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(20)
get Form9.Option1(20)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(21)
get Form9.Option1(21)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(22)
get Form9.Option1(22)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(44)
get Form9.Option1(44)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(19)
get Form9.Option1(19)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(23)
get Form9.Option1(23)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(24)
get Form9.Option1(24)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(41)
get Form9.Option1(41)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(42)
get Form9.Option1(42)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(28)
get Form9.Option1(28)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(29)
get Form9.Option1(29)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(30)
get Form9.Option1(30)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(31)
get Form9.Option1(31)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(32)
get Form9.Option1(32)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(61)
get Form9.Option1(61)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(0)
get Form9.Option1(0)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(34)
get Form9.Option1(34)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(35)
get Form9.Option1(35)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(36)
get Form9.Option1(36)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(37)
get Form9.Option1(37)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(38)
get Form9.Option1(38)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(48)
get Form9.Option1(48)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(49)
get Form9.Option1(49)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(50)
get Form9.Option1(50)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(51)
get Form9.Option1(51)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(52)
get Form9.Option1(52)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
choose Form9.Option1(53)
get Form9.Option1(53)
set Form9.Text1 0.75
click Form9.Command1
show Form9.Text2
choose Form9.Option1(54)
get Form9.Option1(54)
set Form9.Text1 2500
click Form9.Command1
show Form9.Text2
choose Form9.Option1(55)
get Form9.Option1(55)
set Form9.Text1 0.0625
click Form9.Command1
show Form9.Text2
choose Form9.Option1(56)
get Form9.Option1(56)
set Form9.Text1 98.6
click Form9.Command1
show Form9.Text2
choose Form9.Option1(57)
get Form9.Option1(57)
set Form9.Text1 3
click Form9.Command1
show Form9.Text2
choose Form9.Option1(58)
get Form9.Option1(58)
set Form9.Text1 1.001
click Form9.Command1
show Form9.Text2
choose Form9.Option1(59)
get Form9.Option1(59)
set Form9.Text1 7000
click Form9.Command1
show Form9.Text2
choose Form9.Option1(60)
get Form9.Option1(60)
set Form9.Text1 64
click Form9.Command1
show Form9.Text2
choose Form9.Option1(63)
get Form9.Option1(63)
set Form9.Text1 12.5
click Form9.Command1
show Form9.Text2
messages
