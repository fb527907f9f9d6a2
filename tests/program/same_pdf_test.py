"""tarvis-pdf makes the PDF that the preview saves of the same data, to the byte."""
import os
import re
import shutil
import subprocess
import unittest

from program_case import ProgramCase

from host import MODES, OVERLAPPED_SETS

PDF_PROGRAM = os.environ["TARVIS_PDF"]


def creation_date(pdf):
    """As tarvis-pdf takes it."""
    output = subprocess.run(["pdfinfo", "-rawdates", str(pdf)], capture_output=True, text=True, check=True).stdout
    parts = re.search(r"CreationDate: +D:(\d{4})(\d\d)(\d\d)(\d\d)(\d\d)(\d\d)Z", output).groups()
    return "{}-{}-{}T{}:{}:{}Z".format(*parts)


class SamePdf(ProgramCase):
    def saved_by_preview(self, mode):
        session = self.start(mode)
        session.confirm_dialog()
        pdf = self.folder / "preview.pdf"
        session.save_pdf(pdf)
        self.assertEqual(session.close_preview(), 0)
        return pdf

    def made_without_window(self, mode, date):
        pdf = self.folder / "quiet.pdf"
        environment = {**os.environ, **self.environment(), "TARVIS_CONFIG": str(self.host.configuration)}
        del environment["DISPLAY"]
        done = subprocess.run([PDF_PROGRAM, "--date", date, mode, str(MODES[mode][0]), str(pdf)], env=environment,
                              capture_output=True, check=False)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        return pdf

    def expect_same(self, mode):
        """The preview's run takes the host's files away at its end, so they are kept aside."""
        kept = self.folder / "kept"
        shutil.copytree(self.host.temp_folder, kept)
        preview = self.saved_by_preview(mode)
        shutil.copytree(kept, self.host.temp_folder, dirs_exist_ok=True)
        shutil.rmtree(kept)
        quiet = self.made_without_window(mode, creation_date(preview))
        self.assertEqual(quiet.read_bytes(), preview.read_bytes())

    def test_every_mode_gives_the_same_with_the_options_of_a_first_run(self):
        for mode in MODES:
            if mode != "PrnSetting":
                with self.subTest(mode=mode):
                    self.host.options_file.unlink(missing_ok=True)
                    self.host.write_data(mode)
                    self.expect_same(mode)

    def test_overlapped_data_give_the_same_with_a_cover_in_colour(self):
        for mode, sets in OVERLAPPED_SETS.items():
            with self.subTest(mode=mode):
                self.host.write_data(mode, sets)
                self.host.write_cover()
                self.expect_same(mode)


if __name__ == "__main__":
    unittest.main()
