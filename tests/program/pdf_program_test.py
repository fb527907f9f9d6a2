"""tarvis-pdf makes every document of the print module without display, home folder and printer."""
import os
import re
import shutil
import signal
import subprocess
import unittest

from call_faults import tracing
from pdf_case import DAY, PROGRAM, PdfCase, files_below, output_of
from roads import DOCUMENTS
from user_file import gains, write_user_file

from host import MODES
from options_file import write_options_with_cover
from print_file import PrintFile

TOO_LONG = "warning: Input Error: Try with  Less Characters.  Up to 40 Characters can be Inputted."


def first_processor():
    return str(min(os.sched_getaffinity(0)))


class Documents(PdfCase):
    def test_every_mode_has_its_pages(self):
        for mode, document in DOCUMENTS.items():
            with self.subTest(mode=mode):
                self.host.write_data(mode)
                self.make(mode)
                self.assertEqual(self.page_count(), document.pages)
                words = re.sub(r"\s+", " ", self.text())
                for text in (document.title, *document.texts):
                    self.assertIn(text, words)

    def test_cover_and_overlapped_data_follow_the_kept_options(self):
        self.host.write_data("SimEx", 3)
        self.host.write_cover()
        self.make("SimEx")
        self.assertEqual(self.page_count(), 1 + 2 + 3 * DOCUMENTS["SimEx"].pages)
        self.assertIn("Northport Motion Ltd.", self.text())

    def test_a_copied_folder_needs_nothing_of_the_host(self):
        self.host.write_data("Mecha")
        copied = self.folder / "copied"
        shutil.copytree(self.host.temp_folder, copied)
        self.make("Mecha", "--data", copied, environment={"TARVIS_CONFIG": "/nowhere/tarvis.ini"})
        self.assertEqual(self.page_count(), DOCUMENTS["Mecha"].pages)
        self.assertEqual(len(files_below(copied)), len(files_below(self.host.temp_folder)))

    def test_a_folder_can_be_named_from_where_the_user_is(self):
        self.host.write_data("JogTbl")
        self.make("JogTbl", "--data", "tmp", cwd=self.host.temp_folder.parent)

    def test_options_come_from_any_file(self):
        self.host.write_data("User")
        options = self.folder / "other.options"
        write_options_with_cover(options, "", coloured=False)
        self.make("User", "--options", options)
        self.assertIn("Meridian Packaging", self.text())

    def test_single_options_are_set_by_their_names(self):
        self.host.write_data("User")
        self.make("User", "--set", "UserHeader=1,0,1,0,1,Größe and more", "--set=UserOption=1,0,1,1,0")
        words = self.text()
        self.assertIn("Größe and more", words)
        self.assertNotIn("axis1.prm", words)
        self.assertNotIn("Comments", words)

    def test_single_elements_of_options_are_set(self):
        self.host.write_data("User")
        self.make("User", "--set", "UserHeader.6=Axis left", "--set", "UserHeader.4=0", "--set", "UserOption.5=0")
        words = self.text()
        self.assertIn("Axis left", words)
        self.assertNotIn("axis1.prm", words)
        self.assertNotIn("Comments", words)

    def test_single_sets_of_an_overlap_are_left_out_by_their_option(self):
        self.host.write_data("SimEx", 3)
        self.make("SimEx", "--set", "SimOption=1,1,1,1,1,1,1,1,1,1,1,1,0")
        self.assertEqual(self.page_count(), 2)

    def test_code_page_can_be_named(self):
        file = PrintFile("Jog Speed Table File", "", "")
        file.line("Speed-Unit", "r/min")
        file.line("JspdCnt", 0)
        file.line("CommentCnt", 1)
        file.line("Comment", "@")
        path = self.host.temp_folder / "IdxJogTbl.tmp"
        file.write(path)
        path.write_bytes(path.read_bytes().replace(b"@", "表示".encode("cp932")))
        self.make("JogTbl", "--code-page", "932")
        self.assertIn("表示", self.text())

    def test_pages_are_composed_for_the_paper_that_is_named(self):
        self.host.write_data("User")
        for name, size in (("A4", "595.3 x 841.9"), ("letter", "612 x 792"), ("A5", "419.55 x 595.3"),
                           ("100x150.5", "283.45 x 426.6")):
            with self.subTest(paper=name):
                self.make("User", "--paper", name)
                shown = [float(part) for part in re.findall(r"[\d.]+", self.info()["Page size"])[:2]]
                for value, wanted in zip(shown, size.split(" x ")):
                    self.assertAlmostEqual(value, float(wanted), delta=0.1)

    def test_paper_is_that_of_the_country_unless_named(self):
        self.host.write_data("JogTbl")
        self.make("JogTbl", environment={"LC_ALL": None, "LANG": "en_US.UTF-8"})
        self.assertIn("612 x 792", self.info()["Page size"])
        self.make("JogTbl", environment={"LC_ALL": None, "LANG": "de_DE.UTF-8"})
        self.assertIn("A4", self.info()["Page size"])

    def test_documents_of_one_date_are_the_same_to_the_byte(self):
        self.host.write_data("Trace")
        self.host.write_cover()
        made = [self.make("Trace", "--date", date).read_bytes() for date in (DAY, DAY, DAY.replace("09", "10"))]
        self.assertEqual(made[0], made[1])
        self.assertNotEqual(made[0], made[2])
        self.assertIn("March 05, 2026", self.text())

    def test_date_is_taken_in_each_form(self):
        self.host.write_data("JogTbl")
        made = {self.make("JogTbl", "--date", date, environment={"TZ": "Asia/Tokyo"}).read_bytes()
                for date in ("2026-03-05", "2026-03-05T00:00:00", "2026-03-04T15:00:00Z", "@1772636400")}
        self.assertEqual(len(made), 1)
        self.assertIn("March 05, 2026", self.text())

    def test_documents_go_to_standard_output(self):
        self.host.write_data("Mecha")
        done = self.run_program("--date", DAY, "Mecha", "1", "-")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertEqual(done.stdout, self.make("Mecha", "--date", DAY).read_bytes())

    def test_older_file_is_replaced_and_its_link_kept(self):
        self.host.write_data("JogTbl")
        older = self.folder / "older.pdf"
        older.write_bytes(b"older")
        link = self.output / "link.pdf"
        link.symlink_to(older)
        done = self.run_program("JogTbl", "2", link)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertTrue(link.is_symlink())
        self.assertTrue(older.read_bytes().startswith(b"%PDF"))

    def test_title_that_the_dialog_would_cut_comes_with_its_warning(self):
        self.host.write_data("JogTbl")
        done = self.run_program("--set", "JogTblHeader.6=" + 41 * "t", "JogTbl", "2", self.pdf)
        self.assertEqual((done.returncode, done.stderr.decode()), (0, f"tarvis-pdf: {TOO_LONG}\n"))
        self.assertRegex(self.text(), r"\bt{40}\b")

    def test_many_folders_are_printed_side_by_side(self):
        self.host.write_data("JogTbl")
        for number in range(6):
            shutil.copytree(self.host.temp_folder, self.output / f"machine{number}")
        script = f'ls -d machine* | xargs -P 4 -I @ "{PROGRAM}" --data @ --date {DAY} JogTbl 2 @.pdf'
        subprocess.run(["sh", "-c", script], cwd=self.output, env=self.environment(), check=True)
        self.assertEqual(len({path.read_bytes() for path in self.output.glob("*.pdf")}), 1)
        self.assertEqual(len(list(self.output.glob("*.pdf"))), 6)

    def test_one_folder_can_be_printed_twice_at_once_into_one_file(self):
        self.host.write_data("Trace")
        command = [PROGRAM, "--date", DAY, "Trace", "1", str(self.pdf)]
        both = [subprocess.Popen(command, env=self.environment(), stderr=subprocess.PIPE) for _ in range(2)]
        self.assertEqual([(process.communicate()[1], process.returncode) for process in both], [(b"", 0)] * 2)
        made = self.pdf.read_bytes()
        self.assertEqual(made, self.make("Trace", "--date", DAY).read_bytes())


