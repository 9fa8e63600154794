"""What the tests of control automation share: the stand-in's dialog "Stammdaten" and macros that are run against it."""

import time

from harness import COMPLETED, PATIENCE, STARS, TITLE, EndToEndTest, wait_until
from probe import BM_CLICK, WM_COMMAND, ProbeError

RECORD = "Stammdaten"
MENU_CLIENT_RECORD = 2201
CANCEL = "<Cancel>"

ADDRESS, NAME, PLACE, TAX_NUMBER, NOTE, NUMBER, MAIL_TO_CONSULTANT = 2210, 2211, 2213, 2214, 2215, 2216, 2217
LEGAL_FORM, SOLE_TRADER, PARTNERSHIP, FOUNDATION = 2220, 2221, 2222, 2224
PROFIT, CASH_BASIS = 2230, 2232
FEATURES, SALES_TAX, PAYROLL, AUDIT, CLOSED, EXTENSION = 2240, 2241, 2242, 2243, 2244, 2245
YEAR_FRAME, YEAR, CURRENCY, BRANCH, PERIOD = 2250, 2251, 2252, 2253, 2254
FOLDER_BOX, BROWSE = 2261, 2262
PARTNERS, ACCOUNT_FRAME, BANK_ACCOUNTS = 2271, 2280, 2281
SAVE, DELETE, COPY, CHECK = 2291, 2292, 2293, 2294
MENU_SAVE, MENU_RESET, MENU_FILL, MENU_CLEAR = 2301, 2302, 2311, 2312


class ClientRecordTest(EndToEndTest):
    """Each test starts with the program waiting and the dialog "Stammdaten" open."""

    maxDiff = None

    def setUp(self):
        super().setUp()
        self.start_program()
        self.main, _ = self.start_teru()
        self.probe.post(self.main, WM_COMMAND, MENU_CLIENT_RECORD)
        self.record = self.probe.window(RECORD)
        self.heard_before = 0

    def handle(self, identity):
        return self.probe.control(self.record, identity).handle

    def begin_macro(self, text):
        """Presses the hot key over the dialog, which the macro then works on."""
        self.heard_before = len(self.teru_log())
        self.lay_macro(text, fragment=RECORD)
        self.press(RECORD)

    def end_macro(self, failures=0):
        """Goes on behind each failure and yields the lines that the macro has left in the log."""
        for count in range(1, failures + 1):
            self.go_on(count)
        self.wait_run_ended()
        log = self.log()
        start = log.index("MakroFile: PROBE.MAK") + 1
        self.assertEqual(log[-3:], [COMPLETED, STARS, ""])
        return log[start:-3]

    def run_macro(self, text, failures=0):
        self.begin_macro(text)
        return self.end_macro(failures)

    def go_on(self, count):
        """Resumes the run after so many failures."""

        def button():
            try:
                for window in self.probe.windows(TITLE):
                    control = self.probe.control(window, text="W&eiter")
                    if control.enabled:
                        return control
            except ProbeError:
                pass  # the program gives no answer while a verb waits
            return None

        self.probe.post(wait_until(button, f"failure {count} of the run"), BM_CLICK)
        self.wait_log(CANCEL, times=count)

    def heard(self):
        """What the stand-in has written down since the press, without what the focus does by itself."""
        return [line for line in self.teru_log()[self.heard_before :] if not line.startswith(("Fokus", "Fenster"))]

    def assert_heard(self, expected):
        # What was posted may arrive behind the end of the run.
        deadline = time.monotonic() + PATIENCE
        while len(self.heard()) < len(expected) and time.monotonic() < deadline:
            time.sleep(0.05)
        self.assertEqual(self.heard(), expected)

    def heard_focus(self):
        return [line for line in self.teru_log()[self.heard_before :] if line.startswith(("Fokus", "Fenster"))]
