SELECTCOMBOINDEX=99999999999,1,Export,1
REM fehler: Fehler in Funktion SelectCombo:Überlauf
