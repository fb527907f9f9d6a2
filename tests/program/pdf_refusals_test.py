"""What tarvis-pdf can't do it reports in one clear line, and it leaves no file."""
import os
import shutil
import subprocess
import unittest

from pdf_case import PROGRAM, PdfCase

AS_A_USER = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if os.geteuid() == 0 else ()
HINT = r" \(tarvis-pdf --help shows the options\)"


class Calls(PdfCase):
    def test_wrong_arguments_are_named(self):
        for line, *arguments in (
                (f"MODE, EDITION and OUT.pdf are needed{HINT}",),
                (f"MODE, EDITION and OUT.pdf are needed{HINT}", "User", "1"),
                (f"MODE, EDITION and OUT.pdf are needed{HINT}", "--check", "User"),
                (f"the name of OUT.pdf is empty{HINT}", "User", "1", ""),
                (f"too many arguments: 'b.pdf'{HINT}", "User", "1", "a.pdf", "b.pdf"),
                (f"no such option: '--colour'{HINT}", "--colour", "User", "1", "a.pdf"),
                (f"no such option: '-o'{HINT}", "-o", "User", "1", "a.pdf"),
                (f"--check takes no value{HINT}", "--check=yes", "User", "1"),
                (f"--data needs a value{HINT}", "User", "1", "a.pdf", "--data"),
                (f"--data needs a value{HINT}", "--data=", "User", "1", "a.pdf"),
                ("--paper: neither A4, Letter, A5 nor WxH .*: '40x60'", "--paper", "40x60", "User", "1", "a.pdf"),
                ("--paper: neither .*: 'B5'", "--paper", "B5", "User", "1", "a.pdf"),
                ("--paper: neither .*: '210x'", "--paper", "210x", "User", "1", "a.pdf"),
                ("--paper: neither .*: 'nanx297'", "--paper", "nanx297", "User", "1", "a.pdf"),
                ("--date: not a date .*: 'today'", "--date", "today", "User", "1", "a.pdf"),
                ("--date: not a date .*: '2026-02-30'", "--date", "2026-02-30", "User", "1", "a.pdf"),
                ("--date: not a date .*: '2026-02-03T24:00:00'", "--date", "2026-02-03T24:00:00", "User", "1", "a.pdf"),
                ("run-time error: CodePage: no such code page: '7'", "--code-page", "7", "User", "1", "a.pdf"),
                ("run-time error: CodePage: not a code page number: 'x'", "--code-page", "x", "User", "1", "a.pdf"),
                ("--set: not NAME=VALUE in one line: 'Cover'", "--set", "Cover", "User", "1", "a.pdf"),
                ("--set: no such option: 'Colour'", "--set", "Colour=1", "User", "1", "a.pdf"),
                ("--set: UserHeader has 6 elements, each up to a comma", "--set", "UserHeader=1,1,1,1,1,a,b", "User", "1",
                 "a.pdf"),
                ("--set: JogTblOption has 1 element, each up to a comma", "--set", "JogTblOption=1,1", "User", "1", "a.pdf"),
                ("--set: UserOption has no element '6'", "--set", "UserOption.6=1", "User", "1", "a.pdf"),
                ("run-time error: --set:1: UserOption: element 1: not a number: 'yes'", "--set", "UserOption=yes", "User",
                 "1", "a.pdf"),
                ("run-time error: PrintOption.ToT: ColorType: no such choice: '2'", "--set", "ColorType=2", "User", "1",
                 "a.pdf"),
                ("PrnSetting prints nothing, so there is no PDF of it", "PrnSetting", "1", "a.pdf"),
                ("run-time error: command line: edition: not a number: 'one'", "User", "one", "a.pdf")):
            with self.subTest(arguments=arguments):
                self.expect_refused(1, line, *arguments, cwd=self.output)

    def test_unknown_editions_and_modes_are_failure_1(self):
        for reason, *arguments in (
                ("command line: no such edition: '3'", "User", "3", "a.pdf"),
                ("command line: no such mode of edition 1: 'user'", "user", "1", "a.pdf"),
                ("command line: no such mode of edition 1: 'IdxTbl'", "--data", ".", "IdxTbl", "1", "a.pdf")):
            with self.subTest(arguments=arguments):
                self.expect_refused(2, f"failure 1: Argument is wrong. {reason}", *arguments, cwd=self.output)


