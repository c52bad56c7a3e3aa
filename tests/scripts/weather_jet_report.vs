# The jetting report: the card of both weathers with every jet and the rod that makes it right.
menu WEATHER
pause the fresh screen
click Form7.Command12
show Form7.Text43
file jets.txt
press Form7.Text43 .
messages
get Form7.Text43
pause in metric, with a jet between two thousandths, colder air and a printed page
check Form7.Check1
set Form7.Text10 1006.1
set Form7.Text11 34.5
set Form7.Text12 82
set Form7.Text1 1020
set Form7.Text3 5
set Form7.Text4 35
set Form7.Text19 0.0785
set Form7.Text21 0.0425
click Form7.Command12
show Form7.Text43
press Form7.Text43 ,
pages
pause the last row of a jet of .080 is 1.3 times it
uncheck Form7.Check1
set Form7.Text10 29.92
set Form7.Text11 59
set Form7.Text12 50
set Form7.Text1 29.5
set Form7.Text3 80
set Form7.Text4 50
set Form7.Text19 .080
set Form7.Text21 0
click Form7.Command12
show Form7.Text43
press Form7.Text43 x
pause a large jet, a new weather as the old: the old rod fits
set Form7.Text1 29.92
set Form7.Text3 59
set Form7.Text4 50
set Form7.Text19 .25
set Form7.Text21 .125
click Form7.Command12
show Form7.Text43
press Form7.Text43 x
messages
