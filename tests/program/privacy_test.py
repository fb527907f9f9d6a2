"""What is printed is read by nobody else: not in files with too many rights, not in what is left in other folders."""
import os
import re
import stat
import subprocess
import unittest
from pathlib import Path

from call_faults import tracing
from pdf_case import PRINTING_MODES, PROGRAM, PdfCase, files_below
from print_queue import PrintQueue
from program_case import ProgramCase
from session import DIALOG
from user_file import gains, write_user_file


SECRET = b"mother's maiden name: Xylophonia"
HIDDEN = re.compile(rb"Xylophonia|maiden")
# What files of pictures begin with; the secret follows each of them in place of the picture.
BEGINNINGS = (b"", b"BM\x96\x00\x00\x00\x00\x00\x00\x00\x36\x00\x00\x00\x28\x00\x00\x00", b"GIF89a", b"\xff\xd8\xff\xe0\x00\x10JFIF\x00",
              b"\x89PNG\r\n\x1a\n\x00\x00\x00\x0dIHDR", b"\x00\x00\x01\x00\x01\x00", b"\xd7\xcd\xc6\x9a\x00\x00", b"\x01\x00\x09\x00\x00\x03",
              b"\x01\x00\x00\x00\x6c\x00\x00\x00" + bytes(32) + b" EMF", b"P6 9 9 255\n", b"II*\x00", b"<svg>", b"/* XPM */")
CREATED = re.compile(r'"([^"]+)", [A-Z_|]*\b(?:O_WRONLY|O_RDWR|O_CREAT|O_TMPFILE)\b|^\d+ +mk\w+\([^"]*"([^"]+)"')


def mode_of(path):
    return stat.S_IMODE(path.stat().st_mode)


def with_mask(mask):
    return ("sh", "-c", f'umask {mask:03o}; exec "$@"', "sh")


class SavedPdf(PdfCase):
    def setUp(self):
        super().setUp()
        self.host.write_data("JogTbl")

    def test_has_the_rights_that_the_user_gives_to_new_files(self):
        for mask in (0o077, 0o027, 0o022, 0o002):
            self.pdf.unlink(missing_ok=True)
            self.make("JogTbl", through=with_mask(mask))
            self.assertEqual(oct(mode_of(self.pdf)), oct(0o666 & ~mask))

    def test_has_the_rights_of_the_file_that_it_replaces(self):
        for mode in (0o600, 0o640, 0o604, 0o666):
            self.pdf.write_bytes(b"older")
            self.pdf.chmod(mode)
            self.make("JogTbl", through=with_mask(0))
            self.assertEqual(oct(mode_of(self.pdf)), oct(mode))

    def test_can_be_opened_by_nobody_else_before_it_replaces_a_closed_one(self):
        self.pdf.write_bytes(b"older")
        self.pdf.chmod(0o600)
        log = self.folder / "calls"
        self.make("JogTbl", through=(*with_mask(0), *tracing(call="openat", log=log)))
        made = [line for line in log.read_text().splitlines() if ".new\"" in line and "O_CREAT" in line]
        self.assertRegex(made[0], r"O_CREAT\|O_EXCL.*, 0600\)")  # by its owner alone
        self.assertEqual([line for line in made[1:] if "O_EXCL" in line], [])

    def test_is_written_without_a_look_into_the_file_that_it_replaces(self):
        self.pdf.write_bytes(b"older")
        log = self.folder / "calls"
        self.make("JogTbl", through=tracing(call="openat,copy_file_range,sendfile", log=log))
        calls = log.read_text()
        self.assertIn('.pdf.', calls)  # the new one
        self.assertNotIn(f'{self.pdf}"', calls)


