SETTEXT=Text,1,Export,1
REM fehler: Das Textfeld konnte nicht ausgefüllt werden. (0)
