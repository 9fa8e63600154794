REM What no variable is called stays in the line.
MSG=$FOO$
REM erwartet: MSG: $FOO$
