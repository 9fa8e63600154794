REM In both spellings.
ENDIF
END IF
MSG=da
REM erwartet: MSG: da
