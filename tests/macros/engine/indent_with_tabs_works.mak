REM Tabs vanish everywhere in a line, also inside a verb and an argument.
	MSG=1
REM erwartet: MSG: 1
		MSG=2	
REM erwartet: MSG: 2
M	SG=a	b
REM erwartet: MSG: ab
