# Engines by their makers' figures, in mm and cc; the ratios were worked out apart from the
# program, and stand beside those that were published.
menu CompRatio
check Form1CR.Check1
check Form1CR.Check2
check Form1CR.Check3
set Form1CR.Text10 0
pause Yamaha XT 500: 9.0
set Form1CR.Text1 87
set Form1CR.Text3 84
set Form1CR.Text15 62.4
set Form1CR.Text16 0
set Form1CR.Text42 0
set Form1CR.Text43 0
click Form1CR.Command10
get Form1CR.Text44
get Form1CR.Text17
pause MG TF 1250: 8.1
set Form1CR.Text1 66.5
set Form1CR.Text3 90
set Form1CR.Text15 39.3
set Form1CR.Text42 4.5
click Form1CR.Command10
get Form1CR.Text44
get Form1CR.Text17
pause MG Metro Turbo: 9.4, and the dish that this ratio needs
set Form1CR.Text1 70.6
set Form1CR.Text3 81.3
set Form1CR.Text15 21.4
set Form1CR.Text16 -12
set Form1CR.Text42 3.8
set Form1CR.Text43 0.8
click Form1CR.Command10
get Form1CR.Text44
get Form1CR.Text21
get Form1CR.Text17
set Form1CR.Text17 9.4
click Form1CR.Command14
get Form1CR.Text16
messages
