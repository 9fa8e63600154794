REM The look-up of variables comes before the verbs: MSG=VALUE(1) is an assignment now, and MSG=x runs the verb X.
DIM MSG
MSG=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
msg=MSG
REM erwartet: MSG: 1
MSG=x
REM fehler: Unknown Command: X
