READCOMBOTEXT=1,Export,1,ComboBox
REM fehler: Der Text aus der Combobox konnte nicht gelesen werden.
