# Every command of the air and fuel screen and of its injector panel for four engines. What is
# expected was worked out apart from the program, formula by formula.
menu AIRFUEL
pause --- a small block as the fields have it
set Form4.Text1 327
set Form4.Text2 6500
set Form4.Text3 1295
set Form4.Text4 7.5
set Form4.Text124 0.9877
set Form4.Text11 .85
set Form4.Text29 8
set Form4.Text30 12.5
set Form4.Text33 2.25
set Form4.Text27 6500
set Form4.Text32 5900
set Form4.Text84 12.5
set Form4.Text10 .5
set Form4.Text19 300.0
set Form4.Text21 .7
set Form4.Text15 5.0
set Form4.Text16 28.0
set Form4.Text17 105.0
set Form4.Text35 14.0
set Form4.Text71 104.0
set Form4.Text79 29.53
set Form4.Text81 2176.8
set Form4.Text6 18.0
set Form4.Text13 20.23994
set Form4.Text8 43.5
set Form4.Text9 55.0
set Form4.Text12 .85
set Form4.Text14 8
set Form4.Text41 15.6923
set Form4.Text82 0.0
choose Form4.Option3(0)
choose Form4.Option4(0)
click Form4.Command34
choose Form4.Option7(0)
click Form4.Command91(1)
click Form4.Command6
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command15
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command16
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command17
get Form4.Text3
click Form4.Command18
get Form4.Text3
click Form4.Command19
get Form4.Text3
click Form4.Command20
get Form4.Text3
click Form4.Command26
get Form4.Text39
click Form4.Command8
get Form4.Text5
get Form4.Text86
click Form4.Command27
get Form4.Text5
get Form4.Text86
click Form4.Command9
get Form4.Text34
click Form4.Command28
get Form4.Text34
click Form4.Command14
get Form4.Text36
get Form4.Text37
click Form4.Command24
get Form4.Text36
get Form4.Text37
click Form4.Command1
get Form4.Text18
click Form4.Command65
get Form4.Text11
click Form4.Command99
get Form4.Text10
click Form4.Command54
get Form4.Text80
get Form4.Text81
get Form4.Text69
get Form4.Text3
click Form4.Command82
get Form4.Text11
click Form4.Command88
get Form4.Text2
set Form4.Text2 6500
set Form4.Text3 1295
set Form4.Text10 .5
set Form4.Text11 .85
set Form4.Text19 300.0
set Form4.Text27 6500
click Form4.Command37
click Form4.CommandF3(0)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(1)
get Form4.Text3
messages
click Form4.CommandF3(2)
get Form4.Text13
get Form4.Text125
messages
click Form4.CommandF3(3)
get Form4.Text9
messages
click Form4.CommandF3(4)
get Form4.Text31
messages
click Form4.CommandF3(5)
get Form4.Text40
messages
click Form4.CommandF3(6)
get Form4.Text41
messages
click Form4.CommandF3(7)
get Form4.Text12
messages
click Form4.CommandF3(8)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(9)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
messages
click Form4.Command91(8)
pause --- a turbocharged four on E85 by lambda
set Form4.Text1 121.9
set Form4.Text2 7200
set Form4.Text3 410
set Form4.Text4 18.5
set Form4.Text124 0.5
set Form4.Text11 .96
set Form4.Text29 4
set Form4.Text30 .82
set Form4.Text33 1.85
set Form4.Text27 7000
set Form4.Text32 5200
set Form4.Text84 9.2
set Form4.Text10 .62
set Form4.Text19 185.5
set Form4.Text21 .78
set Form4.Text15 10
set Form4.Text16 25
set Form4.Text17 160.25
set Form4.Text35 7.5
set Form4.Text71 118.5
set Form4.Text79 29.1
set Form4.Text81 3000
set Form4.Text6 72
set Form4.Text13 90
set Form4.Text8 43.5
set Form4.Text9 58
set Form4.Text12 .8
set Form4.Text14 4
set Form4.Text41 12.5
set Form4.Text82 .9
choose Form4.Option3(0)
choose Form4.Option4(0)
click Form4.Command34
choose Form4.Option7(1)
click Form4.Command91(1)
click Form4.Command6
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command15
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command16
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command17
get Form4.Text3
click Form4.Command18
get Form4.Text3
click Form4.Command19
get Form4.Text3
click Form4.Command20
get Form4.Text3
click Form4.Command26
get Form4.Text39
click Form4.Command8
get Form4.Text5
get Form4.Text86
click Form4.Command27
get Form4.Text5
get Form4.Text86
click Form4.Command9
get Form4.Text34
click Form4.Command28
get Form4.Text34
click Form4.Command14
get Form4.Text36
get Form4.Text37
click Form4.Command24
get Form4.Text36
get Form4.Text37
click Form4.Command1
get Form4.Text18
click Form4.Command65
get Form4.Text11
click Form4.Command99
get Form4.Text10
click Form4.Command54
get Form4.Text80
get Form4.Text81
get Form4.Text69
get Form4.Text3
click Form4.Command82
get Form4.Text11
click Form4.Command88
get Form4.Text2
set Form4.Text2 7200
set Form4.Text3 410
set Form4.Text10 .62
set Form4.Text11 .96
set Form4.Text19 185.5
set Form4.Text27 7000
click Form4.Command37
click Form4.CommandF3(0)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(1)
get Form4.Text3
messages
click Form4.CommandF3(2)
get Form4.Text13
get Form4.Text125
messages
click Form4.CommandF3(3)
get Form4.Text9
messages
click Form4.CommandF3(4)
get Form4.Text31
messages
click Form4.CommandF3(5)
get Form4.Text40
messages
click Form4.CommandF3(6)
get Form4.Text41
messages
click Form4.CommandF3(7)
get Form4.Text12
messages
click Form4.CommandF3(8)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(9)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
messages
click Form4.Command91(8)
pause --- a motorcycle twin
set Form4.Text1 61.1
set Form4.Text2 9800
set Form4.Text3 128.4
set Form4.Text4 0
set Form4.Text124 1.1
set Form4.Text11 1.08
set Form4.Text29 2
set Form4.Text30 13.1
set Form4.Text33 1.9
set Form4.Text27 9600
set Form4.Text32 7700
set Form4.Text84 12.8
set Form4.Text10 .46
set Form4.Text19 160
set Form4.Text21 .72
set Form4.Text15 25
set Form4.Text16 28
set Form4.Text17 140
set Form4.Text35 5.25
set Form4.Text71 -4.5
set Form4.Text79 30.4
set Form4.Text81 520.5
set Form4.Text6 30.5
set Form4.Text13 32
set Form4.Text8 45
set Form4.Text9 45
set Form4.Text12 .95
set Form4.Text14 2
set Form4.Text41 12.244
set Form4.Text82 1.1
choose Form4.Option3(0)
choose Form4.Option4(0)
click Form4.Command34
choose Form4.Option7(0)
click Form4.Command91(1)
click Form4.Command6
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command15
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command16
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command17
get Form4.Text3
click Form4.Command18
get Form4.Text3
click Form4.Command19
get Form4.Text3
click Form4.Command20
get Form4.Text3
click Form4.Command26
get Form4.Text39
click Form4.Command8
get Form4.Text5
get Form4.Text86
click Form4.Command27
get Form4.Text5
get Form4.Text86
click Form4.Command9
get Form4.Text34
click Form4.Command28
get Form4.Text34
click Form4.Command14
get Form4.Text36
get Form4.Text37
click Form4.Command24
get Form4.Text36
get Form4.Text37
click Form4.Command1
get Form4.Text18
click Form4.Command65
get Form4.Text11
click Form4.Command99
get Form4.Text10
click Form4.Command54
get Form4.Text80
get Form4.Text81
get Form4.Text69
get Form4.Text3
click Form4.Command82
get Form4.Text11
click Form4.Command88
get Form4.Text2
set Form4.Text2 9800
set Form4.Text3 128.4
set Form4.Text10 .46
set Form4.Text11 1.08
set Form4.Text19 160
set Form4.Text27 9600
click Form4.Command37
click Form4.CommandF3(0)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(1)
get Form4.Text3
messages
click Form4.CommandF3(2)
get Form4.Text13
get Form4.Text125
messages
click Form4.CommandF3(3)
get Form4.Text9
messages
click Form4.CommandF3(4)
get Form4.Text31
messages
click Form4.CommandF3(5)
get Form4.Text40
messages
click Form4.CommandF3(6)
get Form4.Text41
messages
click Form4.CommandF3(7)
get Form4.Text12
messages
click Form4.CommandF3(8)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(9)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
messages
click Form4.Command91(8)
pause --- a blown alcohol engine
set Form4.Text1 526.4
set Form4.Text2 8650
set Form4.Text3 3150
set Form4.Text4 42
set Form4.Text124 2.2
set Form4.Text11 1.21
set Form4.Text29 8
set Form4.Text30 .7
set Form4.Text33 2.9
set Form4.Text27 8600
set Form4.Text32 7100
set Form4.Text84 11.5
set Form4.Text10 1.35
set Form4.Text19 520
set Form4.Text21 .66
set Form4.Text15 254
set Form4.Text16 28
set Form4.Text17 .21
set Form4.Text35 20
set Form4.Text71 76
set Form4.Text79 27.95
set Form4.Text81 20500
set Form4.Text6 160
set Form4.Text13 175
set Form4.Text8 60
set Form4.Text9 48.5
set Form4.Text12 1.02
set Form4.Text14 16
set Form4.Text41 14.0
set Form4.Text82 1.75
choose Form4.Option3(1)
choose Form4.Option4(1)
click Form4.Command34
choose Form4.Option7(3)
click Form4.Command91(1)
click Form4.Command6
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command15
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command16
get Form4.Text19
get Form4.Text20
get Form4.Text27
click Form4.Command17
get Form4.Text3
click Form4.Command18
get Form4.Text3
click Form4.Command19
get Form4.Text3
click Form4.Command20
get Form4.Text3
click Form4.Command26
get Form4.Text39
click Form4.Command8
get Form4.Text5
get Form4.Text86
click Form4.Command27
get Form4.Text5
get Form4.Text86
click Form4.Command9
get Form4.Text34
click Form4.Command28
get Form4.Text34
click Form4.Command14
get Form4.Text36
get Form4.Text37
click Form4.Command24
get Form4.Text36
get Form4.Text37
click Form4.Command1
get Form4.Text18
click Form4.Command65
get Form4.Text11
click Form4.Command99
get Form4.Text10
click Form4.Command54
get Form4.Text80
get Form4.Text81
get Form4.Text69
get Form4.Text3
click Form4.Command82
get Form4.Text11
click Form4.Command88
get Form4.Text2
set Form4.Text2 8650
set Form4.Text3 3150
set Form4.Text10 1.35
set Form4.Text11 1.21
set Form4.Text19 520
set Form4.Text27 8600
click Form4.Command37
click Form4.CommandF3(0)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(1)
get Form4.Text3
messages
click Form4.CommandF3(2)
get Form4.Text13
get Form4.Text125
messages
click Form4.CommandF3(3)
get Form4.Text9
messages
click Form4.CommandF3(4)
get Form4.Text31
messages
click Form4.CommandF3(5)
get Form4.Text40
messages
click Form4.CommandF3(6)
get Form4.Text41
messages
click Form4.CommandF3(7)
get Form4.Text12
messages
click Form4.CommandF3(8)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
get Form4.Text41
messages
click Form4.CommandF3(9)
get Form4.Text6
get Form4.Text7(0)
get Form4.Text7(1)
get Form4.Text28
messages
click Form4.Command91(8)
