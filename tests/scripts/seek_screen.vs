# The value of a field that gives a result
menu CubicInch
menu Seek
get Seek.SubjectFrame
select Seek.FieldList Bore (in)
select Seek.CommandList Engine Size
get Seek.ResultList
get Seek.Target
get Seek.Low
get Seek.High
set Seek.Target 400
click Seek.Find_Value
get Seek.Found
get Seek.Reached
get Form1.Text1
get Form1.Text6
history
undo
get Form1.Text1
get Form1.Text6

# Another result is sought by another command
select Seek.CommandList Rod Stroke Ratio
select Seek.FieldList Stroke (in)
get Seek.ResultList
set Seek.Target 1.9
click Seek.Find_Value
get Seek.Found
get Seek.Reached

# What cannot be
select Seek.FieldList Rod Length (in)
set Seek.Target 9
click Seek.Find_Value
set Seek.Low 7
set Seek.High 6
click Seek.Find_Value
set Seek.High
click Seek.Find_Value
set Seek.High 8
set Seek.Target ten
click Seek.Find_Value
messages
get Form1.Text4

# Another screen
menu SPRINGS
menu Seek
get Seek.SubjectFrame
select Seek.FieldList Wire Diameter (in)
get Seek.CommandList

# The units of the screen are switched meanwhile
menu CubicInch
menu Seek
select Seek.CommandList Engine Size
select Seek.FieldList Bore (in)
set Seek.Target 300
check Form1.Check1
set Seek.Low 100
get Seek.FieldList
get Seek.ResultList
get Seek.Target
get Seek.High
set Seek.Target 5000
click Seek.Find_Value
get Seek.Found
value Bore
messages

# Nothing is sought by a target that the user has not seen
uncheck Form1.Check1
click Seek.Find_Value
messages
get Seek.Target
get Form1.Text1
