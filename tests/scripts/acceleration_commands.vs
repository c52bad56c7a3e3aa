# Presses every command of the acceleration screen's main page, with what it opens with and with
# the values of other cars. The expected values were worked out apart from the program.
menu ACCELERATION
pause what the screen opens with
get Form13.Text1
get Form13.Text18
get Form13.Text21
get Form13.Text49
get Form13.Text12
get Form13.Text62
get Form13.Text41
get Form13.Text30
get Form13.Text31
get Form13.Text28
get Form13.Text47
get Form13.Text45
get Form13.Text46
get Form13.Text48
get Form13.Text50
get Form13.Text51
get Form13.Text64
get Form13.Text65
get Form13.Text10
get Form13.Text11
get Form13.Text63
get Form13.Text66
get Form13.Text68
get Form13.Text67
get Form13.Text69
get Form13.Text29
get Form13.Text42
get Form13.Text72
get Form13.Text73
get Form13.Text37
get Form13.Text38
get Form13.Text79
get Form13.Text80
get Form13.Text77
get Form13.Text78
get Form13.Text70
get Form13.Text81
get Form13.Text82
pause wheel torque
click Form13.Command23
get Form13.Text46
get Form13.Text48
get Form13.Text50
value Long Acel Gs
check Form13.Check2
click Form13.Command23
get Form13.Text46
set Form13.Text12 3
click Form13.Command23
get Form13.Text46
uncheck Form13.Check2
set Form13.Text45 268
set Form13.Text2(0) 2.52
set Form13.Text18 3.55
set Form13.Text47 14
set Form13.Text49 12.7
set Form13.Text51 3550
click Form13.Command23
get Form13.Text46
get Form13.Text48
get Form13.Text50
pause what air and tires take at a speed
click Form13.Command24
get Form13.Text63
get Form13.Text68
set Form13.Text1 60
set Form13.Text64 0.46
set Form13.Text65 22
set Form13.Text66 0.016
set Form13.Text73 29.5
click Form13.Command24
get Form13.Text63
get Form13.Text68
set Form13.Text73 0.1
click Form13.Command24
get Form13.Text63
set Form13.Text73 0.076501
click Form13.Command24
get Form13.Text63
pause frontal area
click Form13.Command28
get Form13.Text65
value Frontal Area
set Form13.Text10 60
set Form13.Text11 72
click Form13.Command28
get Form13.Text65
pause power of a top speed
set Form13.Text1 250
set Form13.Text64 0.24
set Form13.Text65 16.5
set Form13.Text66 0.09
set Form13.Text67 1.2134
set Form13.Text73 25.65
set Form13.Text51 2900
set Form13.Text28 5.5
set Form13.Text47 12
click Form13.Command17
get Form13.Text81
get Form13.Text82
pause the torque curve shifted up, and down again
set Form13.Text72 500
click Form13.Command8
click Form13.TorqueTable
show Form13.TorqueText
get Form13.TorquePeaks
click Form13.CloseTorque
set Form13.Text72 -500
click Form13.Command8
click Form13.TorqueTable
show Form13.TorqueText
click Form13.CloseTorque
pause the torque curve as the engine gives it
set Form13.Text67 1.25
click Form13.Command14
click Form13.TorqueTable
show Form13.TorqueText
get Form13.TorquePeaks
click Form13.CloseTorque
pause changed rows ask to be saved
answer No
menu Exit
messages
