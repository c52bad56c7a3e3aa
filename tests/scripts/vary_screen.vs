# A series of values on the screen that the user came to last
state Main.Vary
menu CubicInch
state Main.Vary
menu Vary
get Vary.SubjectFrame
get Vary.FieldList
get Vary.CommandList
get Vary.From
get Vary.To
get Vary.Step
get Vary.Result1
get Vary.Result4
get Vary.Result5
click Vary.Show_Series
show Vary.Series
press Vary.Series x
state Vary.Series

# The screen is as it was, and nothing asks to be saved
get Form1.Text1
history

# Single values, and a second field
set Vary.Values 4;4.03 4.125
state Vary.SecondFrom
select Vary.SecondList Stroke (in)
state Vary.SecondFrom
get Vary.SecondFrom
get Vary.SecondTo
get Vary.SecondStep
set Vary.SecondValues 3.25 3.48
select Vary.Result2 (none)
select Vary.Result3 (none)
click Vary.Show_Series
show Vary.Series
press Vary.Series ,
pages
click Vary.Show_Curves
plot
select Vary.SecondList (none)
select Vary.CurveList All Results
click Vary.Show_Curves
plot
history
undo
undo
plot

# Another field chooses what depends on it
select Vary.CommandList Rod Stroke Ratio
select Vary.FieldList Rod Length (in)
get Vary.From
get Vary.Result1
get Vary.Result2

# A value that cannot be has its reason
select Vary.CommandList Stroke
select Vary.FieldList Number Of Cylinders
set Vary.Values 0 4 8
click Vary.Show_Series
show Vary.Series
press Vary.Series x

# What cannot be
set Vary.Values
set Vary.Step 0
click Vary.Show_Series
set Vary.Step -1
click Vary.Show_Series
set Vary.Step .00001
click Vary.Show_Series
set Vary.From
click Vary.Show_Series
set Vary.Values 4 four
click Vary.Show_Curves
set Vary.Values 4
click Vary.Show_Curves
select Vary.SecondList Number Of Cylinders
click Vary.Show_Series
select Vary.SecondList (none)
file cancel
click Vary.Save_Series
dialogs
messages

# In metric
select Vary.CommandList Engine Size
select Vary.FieldList Bore (in)
check Form1.Check1
set Vary.Values
get Vary.FieldList
get Vary.From
get Vary.Result1
set Vary.Values 100 101.6
click Vary.Show_Series
show Vary.Series
press Vary.Series x
click Vary.subend
state Main.Vary
