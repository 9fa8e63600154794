REM No prefix is added.
RAISEERROR='Kein Mandant, bitte öffnen.'
REM fehler: Kein Mandant, bitte öffnen.
