GETCHECK=1,Export,1
REM erwartet: Optionsfeld konnte nicht gefunden werden.
REM fehler:
