REM The blank that stays hides the letters REM.
	 REM x
REM fehler: Unknown Command:  REM X
