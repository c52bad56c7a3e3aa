# Presses every command of the elapsed time screen for four vehicles.
# The expected values were worked out apart from the program.
menu ET_MPH
pause the default vehicle
uncheck Form3.Check2
set Form3.Text2 2350
set Form3.Text5 1295
set Form3.Text3 192.453
set Form3.Text9 156.466
set Form3.Text1 7.105
set Form3.Text11 6500
set Form3.Text15 327
set Form3.Text12 1046.36
set Form3.Text26 3.25
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 1295
set Form3.Text12 1046.36
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
set Form3.Text3 192.453
set Form3.Text9 156.466
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
set Form3.Text2 3600
set Form3.Text5 310
set Form3.Text3 99.5
set Form3.Text9 79.25
set Form3.Text1 13.9
set Form3.Text11 5200
set Form3.Text15 350
set Form3.Text12 385
set Form3.Text26 4.5
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 310
set Form3.Text12 385
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
set Form3.Text3 99.5
set Form3.Text9 79.25
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
set Form3.Text2 640
set Form3.Text5 165
set Form3.Text3 141.2
set Form3.Text9 113.7
set Form3.Text1 9.9
set Form3.Text11 11200
set Form3.Text15 61
set Form3.Text12 83.5
set Form3.Text26 3.25
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 165
set Form3.Text12 83.5
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
set Form3.Text3 141.2
set Form3.Text9 113.7
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
set Form3.Text2 5900
set Form3.Text5 420
set Form3.Text3 91.4
set Form3.Text9 74.1
set Form3.Text1 15.05
set Form3.Text11 3400
set Form3.Text15 406
set Form3.Text12 780
set Form3.Text26 7
click Form3.Command12
get Form3.Text12
click Form3.Command24
get Form3.Text5
set Form3.Text5 420
set Form3.Text12 780
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
set Form3.Text3 91.4
set Form3.Text9 74.1
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