class OtherFolders(PdfCase):
    def of_fonts(self):
        """Where the system keeps what it knows about fonts."""
        return {str(self.folder / "cache"), str(self.folder / "cache/fontconfig")}

    def test_get_nothing_from_any_print(self):
        """Neither temporary folder nor home: nothing is made but the PDF, not even for a moment."""
        home, temporary = self.folder / "home", self.folder / "temporary"
        home.mkdir()
        temporary.mkdir()
        self.host.write_cover()
        for mode in PRINTING_MODES:
            with self.subTest(mode=mode):
                self.host.write_data(mode)
                log = self.folder / "calls"
                self.make(mode, through=tracing(call="openat,creat,mkdir,mkdirat,mknod,mknodat", log=log),
                          environment={"HOME": str(home), "TMPDIR": str(temporary), "XDG_CACHE_HOME": str(self.folder / "cache")})
                made = {match[1] or match[2] for line in log.read_text().splitlines()
                        if " = -1 " not in line and (match := CREATED.search(line))}
                self.assertEqual({str(Path(name).parent) for name in made} - {"/dev", *self.of_fonts()}, {str(self.output)})
        self.assertEqual([*home.iterdir(), *temporary.iterdir()], [])


class AnyFile(PdfCase):
    def test_shows_no_more_than_its_name_as_a_picture(self):
        self.host.write_data("Mecha")
        secret = self.folder / "diary.txt"
        data = self.host.temp_folder / "Mecha.tmp"
        data.write_bytes(re.sub(rb"(MechaGraph1,)[^\r]*", rb"\1" + os.fsencode(secret), data.read_bytes()))
        for beginning in BEGINNINGS:
            secret.write_bytes(beginning + 40 * SECRET)
            with self.subTest(beginning=beginning):
                done = self.run_program("Mecha", "1", self.pdf)
                self.assertEqual(done.returncode, 1, done.stderr)
                self.assertIn(b"diary.txt", done.stderr)
                self.assertIsNone(HIDDEN.search(done.stdout + done.stderr), done.stderr)
                self.assertFalse(self.pdf.exists())

    def test_shows_no_more_than_its_name_as_the_logo(self):
        self.host.write_data("JogTbl")
        self.host.write_cover()
        (self.folder / "host/logo.bmp").write_bytes(SECRET)
        done = self.run_program("JogTbl", "2", self.pdf)
        self.assertEqual(done.returncode, 1)
        self.assertIn(b"logo.bmp", done.stderr)
        self.assertIsNone(HIDDEN.search(done.stderr), done.stderr)


class Memory(ProgramCase):
    MAY_DUMP = ("prlimit", "--core=unlimited", "--")

    def expect_no_dump(self, process):
        limits = Path(f"/proc/{process.pid}/limits").read_text()
        self.assertRegex(limits, r"(?m)^Max core file size +0 ")

    def test_is_not_dumped_by_the_program_with_windows(self):
        session = self.start("PrnSetting", through=self.MAY_DUMP)
        session.wait_for(DIALOG)
        self.expect_no_dump(session.process)

    def test_is_not_dumped_by_the_program_without_windows(self):
        write_user_file(self.host.temp_folder, gains(16000))
        with subprocess.Popen([*self.MAY_DUMP, PROGRAM, "--progress", "User", "1", str(self.folder / "a.pdf")],
                              env={**os.environ, "TARVIS_CONFIG": str(self.host.configuration)}, stderr=subprocess.PIPE) as process:
            process.stderr.read(1)
            self.expect_no_dump(process)
            process.kill()


class Session(ProgramCase):
    def setUp(self):
        super().setUp()
        self.queue = PrintQueue()
        self.addCleanup(self.queue.close)
        self.temporary = self.folder / "temporary"
        self.temporary.mkdir()

    def environment(self):
        return {**super().environment(), **self.queue.environment, "TMPDIR": str(self.temporary),
                "XDG_CACHE_HOME": str(self.folder / "cache"), "HOME": str(self.folder / "home")}

    def test_leaves_nothing_in_temporary_folders_after_saving_and_printing(self):
        (self.folder / "home").mkdir()
        self.host.write_data("JogTbl")
        session = self.start("JogTbl", through=with_mask(0))
        session.confirm_dialog()
        session.save_pdf(self.folder / "document.pdf")
        session.print_all(self.queue)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual([*self.temporary.iterdir()], [])
        held = [name for name, content in files_below(self.folder / "home").items() if b"Speeds grow" in content or b"%PDF" in content]
        self.assertEqual(held, [])


if __name__ == "__main__":
    unittest.main()
