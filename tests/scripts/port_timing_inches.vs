# Presses every command of the port timing screen for four engines.
# The expected values were worked out apart from the program.
menu SRKVAL
pause a fresh screen
get Form18.Text1
get Form18.Text3
get Form18.Text4
get Form18.Text50
get Form18.Text5
get Form18.Text22
get Form18.Text10
get Form18.Text20
get Form18.Text21
get Form18.Text29
get Form18.Text30
get Form18.Text31
get Form18.Text48
get Form18.Text47
get Form18.Text2
get Form18.Text6
get Form18.Text23
get Form18.Text26
get Form18.Text51
get Form18.Text8
get Form18.Text9
get Form18.Text11
get Form18.Text12
get Form18.Text24
get Form18.Text27
get Form18.Text52
get Form18.Text13
get Form18.Text14
get Form18.Text15
get Form18.Text16
get Form18.Text25
get Form18.Text28
get Form18.Text53
get Form18.Text19
get Form18.Text17
get Form18.Text18
get Form18.Text32
get Form18.Text33
get Form18.Text34
get Form18.Text43
get Form18.Text44
get Form18.Text45
get Form18.Text46
get Form18.Text35
get Form18.Text36
get Form18.Text37
get Form18.Text38
get Form18.Text39
get Form18.Text40
get Form18.Text41
get Form18.Text42
get Form18.Text49
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
set Form18.Text1 1.9685
set Form18.Text3 2.007874
set Form18.Text4 3.937
set Form18.Text5 12000
set Form18.Text10 0.0
set Form18.Text20 14.5
set Form18.Text50 1
set Form18.Text32 21.5
set Form18.Text48 1.0236
set Form18.Text8 1.3
set Form18.Text13 1.3622
set Form18.Text23 0.86
set Form18.Text24 0.5
set Form18.Text25 1.1
set Form18.Text37 0.48
set Form18.Text38 0.0354
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
set Form18.Text1 2.126
set Form18.Text3 2.14567
set Form18.Text4 4.3307
set Form18.Text5 11500
set Form18.Text10 -0.012
set Form18.Text20 13
set Form18.Text50 2
set Form18.Text32 75
set Form18.Text48 1.07
set Form18.Text8 1.41
set Form18.Text13 1.44
set Form18.Text23 1.21
set Form18.Text24 0.64
set Form18.Text25 1.53
set Form18.Text37 0.5
set Form18.Text38 0.0315
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
set Form18.Text1 3.5
set Form18.Text3 2.65
set Form18.Text4 5.25
set Form18.Text5 5000
set Form18.Text10 0.04
set Form18.Text20 7.2
set Form18.Text50 3
set Form18.Text32 70
set Form18.Text48 1.52
set Form18.Text8 1.8
set Form18.Text13 1.85
set Form18.Text23 3.4
set Form18.Text24 1.2
set Form18.Text25 2.9
set Form18.Text37 0.35
set Form18.Text38 0.06
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
