REM With no variable declared the name reaches the dispatcher as a verb, in upper case.
x=VALUE(1)
REM fehler: Unknown Command: X
