# The squish velocities as graphs: the first begins anew, further ones are added in the units of
# the axes that they are drawn on.
menu SRKVAL
set Form18.Text47 75
set Form18.Text20 10.1
click Form18.Command21
plot
set Form18.Text38 0.06
click Form18.Command22
check Form18.Check1
click Form18.Command22
plot
click Form18.Command21
plot
pause a start beyond 175 counts as 175
set Form18.Text47 200
click Form18.Command21
plot
pause a longer and higher further curve widens the axes, a smaller one leaves them
uncheck Form18.Check1
set Form18.Text38 0.047244
set Form18.Text47 75
click Form18.Command21
set Form18.Text47 120
set Form18.Text5 13000
click Form18.Command22
plot
set Form18.Text47 60
set Form18.Text5 5000
click Form18.Command22
plot
messages
