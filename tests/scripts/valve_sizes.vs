# Valves and throats: stems from the list, three measures of a throat.
menu AIRFUEL
click Form4.Command50(3)
state Form4.Frame8
rows Form4.Combo1
get Form4.Combo1
get Form4.IntakeThroatArea
get Form4.ExhaustThroatArea
select Form4.Combo1 .2756
get Form4.Text43
get Form4.IntakeThroatArea
select Form4.Combo2 .3110
get Form4.Text46
pause a stem of another size is none of the list
set Form4.Text43 .3
get Form4.Combo1
set Form4.Text43 0.3725
get Form4.Combo1
choose Form4.Option1(1)
set Form4.Text44 2.7
get Form4.IntakeThroatArea
get Form4.ExhaustThroatArea
choose Form4.Option1(2)
set Form4.Text44 1.84
get Form4.IntakeThroatArea
set Form4.Text44 x
get Form4.IntakeThroatArea
click Form4.Command91(4)
state Form4.Frame8
messages
