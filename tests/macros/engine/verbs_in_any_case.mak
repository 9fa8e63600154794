REM The verb is folded to upper case.
msg=a
REM erwartet: MSG: a
MessageOut=b
REM erwartet: MSG: b
if strcomp=a,b
REM erwartet: STRCOMP: a, b = False
Else
Msg=c
REM erwartet: MSG: c
End If
