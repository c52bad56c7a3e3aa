# Every item of the appearance, its key, and what a parameter file carries of it.
menu CubicInch
pause fonts
font Sans;14;0;0
menu Fonts
value Help Box Font Name
value Help Box Font Size
font Serif Mixed;12;BOLD;ITALIC
menu EntryFont
value Entry Box Font Name
value Entry Box Font Size
value Entry Box Font Bold
value Entry Box Font Italic
font cancel
menu EntryFont
value Entry Box Font Name
font ;500;0;0
menu LabelFont
value Label Box Font Size
get Main.Label77
font Sans;3;0;0
menu CommandFont
value Command Button Font Size
get Main.Label77
menu Classic_Lab
value Label Box Font Name
menu Classic_Lab
value Label Box Font Name
menu Classic_Comm
value Command Button Font Name
pause colors
color 0
menu LabelColor
value Label Box Color
color 8388608
menu FrameColor
value BackGround Color
get Main.Label77
color 16777215
menu LabelColor
get Main.Label77
color 255
menu QuitColor
value Quit BackGround Color
color 65535
menu BoxColor
color cancel
menu BoxColor
value Help BackGround Color
color 255
menu BoxFColor
value Help Box Font Color
get Main.Label77
pause lists
menu EntryAlig
state Main.Combo3
state Main.Combo4
state Main.Combo5
state Main.Combo6
rows Main.Combo6
get Main.Combo3
select Main.Combo3 0 - Left
value Entry Box Alignment
menu T_B_Style
state Main.Combo3
state Main.Combo4
select Main.Combo4 0 - None
value Entry Box Style
menu O_C_Style
select Main.Combo5 0 - Flat
value Option Check Box Style
hover Main.Exit_Sel_GUI
get Main.Label77
click Main.Exit_Sel_GUI
state Main.Combo5
pause the screens work as before
type Form1.Text1 4.125{TAB}
click Form1.Command1
get Form1.Text6
pause a file keeps it, default look forgets it, the file brings it back
file appearance.prm
menu Write
menu Default_Look
value Entry Box Font Name
value Entry Box Alignment
value Entry Box Style
value Option Check Box Style
value Label Box Color
value Help Box Font Size
file appearance.prm
menu Read
value Entry Box Font Name
value Entry Box Alignment
value Entry Box Style
value Option Check Box Style
value Label Box Color
value Help Box Font Size
get Main.Combo3
messages
menu Default_Look
pause screen sizes
state Main.LrgScrRes
menu LrgScrRes
value Large Screen
value Full Screen
menu FullScrRes
value Large Screen
value Full Screen
menu SPRINGS
menu Default_Look
value Full Screen
messages
