REM The blank is trimmed first, the tab is removed after it.
 	MSG=1
REM erwartet: MSG: 1
