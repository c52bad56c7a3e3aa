# Flow files of other programs, read and written.
menu AIRFUEL
click Form4.Command35
file cancel
click Form4.Read(0)
messages
dialogs
pause 10 and 12 inches of water become 28
file flow/iron.flw
click Form4.Read(0)
messages
get Form4.Text42
get Form4.Text45
get Form4.Text70
get Form4.Text62
get Form4.Text48(0)
get Form4.Text49(0)
get Form4.Text48(5)
get Form4.Text49(5)
get Form4.Text48(6)
get Form4.Text49(6)
get Form4.Text50(6)
get Form4.Text49(16)
get Form4.Text49(21)
get Form4.Text49(22)
show Form4.FlowNotes
click Form4.Command33
get Form4.Text50(5)
get Form4.Text51(5)
get Form4.Text50(6)
get Form4.Text51(6)
pause a count for each port, and the valves
file flow/four_valves.dfw
click Form4.Read(0)
get Form4.Text42
get Form4.Text45
get Form4.Text62
get Form4.Text63
get Form4.Text48(3)
get Form4.Text49(3)
get Form4.Text48(18)
get Form4.Text49(18)
get Form4.Text48(19)
click Form4.Command33
get Form4.Text50(3)
get Form4.Text51(3)
get Form4.Text50(18)
get Form4.Text51(18)
pause sections of other files
file flow/street.DYN
click Form4.Read(0)
get Form4.Text42
get Form4.Text62
get Form4.Text49(0)
file flow/project.cqu
click Form4.Read(0)
get Form4.Text42
get Form4.Text62
get Form4.Text49(18)
file flow/project.dym
click Form4.Read(0)
dialogs
messages
pause files with a fault
file flow/no_mark.flw
click Form4.Read(0)
get Form4.Text42
messages
file flow/too_many.flw
click Form4.Read(0)
get Form4.Text42
get Form4.Text48(0)
show Form4.FlowNotes
messages
file flow/cut_short.flw
click Form4.Read(0)
get Form4.Text42
get Form4.Text45
get Form4.Text48(5)
get Form4.Text49(4)
get Form4.Text49(5)
get Form4.Text48(16)
show Form4.FlowNotes
messages
file flow/no_number.flw
click Form4.Read(0)
get Form4.Text48(0)
get Form4.Text48(1)
show Form4.FlowNotes
messages
file flow/no_pressure.dfw
click Form4.Read(0)
get Form4.Text49(3)
get Form4.Text45
get Form4.Text48(16)
show Form4.FlowNotes
file flow/valves.dfw
click Form4.Read(0)
get Form4.Text49(18)
show Form4.FlowNotes
file flow/cut_in_search.dyn
click Form4.Read(0)
file flow/empty.flw
click Form4.Read(0)
file flow/binary.flw
click Form4.Read(0)
messages
pause written
file flow/iron.flw
click Form4.Read(0)
file cancel
click Form4.Export_Flow_Data
file written.dfw
click Form4.Export_Flow_Data
messages
dialogs
file written.dfw
click Form4.Read(0)
messages
pause many points are told; Frame8 is read first
click Form4.Command66
click Form4.Command91(9)
click Form4.Command50(3)
set Form4.Text42 wide
click Form4.Command91(4)
click Form4.Command35
click Form4.Export_Flow_Data
messages
set Form4.Text42 2.02
set Form4.Text48(0) .1
set Form4.Text49(0) 10
set Form4.Text48(1) .11
set Form4.Text49(1) 11
set Form4.Text48(2) .12
set Form4.Text49(2) 12
set Form4.Text48(3) .13
set Form4.Text49(3) 13
set Form4.Text48(4) .14
set Form4.Text49(4) 14
set Form4.Text48(5) .15
set Form4.Text49(5) 15
set Form4.Text48(6) .16
set Form4.Text49(6) 16
set Form4.Text48(7) .17
set Form4.Text49(7) 17
set Form4.Text48(8) .18
set Form4.Text49(8) 18
set Form4.Text48(9) .19
set Form4.Text49(9) 19
file many.dfw
click Form4.Export_Flow_Data
messages
set Form4.Text48(10) .2
set Form4.Text49(10) 20
file many.dfw
click Form4.Export_Flow_Data
messages
