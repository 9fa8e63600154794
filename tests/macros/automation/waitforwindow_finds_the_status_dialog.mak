REM The only window of this desktop is the program's own.
WAITFORWINDOW=Datenexport
REM erwartet: Warten auf Fenster war erfolgreich.
WAITFORWINDOW=TARVEN Datenexport,1
REM erwartet: Warten auf Fenster war erfolgreich.
