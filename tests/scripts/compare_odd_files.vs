# A file that cannot be read through is none to be compared.
compare compare/broken.prm
file compare/broken.prm
menu Compare_File
messages
state Main.SheetFrame
value Bore
history
