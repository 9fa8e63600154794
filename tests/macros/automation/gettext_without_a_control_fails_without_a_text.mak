GETTEXT=Text,1,Export,1
REM fehler:
