REM Names of built-in variables are upper-case words.
MSG=$DATE
REM erwartet: MSG: 14.03.2006
MSG=$date
REM erwartet: MSG: $date
MSG=$Date
REM erwartet: MSG: $Date
