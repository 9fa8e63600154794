REM Double quotes go first, so a name that they cut in two is a name again.
MSG=$DA"TE"
REM erwartet: MSG: 14.03.2006
