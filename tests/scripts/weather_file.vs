# What the weather screen shares: values go to the parameter file and come back, the opener copies
# the plain numbers, and the Metric item of the menu ticks the screen's box.
menu WEATHER
pause what a command reads is written, with what no command has read
set Form7.Text10 28.75
set Form7.Text11 88
set Form7.Text12 61
set Form7.Text8 1234
set Form7.Text1 29.33
set Form7.Text3 72
set Form7.Text4 44
set Form7.Text9 987
set Form7.Text15 321
set Form7.Text19 0.091
set Form7.Text21 0.037
set Form7.Text26 6
set Form7.Text27 3
set Form7.Text28 6.25
set Form7.Text29 2.5
click Form7.Command4
get Form7.Text18
set Form7.Text9 1
file weather.prm
menu Write
messages
pause other values, then the file again
set Form7.Text10 30
set Form7.Text11 50
set Form7.Text12 20
set Form7.Text8 1
set Form7.Text1 30
set Form7.Text3 50
set Form7.Text4 20
set Form7.Text15 100
set Form7.Text19 0.1
set Form7.Text21 0.05
set Form7.Text26 1
set Form7.Text27 2
set Form7.Text28 3
set Form7.Text29 4
click Form7.Command3
get Form7.Text18
file weather.prm
answer No
menu Read
messages
get Form7.Text10
get Form7.Text11
get Form7.Text12
get Form7.Text8
get Form7.Text1
get Form7.Text3
get Form7.Text4
get Form7.Text9
get Form7.Text15
get Form7.Text18
get Form7.Text19
get Form7.Text21
get Form7.Text26
get Form7.Text27
get Form7.Text28
get Form7.Text29
pause what the opener copies
click Form7.subend
menu WEATHER
get Form7.Text10
get Form7.Text11
get Form7.Text12
get Form7.Text8
get Form7.Text15
get Form7.Text18
get Form7.Text9
pause the other screens' weather and power
menu CompGauge
get Form12.Text30
get Form12.Text31
get Form12.Text32
set Form12.Text31 65
click Form12.Command18
click Form12.subend
menu WEATHER
get Form7.Text11
pause the file while the screen is metric
check Form7.Check1
get Form7.Text10
get Form7.Text1
get Form7.Text11
get Form7.Text3
get Form7.Text15
get Form7.Text18
file weather.prm
answer No
menu Read
messages
get Form7.Text10
get Form7.Text1
get Form7.Text11
get Form7.Text3
get Form7.Text15
get Form7.Text18
file weather_again.prm
menu Write
messages
value Barometric Pressure
value Barometric Pressure New
value Temperature
value Temperature New
value Horse Power
click Form7.subend
get Form7.Text10
get Form7.Text1
get Form7.Text11
get Form7.Text3
get Form7.Text15
get Form7.Text18
pause metric by the menu
menu Metric
menu WEATHER
get Form7.Check1
get Form7.Text10
get Form7.Text1
get Form7.Text11
get Form7.Text3
get Form7.Text15
get Form7.Text18
click Form7.Command5
get Form7.Text13
get Form7.Text34
value Barometric Pressure
value Temperature
click Form7.subend
get Form7.Text10
get Form7.Text1
get Form7.Text11
get Form7.Text3
get Form7.Text15
get Form7.Text18
messages
