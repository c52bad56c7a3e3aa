# Presses every command of the chassis screen on its three pages, for four cars.
# The expected values were worked out apart from the program.
menu CHASSIS
pause the fresh screen
click Form6.Command1
click Form6.Command7
get Form6.Text9
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause the same percentages of half a ton more
set Form6.Text5 27.0
set Form6.Text6 26.0
set Form6.Text7 24.0
set Form6.Text8 23.0
set Form6.Text9 3350.0
click Form6.Command6
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause 52 percent left, 49 rear, 51 across
set Form6.Text16 52
set Form6.Text15 49
set Form6.Text19 51
set Form6.Text9 2350.0
click Form6.Command9
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast
click Form6.Command11
show Form6.Text38
press Form6.Text38 x
click Form6.Command5
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text9
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast that changes no percentage
click Form6.Command12
get Form6.Text40
get Form6.Text41
pause center of gravity
set Form6.Text1 634.5
set Form6.Text2 611
set Form6.Text3 564
set Form6.Text4 540.5
click Form6.Command7
click Form6.Command8
click Form6.Command4
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
click Form6.Command2
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
pause springs
click Form6.Command3
click Form6.Command24
get Form6.Text120
get Form6.Text121
get Form6.Text122
get Form6.Text123
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text107
get Form6.Text108
get Form6.Text109
get Form6.Text110
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
get Form6.Text124
get Form6.Text125
get Form6.Text126
get Form6.Text127
pause weight transfer
click Form6.Command8
click Form6.Command10
get Form6.Text37
get Form6.Text35(8)
get Form6.Text35(9)
get Form6.Text35(10)
get Form6.Text35(11)
get Form6.Text35(12)
get Form6.Text35(13)
get Form6.Text35(14)
get Form6.Text35(15)
get Form6.Text35(16)
get Form6.Text35(17)
get Form6.Text35(18)
get Form6.Text35(19)
get Form6.Text35(20)
get Form6.Text35(21)
get Form6.Text35(22)
get Form6.Text35(23)
get Form6.Text35(24)
get Form6.Text35(25)
get Form6.Text35(26)
get Form6.Text35(27)
get Form6.Text35(28)
get Form6.Text35(29)
get Form6.Text35(30)
get Form6.Text35(31)
get Form6.Text35(32)
get Form6.Text35(33)
get Form6.Text35(34)
get Form6.Text35(35)
pause springs for a frequency
click Form6.Command3
set Form6.Text91 95
set Form6.Text92 100
set Form6.Text93 110
set Form6.Text94 120
click Form6.Command25
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
click Form6.Command26
get Form6.Text83
get Form6.Text84
get Form6.Text85
get Form6.Text86
click Form6.Command24
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
pause a dirt car
click Form6.Command1
set Form6.Text1 655
set Form6.Text2 555
set Form6.Text3 890
set Form6.Text4 700
click Form6.Command7
get Form6.Text9
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause the same percentages of half a ton more
set Form6.Text5 23.393
set Form6.Text6 19.821
set Form6.Text7 31.786
set Form6.Text8 25.0
set Form6.Text9 3800
click Form6.Command6
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause 52 percent left, 49 rear, 51 across
set Form6.Text16 52
set Form6.Text15 49
set Form6.Text19 51
set Form6.Text9 2800
click Form6.Command9
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast
set Form6.Text20 104
set Form6.Text21 64
set Form6.Text39 150
set Form6.Text40 -12.5
set Form6.Text41 44
click Form6.Command11
show Form6.Text38
press Form6.Text38 x
click Form6.Command5
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text9
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast that changes no percentage
click Form6.Command12
get Form6.Text40
get Form6.Text41
pause center of gravity
set Form6.Text1 655
set Form6.Text2 555
set Form6.Text3 890
set Form6.Text4 700
click Form6.Command7
click Form6.Command8
set Form6.Text27 70
set Form6.Text28 75
set Form6.Text29 95
set Form6.Text30 85
set Form6.Text22 1253.5
set Form6.Text23 13.2
set Form6.Text24 18
click Form6.Command4
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
click Form6.Command2
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
pause springs
click Form6.Command3
set Form6.Text83 750
set Form6.Text84 900
set Form6.Text85 200
set Form6.Text86 225
set Form6.Text95 0.62
set Form6.Text96 0.62
set Form6.Text97 0.95
set Form6.Text98 0.95
set Form6.Text103 0.5
set Form6.Text104 0.5
set Form6.Text105 0.6
set Form6.Text106 0.6
set Form6.Text111 310
set Form6.Text112 0
set Form6.Text113 65
set Form6.Text114 63.5
click Form6.Command24
get Form6.Text120
get Form6.Text121
get Form6.Text122
get Form6.Text123
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text107
get Form6.Text108
get Form6.Text109
get Form6.Text110
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
get Form6.Text124
get Form6.Text125
get Form6.Text126
get Form6.Text127
pause weight transfer
click Form6.Command8
set Form6.Text31 -1.1
set Form6.Text32 -0.8
set Form6.Text33 1.5
set Form6.Text34 11.5
click Form6.Command10
get Form6.Text37
get Form6.Text35(8)
get Form6.Text35(9)
get Form6.Text35(10)
get Form6.Text35(11)
get Form6.Text35(12)
get Form6.Text35(13)
get Form6.Text35(14)
get Form6.Text35(15)
get Form6.Text35(16)
get Form6.Text35(17)
get Form6.Text35(18)
get Form6.Text35(19)
get Form6.Text35(20)
get Form6.Text35(21)
get Form6.Text35(22)
get Form6.Text35(23)
get Form6.Text35(24)
get Form6.Text35(25)
get Form6.Text35(26)
get Form6.Text35(27)
get Form6.Text35(28)
get Form6.Text35(29)
get Form6.Text35(30)
get Form6.Text35(31)
get Form6.Text35(32)
get Form6.Text35(33)
get Form6.Text35(34)
get Form6.Text35(35)
pause springs for a frequency
click Form6.Command3
set Form6.Text91 95
set Form6.Text92 100
set Form6.Text93 110
set Form6.Text94 120
click Form6.Command25
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
click Form6.Command26
get Form6.Text83
get Form6.Text84
get Form6.Text85
get Form6.Text86
click Form6.Command24
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
pause a heavy drag car with little of it in front
click Form6.Command1
set Form6.Text1 812.5
set Form6.Text2 790.25
set Form6.Text3 828
set Form6.Text4 850.75
click Form6.Command7
get Form6.Text9
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause the same percentages of half a ton more
set Form6.Text5 24.76
set Form6.Text6 24.082
set Form6.Text7 25.232
set Form6.Text8 25.926
set Form6.Text9 4281.5
click Form6.Command6
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause 52 percent left, 49 rear, 51 across
set Form6.Text16 52
set Form6.Text15 49
set Form6.Text19 51
set Form6.Text9 3281.5
click Form6.Command9
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast
set Form6.Text20 115.5
set Form6.Text21 61.25
set Form6.Text39 60
set Form6.Text40 8
set Form6.Text41 33
click Form6.Command11
show Form6.Text38
press Form6.Text38 x
click Form6.Command5
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text9
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast that changes no percentage
click Form6.Command12
get Form6.Text40
get Form6.Text41
pause center of gravity
set Form6.Text1 812.5
set Form6.Text2 790.25
set Form6.Text3 828
set Form6.Text4 850.75
click Form6.Command7
click Form6.Command8
set Form6.Text27 88
set Form6.Text28 88
set Form6.Text29 150
set Form6.Text30 150
set Form6.Text22 1660
set Form6.Text23 13
set Form6.Text24 24
click Form6.Command4
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
click Form6.Command2
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
pause springs
click Form6.Command3
set Form6.Text83 240
set Form6.Text84 240
set Form6.Text85 175
set Form6.Text86 160
set Form6.Text95 0.55
set Form6.Text96 0.55
set Form6.Text97 0.9
set Form6.Text98 0.9
set Form6.Text103 0.4
set Form6.Text104 0.4
set Form6.Text105 0.7
set Form6.Text106 0.7
set Form6.Text111 0
set Form6.Text112 420
set Form6.Text113 61
set Form6.Text114 61.5
click Form6.Command24
get Form6.Text120
get Form6.Text121
get Form6.Text122
get Form6.Text123
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text107
get Form6.Text108
get Form6.Text109
get Form6.Text110
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
get Form6.Text124
get Form6.Text125
get Form6.Text126
get Form6.Text127
pause weight transfer
click Form6.Command8
set Form6.Text31 0.25
set Form6.Text32 1.35
set Form6.Text33 -0.75
set Form6.Text34 4.25
click Form6.Command10
get Form6.Text37
get Form6.Text35(8)
get Form6.Text35(9)
get Form6.Text35(10)
get Form6.Text35(11)
get Form6.Text35(12)
get Form6.Text35(13)
get Form6.Text35(14)
get Form6.Text35(15)
get Form6.Text35(16)
get Form6.Text35(17)
get Form6.Text35(18)
get Form6.Text35(19)
get Form6.Text35(20)
get Form6.Text35(21)
get Form6.Text35(22)
get Form6.Text35(23)
get Form6.Text35(24)
get Form6.Text35(25)
get Form6.Text35(26)
get Form6.Text35(27)
get Form6.Text35(28)
get Form6.Text35(29)
get Form6.Text35(30)
get Form6.Text35(31)
get Form6.Text35(32)
get Form6.Text35(33)
get Form6.Text35(34)
get Form6.Text35(35)
pause springs for a frequency
click Form6.Command3
set Form6.Text91 95
set Form6.Text92 100
set Form6.Text93 110
set Form6.Text94 120
click Form6.Command25
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
click Form6.Command26
get Form6.Text83
get Form6.Text84
get Form6.Text85
get Form6.Text86
click Form6.Command24
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
pause a small road racer
click Form6.Command1
set Form6.Text1 310
set Form6.Text2 302
set Form6.Text3 288
set Form6.Text4 280
click Form6.Command7
get Form6.Text9
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause the same percentages of half a ton more
set Form6.Text5 26.271
set Form6.Text6 25.593
set Form6.Text7 24.407
set Form6.Text8 23.729
set Form6.Text9 2180
click Form6.Command6
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause 52 percent left, 49 rear, 51 across
set Form6.Text16 52
set Form6.Text15 49
set Form6.Text19 51
set Form6.Text9 1180
click Form6.Command9
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text5
get Form6.Text6
get Form6.Text7
get Form6.Text8
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast
set Form6.Text20 90.5
set Form6.Text21 54
set Form6.Text39 25
set Form6.Text40 45
set Form6.Text41 10
click Form6.Command11
show Form6.Text38
press Form6.Text38 x
click Form6.Command5
get Form6.Text1
get Form6.Text2
get Form6.Text3
get Form6.Text4
get Form6.Text9
get Form6.Text10
get Form6.Text11
get Form6.Text12
get Form6.Text13
get Form6.Text18
get Form6.Text14
get Form6.Text15
get Form6.Text16
get Form6.Text17
get Form6.Text19
get Form6.Text128
pause ballast that changes no percentage
click Form6.Command12
get Form6.Text40
get Form6.Text41
pause center of gravity
set Form6.Text1 310
set Form6.Text2 302
set Form6.Text3 288
set Form6.Text4 280
click Form6.Command7
click Form6.Command8
set Form6.Text27 32
set Form6.Text28 32
set Form6.Text29 30
set Form6.Text30 30
set Form6.Text22 625
set Form6.Text23 10.5
set Form6.Text24 15
click Form6.Command4
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
click Form6.Command2
get Form6.Text25
get Form6.Text26
get Form6.Text35(0)
get Form6.Text35(1)
get Form6.Text35(2)
get Form6.Text35(3)
get Form6.Text35(4)
get Form6.Text35(5)
get Form6.Text35(6)
get Form6.Text35(7)
pause springs
click Form6.Command3
set Form6.Text83 350
set Form6.Text84 350
set Form6.Text85 300
set Form6.Text86 300
set Form6.Text95 0.9
set Form6.Text96 0.9
set Form6.Text97 0.88
set Form6.Text98 0.88
set Form6.Text103 0.8
set Form6.Text104 0.8
set Form6.Text105 0.75
set Form6.Text106 0.75
set Form6.Text111 200
set Form6.Text112 90
set Form6.Text113 55
set Form6.Text114 53
click Form6.Command24
get Form6.Text120
get Form6.Text121
get Form6.Text122
get Form6.Text123
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text107
get Form6.Text108
get Form6.Text109
get Form6.Text110
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
get Form6.Text124
get Form6.Text125
get Form6.Text126
get Form6.Text127
pause weight transfer
click Form6.Command8
set Form6.Text31 1.6
set Form6.Text32 -1.25
set Form6.Text33 1
set Form6.Text34 2.5
click Form6.Command10
get Form6.Text37
get Form6.Text35(8)
get Form6.Text35(9)
get Form6.Text35(10)
get Form6.Text35(11)
get Form6.Text35(12)
get Form6.Text35(13)
get Form6.Text35(14)
get Form6.Text35(15)
get Form6.Text35(16)
get Form6.Text35(17)
get Form6.Text35(18)
get Form6.Text35(19)
get Form6.Text35(20)
get Form6.Text35(21)
get Form6.Text35(22)
get Form6.Text35(23)
get Form6.Text35(24)
get Form6.Text35(25)
get Form6.Text35(26)
get Form6.Text35(27)
get Form6.Text35(28)
get Form6.Text35(29)
get Form6.Text35(30)
get Form6.Text35(31)
get Form6.Text35(32)
get Form6.Text35(33)
get Form6.Text35(34)
get Form6.Text35(35)
pause springs for a frequency
click Form6.Command3
set Form6.Text91 95
set Form6.Text92 100
set Form6.Text93 110
set Form6.Text94 120
click Form6.Command25
get Form6.Text87
get Form6.Text88
get Form6.Text89
get Form6.Text90
get Form6.Text116
get Form6.Text117
get Form6.Text118
get Form6.Text119
get Form6.Text99
get Form6.Text100
get Form6.Text101
get Form6.Text102
click Form6.Command26
get Form6.Text83
get Form6.Text84
get Form6.Text85
get Form6.Text86
click Form6.Command24
get Form6.Text91
get Form6.Text92
get Form6.Text93
get Form6.Text94
pause the movement of a spring on an arm
set Form6.Text36 12.5
set Form6.Text46 14.0
set Form6.Text48 63.5
click Form6.Command27
get Form6.Text115
set Form6.Text36 10
set Form6.Text46 16
set Form6.Text48 90
click Form6.Command27
get Form6.Text115
set Form6.Text36 8.25
set Form6.Text46 15.5
set Form6.Text48 48
click Form6.Command27
get Form6.Text115
messages
