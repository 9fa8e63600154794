SELECTCOMBO=Euro,1,Export,1
REM erwartet: Select Combo-> HWNDCTL: 0Parent: 0
REM fehler: Der Eintrag aus der Combobox konnte nicht ausgewählt werden. Sel: Euro
