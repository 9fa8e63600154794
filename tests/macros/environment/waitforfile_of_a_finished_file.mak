REM The settings: three lines that add up to 37 bytes.
REM einstellung: [A]
REM einstellung: k=12345678901234567890
REM einstellung: l=2345
WAITFORFILE=C:\QUMA\QUMAEXP.INI
REM erwartet: Datei wird eingelesen (37) 
MSG=fertig
REM erwartet: MSG: fertig
