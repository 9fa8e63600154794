"""The verbs for combo boxes and list views, from a macro line to what the stand-in has heard."""

import unittest

from client_record import (
    BANK_ACCOUNTS,
    BRANCH,
    CANCEL,
    CURRENCY,
    MENU_CLEAR,
    PARTNERS,
    PERIOD,
    RECORD,
    YEAR,
    YEAR_FRAME,
    ClientRecordTest,
)

COMBO_BOX = "ThunderRT6ComboBox"
MISSING = 2999
SELECTED = "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden."
NOT_SELECTED = "Der Eintrag aus der Combobox konnte nicht ausgewählt werden."
TEXT_READ = "Der Text aus der Combobox wurde erfolgreich gelesen."


class ComboBoxTest(ClientRecordTest):
    def test_entries_are_selected_told_of_and_read(self):
        frame, year, currency = (self.handle(identity) for identity in (YEAR_FRAME, YEAR, CURRENCY))
        log = self.run_macro(f"""\
DIM Text
SELECTCOMBO=2003,{YEAR},{RECORD},1
SELECTCOMBO=2005,{YEAR},{RECORD},1
SELECTCOMBO=eur,{CURRENCY},{RECORD},1,,{COMBO_BOX}
SELECTCOMBO=CHF,{CURRENCY},{RECORD},1,,{COMBO_BOX}
IF SELECTCOMBO=20,{YEAR},{RECORD},1,nicht gelesen,nicht gelesen
MSG=der zweite Eintrag
ENDIF
IF SELECTCOMBO=DEM,{CURRENCY},{RECORD},1,,{COMBO_BOX}
MSG=falscher Zweig
ELSE
MSG=von anderer Klasse
ENDIF
SELECTCOMBOINDEX=2,{YEAR},{RECORD},1
Text=READCOMBOTEXT({YEAR},{RECORD},1,ComboBox)
MSG=Text
SELECTCOMBOINDEX=erster,{YEAR},{RECORD},1
SELECTCOMBOINDEX=5,{YEAR},{RECORD},1
IF SELECTCOMBOINDEX=-1,{CURRENCY},{RECORD},1,,{COMBO_BOX}
MSG=nichts gewählt
ENDIF
READCOMBOTEXT={CURRENCY},{RECORD},1,{COMBO_BOX}
READCOMBOTEXT={MISSING},{RECORD},1,{COMBO_BOX}
READCOMBO={YEAR},ComboBox,{RECORD},1
READCOMBO={BRANCH},{COMBO_BOX},{RECORD},1
READCOMBO={MISSING},{COMBO_BOX},{RECORD},1
SELECTCOMBO=2002,{YEAR},{RECORD},1
""", failures=5)

        def found(handle):
            return f"Select Combo-> HWNDCTL: {handle}Parent: {frame}"

        nothing = "Select Combo-> HWNDCTL: 0Parent: 0"
        self.assertEqual(
            log,
            [
                found(year),
                f"{SELECTED} Sel: 2003",
                found(year),
                f"{SELECTED} Sel: 2005",
                found(currency),
                f"{SELECTED} Sel: eur",
                found(currency),
                f"{NOT_SELECTED} Sel: CHF",
                CANCEL,
                found(year),
                f"{SELECTED} Sel: 20",
                "MSG: der zweite Eintrag",
                nothing,
                "MSG: von anderer Klasse",
                found(year),
                f"{SELECTED} Sel: 2",
                f"{TEXT_READ} 2004 Rumpfjahr",
                "MSG: 2004 Rumpfjahr",
                found(year),
                f"{SELECTED} Sel: erster",
                found(year),
                f"{NOT_SELECTED} Sel: 5",
                CANCEL,
                found(currency),
                f"{SELECTED} Sel: -1",
                "MSG: nichts gewählt",
                "Fehler in Funktion ReadComboText:Ungültiger Prozeduraufruf oder ungültiges Argument",
                CANCEL,
                "Der Text aus der Combobox konnte nicht gelesen werden.",
                CANCEL,
                f"{SELECTED} 2005;2004;2004 Rumpfjahr;2003;2002;...",
                f"{SELECTED} ...",
                NOT_SELECTED,
                CANCEL,
                found(year),
                f"{SELECTED} Sel: 2002",
            ],
        )

        def told(identity, entry):
            return [f"Auswahl {identity}, Mitteilung {code}: {entry}" for code in (1, 9)]

        self.assert_heard(
            [
                *told(YEAR, "2003"),
                *told(YEAR, "2005"),
                # The search begins behind the first entry, which is "EUR".
                *told(CURRENCY, "EUR in Tausend"),
                *told(YEAR, "2004"),
                *told(YEAR, "2004 Rumpfjahr"),
                *told(YEAR, "2005"),
                *told(CURRENCY, ""),
                *told(YEAR, "2002"),
            ],
        )
        self.assertEqual(self.probe.control(self.record, PERIOD).text, "01.01.2002 bis 31.12.2002")


