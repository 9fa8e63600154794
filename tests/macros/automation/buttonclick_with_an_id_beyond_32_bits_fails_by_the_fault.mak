BUTTONCLICK=99999999999,Export,1
REM fehler: Fehler in Funktion ButtonClick:Überlauf
