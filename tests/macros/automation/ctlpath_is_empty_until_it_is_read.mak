MSG=<$CTLPATH>
REM erwartet: MSG: <>
