"""What is wrong with the desktop at the start is reported in one line, and the program makes the best of what is there."""
import os
import socket
import subprocess
import unittest

from program_case import AS_A_USER, ProgramCase
from saved_pdf import words_in_a_row, words_of
from session import DIALOG

CLOSED = ("sh", "-c", 'exec "$@" <&- >&- 2>&-', "sh")
FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>{folder}</dir><cachedir>{cache}</cachedir></fontconfig>"""
CJK_FONTS = "/usr/share/fonts/opentype/noto"


class WithoutDisplay(ProgramCase):
    def expect_one_line(self, environment, words):
        """Exit status 1, one line on standard error, and no file touched."""
        self.host.write_data("User")
        self.expect_end(self.start("User", environment=environment).process, 1)
        self.assertEqual(self.standard_error(), f"tarvis: no window can be shown: {words}\n")
        self.assertEqual(self.files_left(), ["User.tmp"])
        self.assertFalse(self.host.options_file.exists())

    def test_is_reported_where_no_display_is_set(self):
        self.expect_one_line({"DISPLAY": None}, "could not connect to display (DISPLAY is not set)")

    def test_is_reported_where_nobody_serves_the_display(self):
        self.expect_one_line({"DISPLAY": ":7777"}, "could not connect to display :7777")

    def test_is_reported_for_a_kind_that_the_toolkit_does_not_know(self):
        self.expect_one_line({"QT_QPA_PLATFORM": "easel"}, 'Could not find the Qt platform plugin "easel" in ""')


class Fonts(ProgramCase):
    def with_fonts_of(self, folder):
        configuration = self.folder / "fonts.conf"
        configuration.write_text(FONTS.format(folder=folder, cache=self.folder / "fontcache"))
        return {"FONTCONFIG_FILE": str(configuration)}

    def test_end_the_run_before_a_page_of_boxes_is_shown_if_there_are_none(self):
        self.host.write_data("User")
        session = self.start("User", environment=self.with_fonts_of(self.folder / "none"))
        self.expect_end(session.process, 1)
        self.assertEqual(self.standard_error(),
                         "tarvis: no font is installed, so no text can be shown; install Arial or Liberation Sans\n")
        self.assertEqual(self.files_left(), ["User.tmp"])

    def test_are_reported_without_those_of_the_reports_and_pages_can_be_read(self):
        self.host.write_data("User")
        session = self.start("User", environment=self.with_fonts_of(CJK_FONTS))
        session.confirm_dialog()
        session.save_pdf(self.folder / "document.pdf")
        self.assertEqual(session.close_preview(), 0)
        self.assertIn("Parameters List", words_in_a_row(self.folder / "document.pdf"))
        lines = self.standard_error().splitlines()
        self.assertEqual(len(lines), 1)
        self.assertIn("neither Arial nor Liberation Sans is installed; pages are set in Noto", lines[0])


class Configuration(ProgramCase):
    def expect_wrong_argument(self, *words, through=()):
        """Without a version the host is unknown. Standard error names the configuration file and what is missing in it."""
        session = self.start("PrnSetting", through=through)
        self.expect_failure(session, "Argument is wrong.")
        for line in words:
            self.assertIn(f"tarvis: {self.host.configuration}: {line}\n", self.standard_error())
        self.assertEqual(self.standard_error().splitlines()[len(words):],
                         ["tarvis: no such version of edition 1: ''"])

    def test_is_reported_if_it_is_missing(self):
        self.host.configuration.unlink()
        self.expect_wrong_argument("can't be read: No such file or directory")

    def test_is_reported_if_it_may_not_be_read(self):
        self.host.configuration.chmod(0)
        self.expect_wrong_argument("can't be read: Permission denied", through=AS_A_USER)

    def test_is_reported_if_it_is_a_folder(self):
        self.host.configuration.unlink()
        self.host.configuration.mkdir()
        self.expect_wrong_argument("can't be read: Is a directory")

    def test_keeps_nothing_waiting_if_it_is_a_pipe(self):
        self.host.configuration.unlink()
        os.mkfifo(self.host.configuration)
        self.expect_wrong_argument("can't be read: is no regular file")

    def test_is_refused_with_random_bytes(self):
        self.host.configuration.write_bytes(bytes(k * k % 251 for k in range(100_000)))
        section = r"[SOFTWARE\Korvane\Tessaline\Brenmark\Quillon\Setup]"
        self.expect_wrong_argument(*(f"there is no {name} in {section}" for name in ("SystemPath", "Quillon", "QuillonHelpPath")))

    def test_is_read_as_any_other_with_a_byte_order_mark(self):
        self.host.configuration.write_bytes(b"\xef\xbb\xbf" + self.host.configuration.read_bytes())
        session = self.start("PrnSetting")
        session.wait_for(DIALOG)
        self.user.press("Escape")
        self.expect_end(session.process)
        self.assertEqual(self.standard_error(), "")

    def test_is_a_run_time_error_with_a_code_page_that_is_not_of_bytes(self):
        text = self.host.configuration.read_text()
        self.host.configuration.write_text(text.replace("CodePage=1252", "CodePage=1200"))
        self.expect_run_time_error(self.start("PrnSetting"), str(self.host.configuration), "CodePage",
                                   "not a code page that holds ASCII", "1200")

    def test_is_reported_without_a_version(self):
        kept = [line for line in self.host.configuration.read_text().splitlines() if not line.startswith("Quillon=")]
        self.host.configuration.write_text("\n".join(kept))
        self.expect_wrong_argument(r"there is no Quillon in [SOFTWARE\Korvane\Tessaline\Brenmark\Quillon\Setup]")

    def test_keeps_nobody_from_printing_who_needs_no_version(self):
        self.host.configuration.unlink()
        session = self.start("PrnSetting", edition=2)
        session.wait_for(DIALOG)
        self.user.press("Escape")
        self.expect_end(session.process)

    def test_is_a_run_time_error_with_a_code_page_that_nobody_knows(self):
        text = self.host.configuration.read_text()
        self.host.configuration.write_text(text.replace("CodePage=1252", "CodePage=12x"))
        self.expect_run_time_error(self.start("PrnSetting"), "CodePage", "12x")


class StandardError(ProgramCase):
    """A run that diagnoses something ends as ever where nobody can hear of it."""

    def expect_failure_3(self, session):
        session.wait_for(DIALOG)
        self.user.press("Return")
        self.expect_failure(session, "Parameter File is wrong.")
        self.assertEqual(self.files_left(), [])

    def write_wrong_data(self):
        (self.host.temp_folder / "User.tmp").write_bytes(b"File-Spec,3\r\nParameterNum,1\r\n")

    def test_may_be_closed(self):
        self.write_wrong_data()
        session = self.start("User", through=CLOSED)
        session.wait_for(DIALOG)
        streams = [os.readlink(f"/proc/{session.process.pid}/fd/{number}") for number in range(3)]
        self.assertEqual(streams, ["/dev/null"] * 3)  # else a diagnosis goes into some file or connection
        self.expect_failure_3(session)

    def test_may_be_a_pipe_that_nobody_reads_any_more(self):
        self.write_wrong_data()
        kept, given = socket.socketpair()
        with given:
            session = self.start("User", through=("sh", "-c", f'exec "$@" 2>&{given.fileno()}', "sh"),
                                 pass_fds=[given.fileno()])
        kept.close()
        self.expect_failure_3(session)


class Help(ProgramCase):
    def test_missing_file_leaves_the_dialog_as_it_is(self):
        self.host.help_file.unlink()
        self.host.write_data("JogTbl")
        opened = self.folder / "opened"
        session = self.start("JogTbl", environment=self.note_opened(opened))
        session.wait_for(DIALOG)
        self.user.press("F1")
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)
        self.assertFalse(opened.exists())
        self.assertEqual(self.standard_error(), "")


    def test_file_whose_name_is_no_text_opens_all_the_same(self):
        named = os.fsencode(self.host.help_file.parent) + b"/h\xfclfe.html"
        os.rename(self.host.help_file, named)
        self.host.write_data("JogTbl")
        opened = self.folder / "opened"
        session = self.start(None, arguments=[b"JogTbl", b"h\xfclfe.html", b"1200", b"2"], environment=self.note_opened(opened))
        session.wait_for(DIALOG)
        self.user.press("F1")
        self.assertRegex(self.wait_for_opened(opened, 1)[0], "/h%FClfe.html#1200$")
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.standard_error(), "")


class Locales(ProgramCase):
    def saved_words(self, environment):
        """Every word of a document with its place on the pages."""
        self.host.write_data("Mecha")
        session = self.start("Mecha", environment={"LC_ALL": None, "LANGUAGE": None, **environment})
        session.confirm_dialog()
        pdf = self.folder / "document.pdf"
        session.save_pdf(pdf)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.standard_error(), "")
        return words_of(pdf, 1) + words_of(pdf, 2), self.host.options_file.read_bytes().split(b"\r\n")

    def made(self, name):
        """The environment of a language that need not be installed."""
        folder = self.folder / "locales"
        folder.mkdir(exist_ok=True)
        subprocess.run(["localedef", "-i", name, "-f", "UTF-8", folder / f"{name}.UTF-8"], check=True, capture_output=True)
        variables = {"LOCPATH": str(folder), "LANG": f"{name}.UTF-8"}
        answer = subprocess.run(["locale", "day"], env={**os.environ, **variables}, capture_output=True, text=True, check=True)
        self.assertNotIn("Sunday", answer.stdout)
        return variables

    def test_changes_no_number_and_no_date(self):
        words, options = self.saved_words({"LANG": "C.UTF-8"})
        self.assertIn("-207.2", [word for word, *_ in words])
        for environment in ({"LANG": None}, {"LC_ALL": "C"}, self.made("de_DE"), self.made("ja_JP")):
            with self.subTest(environment=environment):
                others, written = self.saved_words(environment)
                self.assertEqual(others, words)
                self.assertEqual([line for line in written if not line.startswith(b"DateTime,")],
                                 [line for line in options if not line.startswith(b"DateTime,")])
                self.assertRegex(next(line for line in written if line.startswith(b"DateTime,")).decode(),
                                 r"^DateTime,20\d\d/\d\d/\d\d \d\d:\d\d:\d\d$")


if __name__ == "__main__":
    unittest.main()
