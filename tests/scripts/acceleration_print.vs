# The chart of a run goes to the printer in 9 points, its heads bold, and to a file.
menu ACCELERATION
file cars/stock_car.prm
menu Read
click Form13.Command25
press Form13.Text58 ,
pages
click Form13.Command25
file chart.txt
press Form13.Text58 .
get Form13.Text58
dialogs
messages
