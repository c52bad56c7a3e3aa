# arguments: --decimal-comma
# Flow data with a decimal comma.
menu AIRFUEL
click Form4.Command35
get Form4.Text48(0)
get Form4.Text51(0)
click Form4.Command33
get Form4.Text50(0)
get Form4.Text51(0)
file flow/iron.flw
click Form4.Read(0)
get Form4.Text42
get Form4.Text49(0)
click Form4.Command33
get Form4.Text51(0)
click Form4.Command51
show Form4.Text78
press Form4.Text78 x
click Form4.Command50(0)
select Form4.Combo1 .3110
get Form4.Text43
get Form4.Combo1
get Form4.IntakeThroatArea
click Form4.Command91(4)
click Form4.Command91(9)
click Form4.Command80
click Form4.CommandF10(0)
get Form4.Text100
messages
