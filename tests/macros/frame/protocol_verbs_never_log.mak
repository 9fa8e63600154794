REM Also without an open protocol, and when it is closed twice.
ADDPROTOCOL=verloren
CREATEPROTOCOL=x.txt
ADDPROTOCOL=Zeile
CLOSEPROTOCOL
CLOSEPROTOCOL
ADDPROTOCOL=verloren
MSG=1
REM erwartet: MSG: 1
