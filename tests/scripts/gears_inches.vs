# Presses every command of the gear screen for four vehicles.
# The expected values were worked out apart from the program.
menu GEAR
pause the default vehicle
uncheck Form5.Check2
set Form5.Text1 42.5
set Form5.Text17 6500
set Form5.Text18 4.1
set Form5.Text34 4.56
set Form5.Text29 41
set Form5.Text30 10
set Form5.Text21 28.4
set Form5.Text35 29.75
set Form5.Text28 195
set Form5.Text36 16
set Form5.Text37 75
set Form5.Text73 14.2
set Form5.Text20 1295
set Form5.Text19 5900
set Form5.Text31 1.366
set Form5.Text32 29.56
set Form5.Text38 100
set Form5.Text60 12
set Form5.Text61 24
set Form5.Text75 81.25
set Form5.Text2(0) 3.25
set Form5.Text2(1) 2.25
set Form5.Text2(2) 1.25
set Form5.Text2(3) 1.0
set Form5.Text2(4) 0.87
set Form5.Text2(5) 0
set Form5.Text2(6) 0
set Form5.Text2(7) 0
set Form5.Text2(8) 0
set Form5.Text2(9) 0
click Form5.Command1
get Form5.Label2(13)
get Form5.Label2(30)
get Form5.Label2(14)
get Form5.Label2(31)
get Form5.Label2(15)
get Form5.Label2(32)
get Form5.Label2(16)
get Form5.Label2(33)
get Form5.Label2(17)
get Form5.Label2(34)
get Form5.Label2(18)
get Form5.Label2(35)
get Form5.Label2(19)
get Form5.Label2(36)
get Form5.Label2(20)
get Form5.Label2(37)
get Form5.Label2(21)
get Form5.Label2(38)
get Form5.Label2(22)
get Form5.Label2(39)
click Form5.Command5
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command15
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command21
get Form5.Text41
click Form5.Command23
get Form5.Text74
click Form5.Command9
get Form5.Text34
get Form5.Text40
set Form5.Text34 4.56
click Form5.Command6
get Form5.Text18
set Form5.Text18 4.1
click Form5.Command7
get Form5.Text18
set Form5.Text18 4.1
click Form5.Command8
get Form5.Text17
get Form5.Text39
click Form5.Command2
get Form5.Text17
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command16
get Form5.Text21
click Form5.Command17
get Form5.Text35
click Form5.Command3
get Form5.Text2(0)
click Form5.Command4
get Form5.Text2(0)
click Form5.Command10
get Form5.Text1
click Form5.Command14
get Form5.Text1
set Form5.Text1 42.5
click Form5.Command11
get Form5.Text32
set Form5.Text32 29.56
click Form5.Command12
get Form5.Text31
set Form5.Text31 1.366
click Form5.Command13
get Form5.Text33
click Form5.Command18
get Form5.Text33
click Form5.Command19
get Form5.Text33
click Form5.Command20
get Form5.Text33
set Form5.Text2(0) 3.25
set Form5.Text17 6500
click Form5.Command24
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
get Form5.Label2(50)
set Form5.Text2(9) 0.5
click Form5.Command30
get Form5.Text2(8)
get Form5.Text2(7)
get Form5.Text2(6)
get Form5.Text2(5)
get Form5.Text2(4)
get Form5.Text2(3)
get Form5.Text2(2)
get Form5.Text2(1)
get Form5.Text2(0)
set Form5.Text2(0) 3.2
set Form5.Text2(8) 0.8
set Form5.Text2(9) 5.9
click Form5.Command25
get Form5.Text75
get Form5.Text2(4)
click Form5.Command29
set Form5.Text13 41
set Form5.Text14 10
set Form5.Text11(0) 14
set Form5.Text12(0) 34
set Form5.Text11(1) 15
set Form5.Text12(1) 31
set Form5.Text11(2) 17
set Form5.Text12(2) 29
set Form5.Text11(3) 19
set Form5.Text12(3) 27
set Form5.Text11(4) 21
set Form5.Text12(4) 25
set Form5.Text11(5) 10
set Form5.Text12(5) 10
set Form5.Text11(6) 25
set Form5.Text12(6) 21
set Form5.Text11(7) 27
set Form5.Text12(7) 19
set Form5.Text11(8) 0
set Form5.Text12(8) 0
set Form5.Text11(9) 0
set Form5.Text12(9) 0
click Form5.Command26
get Form5.Text2(0)
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
click Form5.Command27
get Form5.Text11(3)
get Form5.Text12(9)
get Form5.Text13
click Form5.Command28
pause a street car
uncheck Form5.Check2
set Form5.Text1 61
set Form5.Text17 2900
set Form5.Text18 3.42
set Form5.Text34 3.73
set Form5.Text29 41
set Form5.Text30 12
set Form5.Text21 25.66
set Form5.Text35 26.3
set Form5.Text28 275
set Form5.Text36 17
set Form5.Text37 40
set Form5.Text73 12.6
set Form5.Text20 345
set Form5.Text19 4400
set Form5.Text31 2.5
set Form5.Text32 88.2
set Form5.Text38 300
set Form5.Text60 12
set Form5.Text61 24
set Form5.Text75 74
set Form5.Text2(0) 2.66
set Form5.Text2(1) 1.78
set Form5.Text2(2) 1.3
set Form5.Text2(3) 1
set Form5.Text2(4) 0.74
set Form5.Text2(5) 0.5
set Form5.Text2(6) 0
set Form5.Text2(7) 0
set Form5.Text2(8) 0
set Form5.Text2(9) 0
click Form5.Command1
get Form5.Label2(13)
get Form5.Label2(30)
get Form5.Label2(14)
get Form5.Label2(31)
get Form5.Label2(15)
get Form5.Label2(32)
get Form5.Label2(16)
get Form5.Label2(33)
get Form5.Label2(17)
get Form5.Label2(34)
get Form5.Label2(18)
get Form5.Label2(35)
get Form5.Label2(19)
get Form5.Label2(36)
get Form5.Label2(20)
get Form5.Label2(37)
get Form5.Label2(21)
get Form5.Label2(38)
get Form5.Label2(22)
get Form5.Label2(39)
click Form5.Command5
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command15
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command21
get Form5.Text41
click Form5.Command23
get Form5.Text74
click Form5.Command9
get Form5.Text34
get Form5.Text40
set Form5.Text34 3.73
click Form5.Command6
get Form5.Text18
set Form5.Text18 3.42
click Form5.Command7
get Form5.Text18
set Form5.Text18 3.42
click Form5.Command8
get Form5.Text17
get Form5.Text39
click Form5.Command2
get Form5.Text17
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command16
get Form5.Text21
click Form5.Command17
get Form5.Text35
click Form5.Command3
get Form5.Text2(0)
click Form5.Command4
get Form5.Text2(0)
click Form5.Command10
get Form5.Text1
click Form5.Command14
get Form5.Text1
set Form5.Text1 61
click Form5.Command11
get Form5.Text32
set Form5.Text32 88.2
click Form5.Command12
get Form5.Text31
set Form5.Text31 2.5
click Form5.Command13
get Form5.Text33
click Form5.Command18
get Form5.Text33
click Form5.Command19
get Form5.Text33
click Form5.Command20
get Form5.Text33
set Form5.Text2(0) 2.66
set Form5.Text17 2900
click Form5.Command24
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
get Form5.Label2(50)
set Form5.Text2(9) 0.5
click Form5.Command30
get Form5.Text2(8)
get Form5.Text2(7)
get Form5.Text2(6)
get Form5.Text2(5)
get Form5.Text2(4)
get Form5.Text2(3)
get Form5.Text2(2)
get Form5.Text2(1)
get Form5.Text2(0)
set Form5.Text2(0) 3.2
set Form5.Text2(8) 0.8
set Form5.Text2(9) 5.9
click Form5.Command25
get Form5.Text75
get Form5.Text2(4)
click Form5.Command29
set Form5.Text13 41
set Form5.Text14 12
set Form5.Text11(0) 14
set Form5.Text12(0) 34
set Form5.Text11(1) 15
set Form5.Text12(1) 31
set Form5.Text11(2) 17
set Form5.Text12(2) 29
set Form5.Text11(3) 19
set Form5.Text12(3) 27
set Form5.Text11(4) 21
set Form5.Text12(4) 25
set Form5.Text11(5) 10
set Form5.Text12(5) 10
set Form5.Text11(6) 25
set Form5.Text12(6) 21
set Form5.Text11(7) 27
set Form5.Text12(7) 19
set Form5.Text11(8) 0
set Form5.Text12(8) 0
set Form5.Text11(9) 0
set Form5.Text12(9) 0
click Form5.Command26
get Form5.Text2(0)
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
click Form5.Command27
get Form5.Text11(3)
get Form5.Text12(9)
get Form5.Text13
click Form5.Command28
pause a motorcycle with a primary drive
check Form5.Check2
set Form5.Text1 110
set Form5.Text17 9100
set Form5.Text18 2.5
set Form5.Text34 2.6471
set Form5.Text29 40
set Form5.Text30 16
set Form5.Text21 24.9
set Form5.Text35 25.2
set Form5.Text28 190
set Form5.Text36 17
set Form5.Text37 55
set Form5.Text73 12.1
set Form5.Text20 180
set Form5.Text19 9900
set Form5.Text31 1.02
set Form5.Text32 41.7
set Form5.Text38 75
set Form5.Text60 44
set Form5.Text61 73
set Form5.Text75 85
set Form5.Text2(0) 2.6
set Form5.Text2(1) 2.0625
set Form5.Text2(2) 1.7
set Form5.Text2(3) 1.4545
set Form5.Text2(4) 1.3077
set Form5.Text2(5) 1.2222
set Form5.Text2(6) 0
set Form5.Text2(7) 0
set Form5.Text2(8) 0
set Form5.Text2(9) 0
click Form5.Command1
get Form5.Text62
get Form5.Label2(13)
get Form5.Label2(30)
get Form5.Label2(14)
get Form5.Label2(31)
get Form5.Label2(15)
get Form5.Label2(32)
get Form5.Label2(16)
get Form5.Label2(33)
get Form5.Label2(17)
get Form5.Label2(34)
get Form5.Label2(18)
get Form5.Label2(35)
get Form5.Label2(19)
get Form5.Label2(36)
get Form5.Label2(20)
get Form5.Label2(37)
get Form5.Label2(21)
get Form5.Label2(38)
get Form5.Label2(22)
get Form5.Label2(39)
click Form5.Command5
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command15
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command21
get Form5.Text41
click Form5.Command23
get Form5.Text74
click Form5.Command9
get Form5.Text34
get Form5.Text40
set Form5.Text34 2.6471
click Form5.Command6
get Form5.Text18
set Form5.Text18 2.5
click Form5.Command7
get Form5.Text18
set Form5.Text18 2.5
click Form5.Command8
get Form5.Text17
get Form5.Text39
click Form5.Command2
get Form5.Text17
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command16
get Form5.Text21
click Form5.Command17
get Form5.Text35
click Form5.Command3
get Form5.Text2(0)
click Form5.Command4
get Form5.Text2(0)
click Form5.Command10
get Form5.Text1
click Form5.Command14
get Form5.Text1
set Form5.Text1 110
click Form5.Command11
get Form5.Text32
set Form5.Text32 41.7
click Form5.Command12
get Form5.Text31
set Form5.Text31 1.02
click Form5.Command13
get Form5.Text33
click Form5.Command18
get Form5.Text33
click Form5.Command19
get Form5.Text33
click Form5.Command20
get Form5.Text33
set Form5.Text2(0) 2.6
set Form5.Text17 9100
click Form5.Command24
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
get Form5.Label2(50)
set Form5.Text2(9) 0.5
click Form5.Command30
get Form5.Text2(8)
get Form5.Text2(7)
get Form5.Text2(6)
get Form5.Text2(5)
get Form5.Text2(4)
get Form5.Text2(3)
get Form5.Text2(2)
get Form5.Text2(1)
get Form5.Text2(0)
set Form5.Text2(0) 3.2
set Form5.Text2(8) 0.8
set Form5.Text2(9) 5.9
click Form5.Command25
get Form5.Text75
get Form5.Text2(4)
click Form5.Command29
set Form5.Text13 40
set Form5.Text14 16
set Form5.Text11(0) 14
set Form5.Text12(0) 34
set Form5.Text11(1) 15
set Form5.Text12(1) 31
set Form5.Text11(2) 17
set Form5.Text12(2) 29
set Form5.Text11(3) 19
set Form5.Text12(3) 27
set Form5.Text11(4) 21
set Form5.Text12(4) 25
set Form5.Text11(5) 10
set Form5.Text12(5) 10
set Form5.Text11(6) 25
set Form5.Text12(6) 21
set Form5.Text11(7) 27
set Form5.Text12(7) 19
set Form5.Text11(8) 0
set Form5.Text12(8) 0
set Form5.Text11(9) 0
set Form5.Text12(9) 0
click Form5.Command26
get Form5.Text2(0)
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
click Form5.Command27
get Form5.Text11(3)
get Form5.Text12(9)
get Form5.Text13
click Form5.Command28
pause a car with an automatic of ten gears
uncheck Form5.Check2
set Form5.Text1 70
set Form5.Text17 2100
set Form5.Text18 3.55
set Form5.Text34 3.73
set Form5.Text29 39
set Form5.Text30 11
set Form5.Text21 27.1
set Form5.Text35 28.0
set Form5.Text28 245
set Form5.Text36 18
set Form5.Text37 50
set Form5.Text73 13.2
set Form5.Text20 310
set Form5.Text19 2500
set Form5.Text31 0.25
set Form5.Text32 14.2
set Form5.Text38 150
set Form5.Text60 12
set Form5.Text61 24
set Form5.Text75 80.5
set Form5.Text2(0) 4.696
set Form5.Text2(1) 2.985
set Form5.Text2(2) 2.146
set Form5.Text2(3) 1.769
set Form5.Text2(4) 1.52
set Form5.Text2(5) 1.275
set Form5.Text2(6) 1
set Form5.Text2(7) 0.854
set Form5.Text2(8) 0.689
set Form5.Text2(9) 0.636
click Form5.Command1
get Form5.Label2(13)
get Form5.Label2(30)
get Form5.Label2(14)
get Form5.Label2(31)
get Form5.Label2(15)
get Form5.Label2(32)
get Form5.Label2(16)
get Form5.Label2(33)
get Form5.Label2(17)
get Form5.Label2(34)
get Form5.Label2(18)
get Form5.Label2(35)
get Form5.Label2(19)
get Form5.Label2(36)
get Form5.Label2(20)
get Form5.Label2(37)
get Form5.Label2(21)
get Form5.Label2(38)
get Form5.Label2(22)
get Form5.Label2(39)
click Form5.Command5
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command15
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command21
get Form5.Text41
click Form5.Command23
get Form5.Text74
click Form5.Command9
get Form5.Text34
get Form5.Text40
set Form5.Text34 3.73
click Form5.Command6
get Form5.Text18
set Form5.Text18 3.55
click Form5.Command7
get Form5.Text18
set Form5.Text18 3.55
click Form5.Command8
get Form5.Text17
get Form5.Text39
click Form5.Command2
get Form5.Text17
get Form5.Label2(50)
get Form5.Label2(51)
get Form5.Label2(52)
get Form5.Label2(53)
get Form5.Label2(54)
get Form5.Label2(55)
get Form5.Label2(56)
get Form5.Label2(57)
get Form5.Label2(58)
get Form5.Label2(59)
click Form5.Command16
get Form5.Text21
click Form5.Command17
get Form5.Text35
click Form5.Command3
get Form5.Text2(0)
click Form5.Command4
get Form5.Text2(0)
click Form5.Command10
get Form5.Text1
click Form5.Command14
get Form5.Text1
set Form5.Text1 70
click Form5.Command11
get Form5.Text32
set Form5.Text32 14.2
click Form5.Command12
get Form5.Text31
set Form5.Text31 0.25
click Form5.Command13
get Form5.Text33
click Form5.Command18
get Form5.Text33
click Form5.Command19
get Form5.Text33
click Form5.Command20
get Form5.Text33
set Form5.Text2(0) 4.696
set Form5.Text17 2100
click Form5.Command24
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
get Form5.Label2(50)
set Form5.Text2(9) 0.5
click Form5.Command30
get Form5.Text2(8)
get Form5.Text2(7)
get Form5.Text2(6)
get Form5.Text2(5)
get Form5.Text2(4)
get Form5.Text2(3)
get Form5.Text2(2)
get Form5.Text2(1)
get Form5.Text2(0)
set Form5.Text2(0) 3.2
set Form5.Text2(8) 0.8
set Form5.Text2(9) 5.9
click Form5.Command25
get Form5.Text75
get Form5.Text2(4)
click Form5.Command29
set Form5.Text13 39
set Form5.Text14 11
set Form5.Text11(0) 14
set Form5.Text12(0) 34
set Form5.Text11(1) 15
set Form5.Text12(1) 31
set Form5.Text11(2) 17
set Form5.Text12(2) 29
set Form5.Text11(3) 19
set Form5.Text12(3) 27
set Form5.Text11(4) 21
set Form5.Text12(4) 25
set Form5.Text11(5) 10
set Form5.Text12(5) 10
set Form5.Text11(6) 25
set Form5.Text12(6) 21
set Form5.Text11(7) 27
set Form5.Text12(7) 19
set Form5.Text11(8) 0
set Form5.Text12(8) 0
set Form5.Text11(9) 0
set Form5.Text12(9) 0
click Form5.Command26
get Form5.Text2(0)
get Form5.Text2(1)
get Form5.Text2(2)
get Form5.Text2(3)
get Form5.Text2(4)
get Form5.Text2(5)
get Form5.Text2(6)
get Form5.Text2(7)
get Form5.Text2(8)
get Form5.Text2(9)
click Form5.Command27
get Form5.Text11(3)
get Form5.Text12(9)
get Form5.Text13
click Form5.Command28
messages
state Form5.Frame8
value T Gear 0
value T Gear 12
