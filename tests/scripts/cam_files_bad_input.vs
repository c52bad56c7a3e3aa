# Cam files that are none, and dialogs that are cancelled
file cams/nothing.cmm
menu Cx_File
messages
file cams/empty.cmm
menu Cx_File
messages
file cams/exhaust_only.cmm
menu Cx_File
messages
file cams/curve.prm
menu Cx_File
messages
file cams/bad_number.cmm
menu Cx_File
messages
file cams/long.cmm
menu Cx_File
messages
file cams/short_header.c2
menu Cx_File
messages
file cancel
menu Cx_File
messages
file cams/pair.c1
file cancel
menu Cx_File
messages
file cams/bad_number.cmm
menu CMM_Inches_MM
messages
file cancel
menu CMM_MM_Inches
messages
file cams/bad.s96
menu S96_File
messages
file cams/intake.s96
file cams/bad.s96
menu S96_File
messages
file cancel
menu S96_File
messages
dialogs
