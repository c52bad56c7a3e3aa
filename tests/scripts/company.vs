# The company block: entered, printed, saved, loaded, and where it stands.
menu Co_Name
state Main.Text94
set Main.Text94 Acme Racing
type Main.Text95 1 Main Street{TAB}
set Main.Text96 Elyria, OH 44035
hover Main.Text98
get Main.Label77
file company.dcn
click Main.Save_Co_Name
set Main.Text94 
get Main.Text94
click Main.Exit_Co_Name
state Main.Text94
file company.dcn
menu Load_Co_Name
get Main.Text94
get Main.Text95
get Main.Text96
get Main.Text97
dialogs
pause a cancelled dialog leaves all
file cancel
menu Load_Co_Name
menu Co_Name
get Main.Text94
file cancel
click Main.Save_Co_Name
messages
pause a folder cannot be written, a missing file not be read
file .
click Main.Save_Co_Name
file no-such.dcn
menu Load_Co_Name
get Main.Text94
click Main.Exit_Co_Name
pause the place on the page
menu Print_Head_Location
state Main.Option4(0)
get Main.Option4
hover Main.Option4(1)
get Main.Label77
choose Main.Option4(1)
value Company Name Location
click Main.Exit_Sel_Co_Name
state Main.Option4(0)
menu CubicInch
set Form1.Text39 90
click Form1.Command18
press Form1.Text38 ,
pages
