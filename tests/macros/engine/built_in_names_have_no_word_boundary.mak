REM A name is replaced inside a longer word, in every place, and in the verb.
MSG=a$DATEb$DATE
REM erwartet: MSG: a14.03.2006b14.03.2006
X$DATE=1
REM fehler: Unknown Command: X14.03.2006
