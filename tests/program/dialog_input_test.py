"""What is put into the dialog by keyboard, mouse and clipboard, on screens of several sizes."""
import unittest

from program_case import ProgramCase  # also finds the modules of tests/host
from desktop import MIDDLE_BUTTON, WHEEL_DOWN, User, VirtualDisplay, wait_until
from session import DIALOG

MESSAGE = "Input Error"
WRONG_STEP = "Wrong the inputted STEP number.Please input again."
TABLE_EDITION = 2

# Twips in the dialog as it is drawn, whatever the size on the screen.
DIALOG_WIDTH = 5535
FUNCTION_LIST = (2600, 3325)
TITLE_BOX = (3285, 4457)
OK_BUTTON_X = 1702
OK_BUTTON_ABOVE_BOTTOM = 293


class DialogInput(ProgramCase):
    def open_settings(self):
        session = self.start("PrnSetting", TABLE_EDITION)
        return session, session.wait_for(DIALOG)

    def click_at(self, window, twips, button=1):
        scale = self.user.place(window)[2] / DIALOG_WIDTH
        self.user.click(window, *(round(place * scale) for place in twips), button)

    def end_by_ok(self, session):
        self.user.press("alt+o")
        self.expect_end(session.process)

    def options(self):
        return self.host.options_file.read_bytes().split(b"\r\n")

    def title(self):
        return self.widget(DIALOG, "text", "Title text")

    def test_a_pasted_line_break_leaves_the_options_readable(self):
        session, _ = self.open_settings()
        self.press_until_focused(session, DIALOG, "text", "Title text")
        self.user.fill_in("Line1\nLine2")
        wait_until(lambda: self.title().text == "Line1", "the first line")
        self.end_by_ok(session)
        self.assertIn(b"UserHeader,1,1,1,1,1,Line1", self.options())
        session, _ = self.open_settings()
        self.assertEqual(self.title().text, "Line1")

    def test_the_middle_button_pastes_one_line(self):
        session, window = self.open_settings()
        self.user.select("Line1\nLine2")
        self.click_at(window, TITLE_BOX, MIDDLE_BUTTON)
        wait_until(lambda: "Line1" in self.title().text, "the first line")
        self.end_by_ok(session)
        self.assertFalse([line for line in self.options() if b"Line2" in line])

    def open_with_bad_range(self):
        session, window = self.open_settings()
        self.user.press("alt+u", "Down", "Down", "alt+p")
        self.widget(DIALOG, "radio button", "Select the Print STEP.")
        self.user.press("alt+r")
        self.press_until_focused(session, DIALOG, "text", "Start")
        self.user.fill_in("9")
        self.user.press("Tab")
        self.user.fill_in("5")
        wait_until(lambda: self.widget(DIALOG, "text", "End").text == "5", "the end of the range")
        return session, window

    def answer_wrong_step(self, session):
        words, _ = self.read_message(session, MESSAGE)
        self.assertEqual(words, WRONG_STEP)
        self.user.press("Return")
        session.wait_for(DIALOG)
        wait_until(lambda: self.widget(DIALOG, "text", "Start").has("focused"), "the focus in the field that is wrong")

    def test_a_bad_range_holds_against_wheel_and_ok(self):
        session, window = self.open_with_bad_range()
        for _ in range(2):
            self.click_at(window, FUNCTION_LIST, WHEEL_DOWN)
            self.answer_wrong_step(session)
            self.assertTrue(self.widget(DIALOG, "radio button", "Select the Print STEP.").has("checked"))
        self.user.press("Return")
        self.answer_wrong_step(session)
        self.user.press("alt+o")
        self.answer_wrong_step(session)
        self.click_at(window, FUNCTION_LIST)
        self.answer_wrong_step(session)
        self.user.press("Escape")
        self.expect_end(session.process)
        self.assertFalse(self.host.options_file.exists())

    def test_a_good_range_lets_the_wheel_turn(self):
        session, window = self.open_with_bad_range()
        self.user.fill_in("10")
        self.click_at(window, FUNCTION_LIST, WHEEL_DOWN)
        wait_until(lambda: self.program.window(DIALOG).find("text", "Start") is None, "the next page")
        self.end_by_ok(session)
        self.assertIn(b"IdxTblOption,2,9,10,1", self.options())


class LowScreen(ProgramCase):
    """A notebook's screen, with everything half as large again: the dialog is higher."""

    SCREEN = (1366, 768)

    @classmethod
    def setUpClass(cls):
        cls.display = VirtualDisplay("{}x{}".format(*cls.SCREEN))
        cls.addClassCleanup(cls.display.close)
        cls.user = User(cls.display.environment)

    def environment(self):
        return {**super().environment(), "QT_SCALE_FACTOR": "1.5"}

    def test_ok_can_be_clicked(self):
        session = self.start("PrnSetting", TABLE_EDITION)
        window = session.wait_for(DIALOG)
        left, top, width, height = self.user.place(window)
        self.assertGreaterEqual(top, 0)
        self.assertLessEqual(left + width, self.SCREEN[0])
        self.assertLessEqual(top + height, self.SCREEN[1])
        scale = width / DIALOG_WIDTH
        self.user.click(window, round(OK_BUTTON_X * scale), round(height - OK_BUTTON_ABOVE_BOTTOM * scale))
        self.expect_end(session.process)
        self.assertTrue(self.host.options_file.exists())


if __name__ == "__main__":
    unittest.main()
