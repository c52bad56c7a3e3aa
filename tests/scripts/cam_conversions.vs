# Conversions of cam files without a screen: units, a factor, an amount, other formats
pause inches to millimetres, with the lashes of the step line as they were
file cams/small.cmm
file mm_of_small.cmm
menu CMM_Inches_MM
dialogs
messages
pause and back
file mm_of_small.cmm
file inches_again.cmm
menu CMM_MM_Inches
messages
pause a plain file has no lashes to speak of
file cams/mm.cmm
file inches.cmm
menu CMM_MM_Inches
messages
pause 5 % more; a minus sign does not matter
menu Mod_Lift
state Main.Frame14
get Main.Text25
type Main.Text25 -1.05
file cams/plain.cmm
file more.cmm
click Main.Command16
state Main.Frame14
messages
pause a fixed amount less
menu Mod_Lift2
get Main.Text25
set Main.Text25 -0.01
file cams/plain.cmm
file less.cmm
click Main.Command16
messages
pause a factor of 0 leaves no lift and is refused; the panel stays
menu Mod_Lift
get Main.Text25
set Main.Text25 0
click Main.Command16
messages
state Main.Frame14
set Main.Text25 
click Main.Command16
messages
click Main.Command17
state Main.Frame14
pause Cam Doctor with a header
file cams/pair.c1
file pair.cmm
menu Cx_File
dialogs
messages
pause a row without comma ends it
file cams/bad_row.c9
file bad_row.cmm
menu Cx_File
messages
pause without a header, and a first row that is none
file cams/plus.c12
file plus.cmm
menu Cx_File
messages
pause a *.cmm keeps its title, and its other step is told
file cams/small.cmm
file converted.cmm
menu Cx_File
messages
value Intake Lash
value Exhaust Lash
pause single columns, intake and exhaust
file cams/intake.s96
file cams/exhaust.s96
file both.cmm
menu S96_File
dialogs
messages
pause an intake alone
file cams/intake.s96
file cancel
file one.cmm
menu S96_File
messages
pause what was written is read again
file pair.cmm
file again.cmm
menu Cx_File
messages
