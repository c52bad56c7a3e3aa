# What the compression gauge screen shares: values go to the parameter file and come back, the
# opener copies them, and the Metric item of the menu ticks the screen's box.
menu CompGauge
pause the exponents
rows Form12.Combo1
get Form12.Combo1
pause what a command reads is written
set Form12.Text10 14.5
set Form12.Text35 181.25
set Form12.Text45 8.125
select Form12.Combo1 1.48
click Form12.Command7
get Form12.Text17
value Crank Angle CG
value Base Exponent
value Compression Gauge
value Dynamic Compression Ratio
value Compression Ratio
file gauge.prm
menu Write
messages
pause other values, then the file again
set Form12.Text10 9
set Form12.Text35 170
select Form12.Combo1 1.05
click Form12.Command10
value Base Exponent
file gauge.prm
answer No
menu Read
messages
get Form12.Text35
value Base Exponent
click Form12.subend
menu CompGauge
get Form12.Text10
get Form12.Text35
get Form12.Text45
get Form12.Text17
get Form12.Text22
get Form12.Combo1
click Form12.subend
pause metric by the menu
menu Metric
menu CompGauge
get Form12.Check1
get Form12.Text1
get Form12.Text30
get Form12.Text31
value Bore
click Form12.subend
value Bore
get Form12.Text1
messages
