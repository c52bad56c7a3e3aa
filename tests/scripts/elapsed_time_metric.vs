# Presses every command of the elapsed time screen for four vehicles in metric units.
# The expected values were worked out apart from the program.
menu ET_MPH
check Form3.Check1
pause the default vehicle
uncheck Form3.Check2
set Form3.Text2 1066
set Form3.Text5 966
set Form3.Text3 309.7
set Form3.Text9 251.8
set Form3.Text1 7.105
set Form3.Text11 6500
set Form3.Text15 5359
set Form3.Text12 144.7
set Form3.Text26 3.25
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 966
set Form3.Text12 144.7
click Form3.Command13
get Form3.Text14
get Form3.Text35
get Form3.Text36
click Form3.Command14
get Form3.Text14
get Form3.Text37
get Form3.Text39
click Form3.Command1
get Form3.Text1
get Form3.Text8
click Form3.Command2
get Form3.Text3
get Form3.Text9
click Form3.Command15
get Form3.Text3
get Form3.Text9
set Form3.Text3 309.7
set Form3.Text9 251.8
click Form3.Command3
get Form3.Text1
click Form3.Command16
get Form3.Text1
click Form3.Command11
get Form3.Text8
set Form3.Text1 7.105
click Form3.Command9
get Form3.Text5
click Form3.Command10
get Form3.Text5
click Form3.Command17
get Form3.Text5
click Form3.Command18
get Form3.Text6
click Form3.Command20
get Form3.Text5
get Form3.Text18
click Form3.Command21
get Form3.Text5
get Form3.Text18
click Form3.Command22
get Form3.Text19
click Form3.Command23
get Form3.Text20
click Form3.Command27
get Form3.Text25
get Form3.Text34
click Form3.Command4
get Form3.Text7(0)
get Form3.Text7(1)
get Form3.Text7(2)
get Form3.Text7(3)
get Form3.Text40
get Form3.Text41
get Form3.Text7(4)
get Form3.Text7(5)
get Form3.Text7(6)
get Form3.Text7(7)
get Form3.Text42
get Form3.Text43
get Form3.Text7(8)
get Form3.Text7(9)
get Form3.Text7(10)
get Form3.Text7(11)
get Form3.Text44
get Form3.Text45
pause a street car with a converter
check Form3.Check2
set Form3.Text2 1633
set Form3.Text5 231
set Form3.Text3 160.1
set Form3.Text9 127.5
set Form3.Text1 13.9
set Form3.Text11 5200
set Form3.Text15 5735
set Form3.Text12 53.2
set Form3.Text26 4.5
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 231
set Form3.Text12 53.2
click Form3.Command13
get Form3.Text14
get Form3.Text35
get Form3.Text36
click Form3.Command14
get Form3.Text14
get Form3.Text37
get Form3.Text39
click Form3.Command1
get Form3.Text1
get Form3.Text8
click Form3.Command2
get Form3.Text3
get Form3.Text9
click Form3.Command15
get Form3.Text3
get Form3.Text9
set Form3.Text3 160.1
set Form3.Text9 127.5
click Form3.Command3
get Form3.Text1
click Form3.Command16
get Form3.Text1
click Form3.Command11
get Form3.Text8
set Form3.Text1 13.9
click Form3.Command9
get Form3.Text5
click Form3.Command10
get Form3.Text5
click Form3.Command17
get Form3.Text5
click Form3.Command18
get Form3.Text6
click Form3.Command20
get Form3.Text5
get Form3.Text18
click Form3.Command21
get Form3.Text5
get Form3.Text18
click Form3.Command22
get Form3.Text19
click Form3.Command23
get Form3.Text20
click Form3.Command27
get Form3.Text25
get Form3.Text34
click Form3.Command4
get Form3.Text7(0)
get Form3.Text7(1)
get Form3.Text7(2)
get Form3.Text7(3)
get Form3.Text40
get Form3.Text41
get Form3.Text7(4)
get Form3.Text7(5)
get Form3.Text7(6)
get Form3.Text7(7)
get Form3.Text42
get Form3.Text43
get Form3.Text7(8)
get Form3.Text7(9)
get Form3.Text7(10)
get Form3.Text7(11)
get Form3.Text44
get Form3.Text45
pause a motorcycle
uncheck Form3.Check2
set Form3.Text2 290
set Form3.Text5 123
set Form3.Text3 227.2
set Form3.Text9 183
set Form3.Text1 9.9
set Form3.Text11 11200
set Form3.Text15 1000
set Form3.Text12 11.5
set Form3.Text26 3.25
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 123
set Form3.Text12 11.5
click Form3.Command13
get Form3.Text14
get Form3.Text35
get Form3.Text36
click Form3.Command14
get Form3.Text14
get Form3.Text37
get Form3.Text39
click Form3.Command1
get Form3.Text1
get Form3.Text8
click Form3.Command2
get Form3.Text3
get Form3.Text9
click Form3.Command15
get Form3.Text3
get Form3.Text9
set Form3.Text3 227.2
set Form3.Text9 183
click Form3.Command3
get Form3.Text1
click Form3.Command16
get Form3.Text1
click Form3.Command11
get Form3.Text8
set Form3.Text1 9.9
click Form3.Command9
get Form3.Text5
click Form3.Command10
get Form3.Text5
click Form3.Command17
get Form3.Text5
click Form3.Command18
get Form3.Text6
click Form3.Command20
get Form3.Text5
get Form3.Text18
click Form3.Command21
get Form3.Text5
get Form3.Text18
click Form3.Command22
get Form3.Text19
click Form3.Command23
get Form3.Text20
click Form3.Command27
get Form3.Text25
get Form3.Text34
pause a truck with a converter
check Form3.Check2
set Form3.Text2 2676
set Form3.Text5 313
set Form3.Text3 147.1
set Form3.Text9 119.3
set Form3.Text1 15.05
set Form3.Text11 3400
set Form3.Text15 6653
set Form3.Text12 107.8
set Form3.Text26 7
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 313
set Form3.Text12 107.8
click Form3.Command13
get Form3.Text14
get Form3.Text35
get Form3.Text36
click Form3.Command14
get Form3.Text14
get Form3.Text37
get Form3.Text39
click Form3.Command1
get Form3.Text1
get Form3.Text8
click Form3.Command2
get Form3.Text3
get Form3.Text9
click Form3.Command15
get Form3.Text3
get Form3.Text9
set Form3.Text3 147.1
set Form3.Text9 119.3
click Form3.Command3
get Form3.Text1
click Form3.Command16
get Form3.Text1
click Form3.Command11
get Form3.Text8
set Form3.Text1 15.05
click Form3.Command9
get Form3.Text5
click Form3.Command10
get Form3.Text5
click Form3.Command17
get Form3.Text5
click Form3.Command18
get Form3.Text6
click Form3.Command20
get Form3.Text5
get Form3.Text18
click Form3.Command21
get Form3.Text5
get Form3.Text18
click Form3.Command22
get Form3.Text19
click Form3.Command23
get Form3.Text20
click Form3.Command27
get Form3.Text25
get Form3.Text34
click Form3.Command4
get Form3.Text7(0)
get Form3.Text7(1)
get Form3.Text7(2)
get Form3.Text7(3)
get Form3.Text40
get Form3.Text41
get Form3.Text7(4)
get Form3.Text7(5)
get Form3.Text7(6)
get Form3.Text7(7)
get Form3.Text42
get Form3.Text43
get Form3.Text7(8)
get Form3.Text7(9)
get Form3.Text7(10)
get Form3.Text7(11)
get Form3.Text44
get Form3.Text45
messages
uncheck Form3.Check1
get Form3.Text1
get Form3.Text2
get Form3.Text3
get Form3.Text5
get Form3.Text6
get Form3.Text9
get Form3.Text12
get Form3.Text14
get Form3.Text15
click Form3.subend
value Car Weight
value Horse Power
