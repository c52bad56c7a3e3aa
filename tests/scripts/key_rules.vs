# What fields take from the keyboard, and the boxes that refused keys bring.
menu CubicInch
pause real values: digits and one point
type Form1.Text1 4.1.25
get Form1.Text1
messages
type Form1.Text1 4x,-.0 3
get Form1.Text1
messages
pause the test looks at the whole text, selected or not
set Form1.Text1 3.75
type Form1.Text1 .
get Form1.Text1
messages
pause signed values: one minus, anywhere
type Form1.Text10 -0-.01
get Form1.Text10
messages
type Form1.Text10 5-
get Form1.Text10
messages
pause counts: digits alone, refused in silence
type Form1.Text2 1.2-3a
get Form1.Text2
messages
pause results: nothing but backspace
get Form1.Text24
type Form1.Text24 12{BS}
get Form1.Text24
set Form1.Text7 3.5077
press Form1.Text7 {BS}
press Form1.Text7 {BS}
get Form1.Text7
messages
pause tab goes to the next field and selects it, enter does nothing
type Form1.Text1 4.5{ENTER}{TAB}
press Form1.Text3 3
get Form1.Text1
get Form1.Text3
type Form1.Text4 {BS}{BS}
get Form1.Text4
type Form1.Text4 5.70{BS}
get Form1.Text4
