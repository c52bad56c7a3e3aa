# A parameter file keeps what the acceleration screen shows, and brings it back; zeros of files that
# knew nothing of the screen leave it as it stands.
pause written before anything was set: the fields' own texts
file acceleration_defaults.prm
menu Write
messages
pause a file of a car, read with the screen closed
file cars/salt_flats.prm
menu Read
menu ACCELERATION
get Form13.Text66
get Form13.Text73
get Form13.Text69
get Form13.Text42
get Form13.Text37
get Form13.Text38
get Form13.Check4
get Form13.Check7
get Form13.Text2(4)
get Form13.Text22(0)
get Form13.Text22(4)
get Form13.Text22(5)
get Form13.Text52(3)
get Form13.Text13(4)
get Form13.Text32(4)
messages
pause what is typed goes into the next file once a command has read it
set Form13.Text69 4750
set Form13.Text32(0) 0.75
set Form13.Text91(1) 85.5
set Form13.Text90(1) 2
set Form13.Text90(7) 60
set Form13.Text94(7) 9.5
check Form13.Check3
click Form13.Command25
file acceleration_changed.prm
menu Write
set Form13.Text69 1
set Form13.Text32(0) 1
set Form13.Text91(1) 1
set Form13.Text94(7) 1
uncheck Form13.Check3
file acceleration_changed.prm
answer No
menu Read
get Form13.Text69
get Form13.Text32(0)
get Form13.Text90(1)
get Form13.Text91(1)
get Form13.Text90(7)
get Form13.Text94(7)
get Form13.Check3
messages
pause zeros of an old file
file cars/zeros.prm
menu Read
get Form13.Text67
get Form13.Text69
get Form13.Text42
get Form13.Text51
get Form13.Text73
get Form13.Text22(0)
get Form13.Text13(0)
get Form13.Text28
get Form13.Text91(0)
messages
pause one stage of nitrous as files of earlier versions tell it
file cars/one_stage.prm
menu Read
get Form13.Text90(0)
get Form13.Text91(0)
get Form13.Text92(0)
get Form13.Text93(0)
get Form13.Text94(0)
messages
pause cleared forms stay blank
answer OK
menu Clear
get Form13.Text69
get Form13.Text2(0)
get Form13.TorqueText
messages
