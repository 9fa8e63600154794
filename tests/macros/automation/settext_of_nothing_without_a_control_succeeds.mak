SETTEXT=,1,Export,1
REM erwartet: Das Textfeld wurde ausgefüllt ()
