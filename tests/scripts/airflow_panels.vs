# Panels over the page: nothing is reset by opening and closing them, fields of hidden ones can be
# read and set, and what lies under one takes no click.
menu AIRFUEL
state Form4.Text6
click Form4.Command37
state Form4.Text6
state Form4.Text1
set Form4.Text6 33.5
click Form4.Command8
get Form4.Text5
click Form4.Command91(8)
state Form4.Text6
get Form4.Text6
set Form4.Text6 36
get Form4.Text6
get Form4.StandardRating
click Form4.Command37
get Form4.Text6
set Form4.Text3 640
click Form4.CommandF3(1)
get Form4.Text3
click Form4.subend
menu AIRFUEL
state Form4.Text6
get Form4.Text6
messages
