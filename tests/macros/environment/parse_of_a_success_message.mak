REM erwartet: Parse: C:\Export\Anl
REM erwartet: MSG: C:\Export\Anl
DIM Ordner
Ordner=PARSE(Die Daten wurden erfolgreich exportiert und in C:\Export\Anl abgelegt.#AN12008,AnlPath)
MSG=Ordner
