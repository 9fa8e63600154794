READCOMBO=1,ComboBox,Export,1
REM fehler: Der Eintrag aus der Combobox konnte nicht ausgewählt werden.
