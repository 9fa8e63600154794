REM The parenthesised form exists for assignments only.
SETTEXT(a,b)
REM fehler: Unknown Command: SETTEXT(A,B)
