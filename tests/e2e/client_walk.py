"""A macro that walks the stand-in's list of clients and notes each row that it comes to."""

from harness import DESTINATION, EndToEndTest
from probe import WM_COMMAND

MENU_CLIENTS = 2202

# $WJ has to be met before the end of the loop: it counts the years.
MACRO = f"""SHOWINPUTDLG=Welche Mandanten?
CREATEPROTOCOL='{DESTINATION}\\clients.txt'
DO
VERIFYLIST=5071,Mandant öffnen,1,
ADDPROTOCOL='$MANDANTNUMMER $WJ'
NEXT VJ
LOOP UNTIL COUNT
CLOSEPROTOCOL
"""


class ClientWalkTest(EndToEndTest):
    def ask_for_clients(self, count, years="2005"):
        """Lays a list of this many clients and starts the macro; yields the dialog that asks for them."""
        self.lay_macro(MACRO, fragment="Mandant öffnen", Einkommensteuer={"Veranlagungsjahr": years})
        main, _ = self.start_teru("--clients", str(count))
        self.probe.post(main, WM_COMMAND, MENU_CLIENTS)
        self.probe.window("Mandant öffnen")
        self.start_program()
        self.press("Mandant öffnen")
        return self.dialog("alle Mandanten")

    def walk_all(self, dialog):
        self.click_button(dialog, "alle Mandanten")
        self.click_button(dialog, "OK")
