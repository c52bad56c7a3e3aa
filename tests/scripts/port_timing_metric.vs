# Presses every command of the port timing screen for four engines in metric units.
# The expected values were worked out apart from the program.
menu SRKVAL
check Form18.Check1
pause the default engine
click Form18.Command2
get Form18.Text47
get Form18.Text2
get Form18.Text6
get Form18.Text22
click Form18.Command4
get Form18.Text9
get Form18.Text11
get Form18.Text12
get Form18.Text22
click Form18.Command6
get Form18.Text14
get Form18.Text15
get Form18.Text16
get Form18.Text22
click Form18.Command7
get Form18.Text17
get Form18.Text18
get Form18.Text19
get Form18.Text22
click Form18.Command1
get Form18.Text48
click Form18.Command3
get Form18.Text8
click Form18.Command5
get Form18.Text13
click Form18.Command8
get Form18.Text29
get Form18.Text21
get Form18.Text30
get Form18.Text31
click Form18.Command9
get Form18.Text20
click Form18.Command10
get Form18.Text48
click Form18.Command11
get Form18.Text29
get Form18.Text26
get Form18.Text51
click Form18.Command12
get Form18.Text29
get Form18.Text27
get Form18.Text52
click Form18.Command13
get Form18.Text29
get Form18.Text28
get Form18.Text53
click Form18.Command14
get Form18.Text29
get Form18.Text33
get Form18.Text34
click Form18.Command18
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command19
get Form18.Text33
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command15
get Form18.Text35
get Form18.Text36
get Form18.Text40
click Form18.Command16
get Form18.Text39
click Form18.Command17
get Form18.Text41
get Form18.Text42
get Form18.Text49
click Form18.Command20
get Form18.Text41
get Form18.Text42
get Form18.Text49
messages
pause a kart engine of 100 cc
set Form18.Text1 50.000
set Form18.Text3 51.000
set Form18.Text4 100.000
set Form18.Text5 12000
set Form18.Text10 0.000
set Form18.Text20 14.5
set Form18.Text50 1
set Form18.Text32 16.03
set Form18.Text48 25.999
set Form18.Text8 33.020
set Form18.Text13 34.600
set Form18.Text23 5.548
set Form18.Text24 3.226
set Form18.Text25 7.097
set Form18.Text37 0.48
set Form18.Text38 0.899
click Form18.Command2
get Form18.Text47
get Form18.Text2
get Form18.Text6
get Form18.Text22
click Form18.Command4
get Form18.Text9
get Form18.Text11
get Form18.Text12
get Form18.Text22
click Form18.Command6
get Form18.Text14
get Form18.Text15
get Form18.Text16
get Form18.Text22
click Form18.Command7
get Form18.Text17
get Form18.Text18
get Form18.Text19
get Form18.Text22
click Form18.Command1
get Form18.Text48
click Form18.Command3
get Form18.Text8
click Form18.Command5
get Form18.Text13
click Form18.Command8
get Form18.Text29
get Form18.Text21
get Form18.Text30
get Form18.Text31
click Form18.Command9
get Form18.Text20
click Form18.Command10
get Form18.Text48
click Form18.Command11
get Form18.Text29
get Form18.Text26
get Form18.Text51
click Form18.Command12
get Form18.Text29
get Form18.Text27
get Form18.Text52
click Form18.Command13
get Form18.Text29
get Form18.Text28
get Form18.Text53
click Form18.Command14
get Form18.Text29
get Form18.Text33
get Form18.Text34
click Form18.Command18
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command19
get Form18.Text33
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command15
get Form18.Text35
get Form18.Text36
get Form18.Text40
click Form18.Command16
get Form18.Text39
click Form18.Command17
get Form18.Text41
get Form18.Text42
get Form18.Text49
click Form18.Command20
get Form18.Text41
get Form18.Text42
get Form18.Text49
messages
pause a twin of 250 cc
set Form18.Text1 54.000
set Form18.Text3 54.500
set Form18.Text4 110.000
set Form18.Text5 11500
set Form18.Text10 -0.305
set Form18.Text20 13
set Form18.Text50 2
set Form18.Text32 55.93
set Form18.Text48 27.178
set Form18.Text8 35.814
set Form18.Text13 36.576
set Form18.Text23 7.806
set Form18.Text24 4.129
set Form18.Text25 9.871
set Form18.Text37 0.5
set Form18.Text38 0.800
click Form18.Command2
get Form18.Text47
get Form18.Text2
get Form18.Text6
get Form18.Text22
click Form18.Command4
get Form18.Text9
get Form18.Text11
get Form18.Text12
get Form18.Text22
click Form18.Command6
get Form18.Text14
get Form18.Text15
get Form18.Text16
get Form18.Text22
click Form18.Command7
get Form18.Text17
get Form18.Text18
get Form18.Text19
get Form18.Text22
click Form18.Command1
get Form18.Text48
click Form18.Command3
get Form18.Text8
click Form18.Command5
get Form18.Text13
click Form18.Command8
get Form18.Text29
get Form18.Text21
get Form18.Text30
get Form18.Text31
click Form18.Command9
get Form18.Text20
click Form18.Command10
get Form18.Text48
click Form18.Command11
get Form18.Text29
get Form18.Text26
get Form18.Text51
click Form18.Command12
get Form18.Text29
get Form18.Text27
get Form18.Text52
click Form18.Command13
get Form18.Text29
get Form18.Text28
get Form18.Text53
click Form18.Command14
get Form18.Text29
get Form18.Text33
get Form18.Text34
click Form18.Command18
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command19
get Form18.Text33
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command15
get Form18.Text35
get Form18.Text36
get Form18.Text40
click Form18.Command16
get Form18.Text39
click Form18.Command17
get Form18.Text41
get Form18.Text42
get Form18.Text49
click Form18.Command20
get Form18.Text41
get Form18.Text42
get Form18.Text49
messages
pause an outboard of three cylinders
set Form18.Text1 88.900
set Form18.Text3 67.310
set Form18.Text4 133.350
set Form18.Text5 5000
set Form18.Text10 1.016
set Form18.Text20 7.2
set Form18.Text50 3
set Form18.Text32 52.20
set Form18.Text48 38.608
set Form18.Text8 45.720
set Form18.Text13 46.990
set Form18.Text23 21.935
set Form18.Text24 7.742
set Form18.Text25 18.710
set Form18.Text37 0.35
set Form18.Text38 1.524
click Form18.Command2
get Form18.Text47
get Form18.Text2
get Form18.Text6
get Form18.Text22
click Form18.Command4
get Form18.Text9
get Form18.Text11
get Form18.Text12
get Form18.Text22
click Form18.Command6
get Form18.Text14
get Form18.Text15
get Form18.Text16
get Form18.Text22
click Form18.Command7
get Form18.Text17
get Form18.Text18
get Form18.Text19
get Form18.Text22
click Form18.Command1
get Form18.Text48
click Form18.Command3
get Form18.Text8
click Form18.Command5
get Form18.Text13
click Form18.Command8
get Form18.Text29
get Form18.Text21
get Form18.Text30
get Form18.Text31
click Form18.Command9
get Form18.Text20
click Form18.Command10
get Form18.Text48
click Form18.Command11
get Form18.Text29
get Form18.Text26
get Form18.Text51
click Form18.Command12
get Form18.Text29
get Form18.Text27
get Form18.Text52
click Form18.Command13
get Form18.Text29
get Form18.Text28
get Form18.Text53
click Form18.Command14
get Form18.Text29
get Form18.Text33
get Form18.Text34
click Form18.Command18
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command19
get Form18.Text33
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
click Form18.Command15
get Form18.Text35
get Form18.Text36
get Form18.Text40
click Form18.Command16
get Form18.Text39
click Form18.Command17
get Form18.Text41
get Form18.Text42
get Form18.Text49
click Form18.Command20
get Form18.Text41
get Form18.Text42
get Form18.Text49
messages
pause what other screens share
value BMEP
value Dynamic Compression Ratio
value Compression Ratio
value Total Vol
value 2 S Exhaust Distance
value 2 S Exhaust Degrees
value 2 S Exhaust Port Area
value Squish Ratio
value Squish Clearance
value Horse Power
uncheck Form18.Check1
get Form18.Text1
get Form18.Text3
get Form18.Text4
get Form18.Text10
get Form18.Text48
get Form18.Text8
get Form18.Text13
get Form18.Text23
get Form18.Text24
get Form18.Text25
get Form18.Text29
get Form18.Text30
get Form18.Text31
get Form18.Text32
get Form18.Text33
get Form18.Text34
get Form18.Text35
get Form18.Text36
get Form18.Text38
get Form18.Text39
get Form18.Text40
get Form18.Text41
get Form18.Text42
get Form18.Text49
get Form18.Text19
messages
