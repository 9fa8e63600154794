REM So is every other verb that would fail.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
FOO=1
WAIT=abc
MOUSECLICK=MIDDLE
MOUSEMOVE=a,b
""
ENDIF
MSG=da
REM erwartet: MSG: da