class Checks(PdfCase):
    def test_checks_compose_and_write_nothing(self):
        self.host.write_data("Trace")
        before = files_below(self.folder)
        for output in ((), (self.pdf,)):
            done = self.run_program("--check", "Trace", "1", *output)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))
        self.assertEqual(files_below(self.folder), before)

    def test_checks_find_what_only_shows_when_pages_are_made(self):
        self.host.write_data("Mecha")
        for picture in self.host.temp_folder.glob("*Gain*"):
            picture.write_bytes(b"no picture")
        self.expect_refused(1, "run-time error: .*MechaGain.*no picture that can be shown.*", "--check", "Mecha", "1")


class Threads(PdfCase):
    """Pages are painted and compressed while later ones are composed."""

    def test_bytes_are_the_same_on_one_processor(self):
        for mode, overlapped in (("User", 0), ("Mecha", 0), ("SimEx", 3)):
            with self.subTest(mode=mode):
                self.host.write_data(mode, overlapped)
                made = [self.make(mode, "--date", DAY, through=through).read_bytes()
                        for through in ((), ("taskset", "-c", first_processor()))]
                self.assertEqual(*made)

    def test_document_is_made_where_the_system_gives_no_threads(self):
        self.host.write_data("User")
        made = [self.make("User", "--date", DAY, through=through).read_bytes()
                for through in ((), tracing("--inject=clone3,clone:error=EAGAIN", call="clone3,clone"))]
        self.assertEqual(*made)

    def test_failure_after_many_pages_is_the_same_line_and_leaves_no_file(self):
        self.host.write_data("Trace", 3)
        self.make("Trace")
        self.assertGreater(self.page_count(), 3)
        self.pdf.unlink()
        last = max(self.host.temp_folder.glob("Trace*.tmp"))
        last.write_bytes(last.read_bytes() + b"Unknown,1\r\n")
        reason = rf"failure 4: Tracing File is wrong. {last.name}:\d+: unknown key 'Unknown'"
        self.expect_refused(2, reason, "--check", "Trace", "1")
        self.expect_refused(2, reason, "Trace", "1", self.pdf)


