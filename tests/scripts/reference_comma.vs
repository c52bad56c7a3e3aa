# arguments: --decimal-comma
# Charts, units and springs on a system with a decimal comma.
messages
menu EQUIV
click Form10.Command1
show Form10.Text38
click Form10.Command32
show Form10.Text38
click Form10.Command13
show Form10.Text38
menu UNIT
get Form9.Text1
type Form9.Text1 -1,5
click Form9.Command1
show Form9.Text2
menu SPRINGS
get Form16.Text1
get Form16.Text18
type Form16.Text1 ,625
click Form16.Command1
get Form16.Text4
get Form16.Text19
messages
