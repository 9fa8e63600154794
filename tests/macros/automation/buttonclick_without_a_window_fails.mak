BUTTONCLICK=1,Export,1
REM fehler: Die Schaltfläche konnte nicht ausgewählt werden.