class Progress(PdfCase):
    def test_progress_is_shown_to_those_who_ask(self):
        self.host.write_data("User")
        done = self.run_program("--progress", "User", "1", self.pdf)
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"composing", done.stderr)
        self.assertRegex(done.stderr, rb"making page 0")


class Interruption(PdfCase):
    def test_interruption_leaves_no_file(self):
        write_user_file(self.host.temp_folder, gains(16000))
        before = files_below(self.folder)
        process = subprocess.Popen([PROGRAM, "--progress", "User", "1", str(self.pdf)], env=self.environment(),
                                   stderr=subprocess.PIPE)
        process.stderr.read(1)
        process.send_signal(signal.SIGTERM)
        process.communicate(timeout=300)
        self.assertEqual(process.returncode, -signal.SIGTERM)
        self.assertEqual(files_below(self.folder), before)


class Program(PdfCase):
    def test_program_loads_neither_windows_nor_printers_nor_a_display(self):
        needed = re.findall(r"NEEDED.*\[(.*)\]", output_of("readelf", "-d", PROGRAM))
        self.assertTrue(any("Qt6Gui" in name for name in needed), needed)
        self.assertEqual([name for name in needed if re.search("Widgets|PrintSupport|DBus|X11|xcb", name)], [])

    def test_program_shows_its_version_and_how_it_is_called(self):
        for option, words in (("--version", rb"\Atarvis-pdf \d+\.\d+\.\d+\n\Z"), ("--help", rb"\AUsage: tarvis-pdf ")):
            done = self.run_program(option)
            self.assertEqual((done.returncode, done.stderr), (0, b""))
            self.assertRegex(done.stdout, words)
        for mode in MODES:
            self.assertEqual(mode != "PrnSetting", re.search(rf"\b{mode}\b", done.stdout.decode()) is not None, mode)


if __name__ == "__main__":
    unittest.main()
