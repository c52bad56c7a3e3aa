# Values of the compression ratio screen in the parameter file: a field that no command has read
# is written by its text, and reading fills the fields.
menu CompRatio
set Form1CR.Text16 -4.25
set Form1CR.Text29 12.75
set Form1CR.Text23 201.5
file compression_file.prm
menu Write
messages
set Form1CR.Text16 1
set Form1CR.Text29 2
set Form1CR.Text23 3
set Form1CR.Text14 4
set Form1CR.Text8 5
file compression_file.prm
answer No
menu Read
messages
get Form1CR.Text16
get Form1CR.Text29
get Form1CR.Text23
get Form1CR.Text14
get Form1CR.Text8
get Form1CR.Text15
value Dome Vol
value New Compression Ratio
click Form1CR.Command10
get Form1CR.Text17
value Compression Ratio
value Total Vol
menu CubicInch
get Form1.Text22