class ListViewTest(ClientRecordTest):
    def test_rows_are_selected_and_cells_read(self):
        log = self.run_macro(f"""\
SELECTLIST={MISSING},{RECORD},1
DO
IF VJ
SELECTLIST={PARTNERS},{RECORD},1
GETANLLIST=1,{PARTNERS},{RECORD}
ENDIF
NEXT VJ
LOOP UNTIL COUNT
GETANLLIST=0,{BANK_ACCOUNTS},{RECORD},SysListView32
GETANLLIST=alle,{PARTNERS},{RECORD}
READLISTITEM='Grünbärtl, Änne',{PARTNERS},{RECORD},1
IF READLISTITEM='grünbärtl, Änne',{PARTNERS},{RECORD},1
MSG=falscher Zweig
ENDIF
READLISTITEM='Erbengemeinschaft Balthasar Grünbärtl, T',{PARTNERS},{RECORD},1
READLISTITEM='Erbengemeinschaft Balthasar Grünbärtl, Tölz',{PARTNERS},{RECORD},1
READLISTITEM=Hausbank München,{BANK_ACCOUNTS},{RECORD},1
READLISTITEM=Postbank,{BANK_ACCOUNTS},{RECORD},1
MENUCLICK={MENU_CLEAR},{RECORD},1
WAIT=500
IF READLISTITEM=Postbank,{BANK_ACCOUNTS},{RECORD},1
MSG=falscher Zweig
ENDIF
SELECTLIST={PARTNERS},{RECORD},1
""", failures=4)
        positions = ("Geschäftsführer", "Prokuristin", "Gesellschafterin", "Gesellschafter", "Stiller Gesellschafter")
        walk = []
        for row, position in enumerate(positions):
            walk += ["VJ True", f"SelectList {row + 1}", f"GetListItemText {position}({row})", position, "NextYear"]
            walk += ["Loop: YearCount=0 CurrYear=1"]

        def found(value):
            return f"Der Wert {value} wurde in der Liste gefunden."

        def not_found(value):
            return f"Der Wert {value} konnte in der Liste nicht gefunden werden."

        self.assertEqual(
            log,
            [
                "Die Liste konnte nicht ausgewählt werden. 0",
                CANCEL,
                *walk,
                # This list goes by the message's first parameter, which is always 0.
                "GetListItemText Hausbank München(4)",
                "Hausbank München",
                found("Grünbärtl, Änne"),
                found("Erbengemeinschaft Balthasar Grünbärtl, T"),
                not_found("Erbengemeinschaft Balthasar Grünbärtl, Tölz"),
                CANCEL,
                found("Hausbank München"),
                not_found("Postbank"),
                CANCEL,
                f"Menu wurde ausgewählt ({MENU_CLEAR} {self.record.handle})",
                # The list is empty, which fails the run with no text.
                "",
                CANCEL,
            ],
        )
        names = ("Grünbärtl, Xaver", "Grünbärtl, Veronika", "Grünbärtl, Änne")
        names += ("Erbengemeinschaft Balthasar Grünbärtl, Tölz", "Rößler, Ludwig")
        self.assert_heard([*[f"Liste {PARTNERS}: {name}" for name in names], "Menü: Listen leeren"])


if __name__ == "__main__":
    unittest.main()