class Files(PdfCase):
    def test_missing_data_files_are_their_failure(self):
        for mode, edition, reason in (("User", 1, "3: Parameter File is wrong. User.tmp: can't be read"),
                                      ("Trace", 1, "4: Tracing File is wrong. Trace.tmp: can't be read"),
                                      ("IdxTbl", 2, "15: Program Table File is wrong. IdxIdxTbl.tmp: can't be read")):
            self.expect_refused(2, f"failure {reason}", mode, edition, self.pdf)
            self.expect_refused(2, f"failure {reason}", "--data", self.output, mode, edition, self.pdf)

    def test_wrong_data_files_are_named_with_their_line(self):
        (self.host.temp_folder / "User.tmp").write_bytes(b"File-Spec,3\r\nParameterNum,1\r\n")
        self.expect_refused(2, "failure 3: Parameter File is wrong. User.tmp:2: unknown key 'ParameterNum'", "User", "1",
                            self.pdf)

    def test_bad_number_is_a_run_time_error(self):
        (self.host.temp_folder / "User.tmp").write_bytes(b"File-Spec,4\r\nUserNum,x\r\n")
        self.expect_refused(1, "run-time error: User.tmp:2: UserNum: not a number: 'x'", "User", "1", self.pdf)

    def test_missing_pictures_are_their_failure(self):
        self.host.write_data("Mecha")
        for picture in self.host.temp_folder.glob("*.emf"):
            picture.unlink()
        self.expect_refused(2, "failure 6: Graph File .Black & White. is not found. rptMechaGraph: no picture file .*",
                            "Mecha", "1", self.pdf)

    def test_missing_and_wrong_options_are_failure_10(self):
        self.host.write_data("User")
        wrong = "failure 10: Printing Items Setting File is wrong. "
        self.expect_refused(2, wrong + "none: can't be read", "--options", self.folder / "none", "User", "1", self.pdf)
        self.host.options_file.write_bytes(b"Colour,1\r\n")
        self.expect_refused(2, wrong + "PrintOption.ToT:1: unknown key 'Colour'", "User", "1", self.pdf)

    def test_folder_that_is_none_is_named(self):
        self.expect_refused(1, '--data: "/nowhere" is no folder.*', "--data", "/nowhere", "User", "1", self.pdf)

    def test_folder_without_permission_is_a_missing_file(self):
        self.host.write_data("User")
        self.host.temp_folder.chmod(0)
        self.addCleanup(self.host.temp_folder.chmod, 0o700)
        done = self.run_program("User", "1", self.pdf, through=AS_A_USER)
        self.assertEqual(done.stderr, b"tarvis-pdf: failure 3: Parameter File is wrong. User.tmp: can't be read\n")
        self.assertEqual(done.returncode, 2)

    def test_options_that_can_not_be_looked_for_are_not_taken_as_missing(self):
        self.host.write_data("JogTbl")
        copied = self.folder / "copied"
        shutil.copytree(self.host.temp_folder, copied)
        self.host.system_folder.chmod(0)
        self.addCleanup(self.host.system_folder.chmod, 0o700)
        done = self.run_program("--data", copied, "JogTbl", "2", self.pdf, through=AS_A_USER)
        self.assertEqual(done.stderr.decode(), "tarvis-pdf: failure 10: Printing Items Setting File is wrong. "
                                               "PrintOption.ToT: can't be read\n")
        self.assertEqual(done.returncode, 2)

    def test_missing_configuration_is_named_with_its_effect(self):
        self.expect_refused(2, "failure 1: Argument is wrong. no such version of edition 1: ''; /nowhere: can't be read: .*",
                            "User", "1", self.pdf, environment={"TARVIS_CONFIG": "/nowhere"})


class Output(PdfCase):
    def setUp(self):
        super().setUp()
        self.host.write_data("JogTbl")

    def test_folder_of_the_output_that_is_missing_is_an_error(self):
        self.expect_refused(1, '".*/none/a.pdf" can\'t be written: .*', "JogTbl", "2", self.output / "none/a.pdf")

    def test_folder_of_the_output_without_permission_is_an_error(self):
        self.output.chmod(0o500)
        self.addCleanup(self.output.chmod, 0o700)
        self.expect_refused(1, '".*/document.pdf" can\'t be written: .*', "JogTbl", "2", self.pdf, through=AS_A_USER)

    def test_folder_pipe_and_device_are_not_replaced(self):
        os.mkfifo(self.output / "pipe.pdf")
        for name in (self.output / "pipe.pdf", self.output, "/dev/full", "/dev/null"):
            self.expect_refused(1, f'"{name}" is not an ordinary file and is not replaced.', "JogTbl", "2", name)

    def test_full_disk_leaves_the_older_file(self):
        self.pdf.write_bytes(b"older")
        self.expect_refused(1, '".*" can\'t be written: .*', "JogTbl", "2", self.pdf,
                            through=("sh", "-c", 'ulimit -f 1; exec "$@"', "sh"))
        self.assertEqual(self.pdf.read_bytes(), b"older")

    def test_full_device_is_an_error(self):
        with open("/dev/full", "wb") as full:
            self.expect_refused(1, "standard output can't be written: No space left on device", "JogTbl", "2", "-",
                                capture_output=False, stdout=full, stderr=subprocess.PIPE)

    def test_closed_standard_output_is_an_error(self):
        self.expect_refused(1, "standard output is closed", "JogTbl", "2", "-", through=("sh", "-c", 'exec "$@" >&-', "sh"))

    def test_pipe_without_a_reader_is_an_error(self):
        read_end, write_end = os.pipe()
        os.close(read_end)
        with os.fdopen(write_end, "wb") as unread:
            self.expect_refused(1, "standard output can't be written: Broken pipe", "JogTbl", "2", "-",
                                capture_output=False, stdout=unread, stderr=subprocess.PIPE)


class Desk(PdfCase):
    def test_display_of_the_environment_is_not_asked(self):
        self.host.write_data("JogTbl")
        self.make("JogTbl", environment={"DISPLAY": ":7777", "QT_QPA_PLATFORM": "xcb", "QT_QPA_PLATFORMTHEME": "gtk3",
                                         "XDG_CURRENT_DESKTOP": "KDE"})

    def test_missing_fonts_are_an_error(self):
        self.host.write_data("JogTbl")
        configuration = self.folder / "fonts.conf"
        configuration.write_text(f'<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">'
                                 f"<fontconfig><dir>{self.folder}/none</dir><cachedir>{self.folder}/cache</cachedir></fontconfig>")
        done = self.run_program("JogTbl", "2", self.pdf, environment={"FONTCONFIG_FILE": str(configuration)})
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr.decode(), "tarvis-pdf: no document was made; no font is installed, so no text can be "
                                               "shown; install Arial or Liberation Sans\n")
        self.assertFalse(self.pdf.exists())


if __name__ == "__main__":
    unittest.main()
