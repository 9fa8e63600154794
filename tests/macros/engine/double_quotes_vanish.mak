REM Double quotes have no meaning: they protect no comma and may stand anywhere, also in the verb.
"MSG"="Hallo"
REM erwartet: MSG: Hallo
M"S"G=a"b"c
REM erwartet: MSG: abc
IF STRCOMP="a,b"
REM erwartet: STRCOMP: a, b = False
ENDIF
