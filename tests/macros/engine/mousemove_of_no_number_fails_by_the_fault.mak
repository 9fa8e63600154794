REM The failed conversion is a fault, which the dispatcher turns into the text of the failure.
MOUSEMOVE=10,oben
REM fehler: Fehler in Funktion MakroExecute:Typen unverträglich
