# The main page and the injector panel know no metric: neither the menu item nor another screen in
# metric changes what they show or compute.
menu Metric
menu AIRFUEL
get Form4.Text1
get Form4.Text79
get Form4.Text33
click Form4.Command54
get Form4.Text81
menu CubicInch
get Form1.Check1
get Form1.Text1
pause with the displacement screen in metric
menu AIRFUEL
get Form4.Text1
get Form4.Text71
get Form4.Text79
click Form4.Command54
get Form4.Text81
get Form4.Text3
click Form4.Command9
get Form4.Text34
click Form4.Command37
click Form4.CommandF3(5)
get Form4.Text40
click Form4.Command91(8)
menu CubicInch
get Form1.Text1
get Form1.Text27
messages
