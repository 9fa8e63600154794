REM The blank behind the tab was no leading blank when the line was trimmed, so it stays in the verb.
	 MSG=1
REM fehler: Unknown Command:  MSG
