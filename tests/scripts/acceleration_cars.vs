# Runs six cars of different kinds down the strip, and a kart with a CVT.
# Their times were worked out apart from the program, by the same forces in steps of time.
menu ACCELERATION
pause a drag car with two gears and a converter
file samples/small_block_drag.prm
menu Read
click Form13.Command25
value ET60
value ET8
value MPH8
value ET
show Form13.Text58
press Form13.Text58 x
messages
pause a motorcycle with a primary drive
file samples/motorcycle.prm
menu Read
click Form13.Command25
value ET60
value ET8
value MPH8
value ET
messages
pause a stock car on street tires, with wind
file cars/stock_car.prm
menu Read
click Form13.Command25
value ET60
value ET8
value MPH8
value ET
get Form13.Text58
press Form13.Text58 x
messages
pause a truck with an automatic
file cars/truck.prm
menu Read
click Form13.Command25
value ET60
value ET8
value MPH8
value ET
messages
pause a kart with one gear, which runs out of it
file cars/kart.prm
menu Read
click Form13.Command25
value ET60
value ET8
value ET
show Form13.Text58
pause the kart with a CVT
click Form13.Command13
value ET60
value ET8
value MPH8
value ET
show Form13.Text58
messages
pause a top speed car on the salt
file cars/salt_flats.prm
menu Read
click Form13.Command25
value ET60
value ET8
value MPH8
value ET
value Vertical CG
value Wheel Base
show Form13.Text58
messages
