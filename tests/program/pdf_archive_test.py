"""PDFs are archives, say others: a validator, and programs that read PDFs, none of which has a word to say."""
import re
import subprocess
import unittest

from archive_case import ArchiveCase
from comment_file import write_comment
from few_fonts import that_must_not_be_embedded, with_only
from pdf_case import PRINTING_MODES, output_of
from preflight import as_part_1, complaints

from host import OVERLAPPED_SETS
from png import write_png

# A comment in each code page, in the letters for which it was made.
COMMENTS = {874: "ความเร็ว", 932: "速度ループゲイン 表示", 936: "速度环增益", 949: "속도 루프 게인", 950: "速度迴路增益",
            1250: "Rychlost smyčky", 1251: "Коэффициент контура", 1252: "Résumé Größe", 1253: "Κέρδος βρόχου",
            1254: "Hız döngüsü", 1255: "מהירות המנוע", 1256: "سرعة المحرك", 1257: "Greičio kilpa", 1258: "Đô khuêch",
            65001: "速度 Größe מהירות ความเร็ว"}


class Archive(ArchiveCase):
    def test_every_mode_is_an_archive(self):
        for mode in PRINTING_MODES:
            self.host.write_data(mode)
            self.keep(mode, mode)
        self.expect_archives()

    def test_overlapped_data_with_cover_and_logo_are_archives(self):
        self.host.write_cover()
        for mode, sets in OVERLAPPED_SETS.items():
            self.host.write_data(mode, sets)
            self.keep(mode, mode)
        self.expect_archives()

    def test_text_of_every_code_page_is_archived(self):
        for code_page, comment in COMMENTS.items():
            write_comment(self.host.temp_folder, comment, code_page)
            self.keep(str(code_page), "JogTbl", "--code-page", str(code_page))
        self.expect_archives()

    def test_characters_without_a_glyph_are_archived(self):
        """Those that no font has, and those of a font that must not be embedded."""
        environments = {"missing": with_only(self.folder, "Liberation Sans"),
                        "forbidden": that_must_not_be_embedded(self.folder, "Liberation Sans")}
        comment = "A\ue000 \U0001f9be速度 Z"
        for name, environment in environments.items():
            for tags in ((), ("--tagged",)):
                write_comment(self.host.temp_folder, comment, 65001)
                self.keep(f"{name}{len(tags)}", "JogTbl", "--code-page", "65001", *tags, environment=environment)
        for pdf in self.kept_documents():
            self.assertIn(comment, output_of("pdftotext", pdf, "-"), pdf.name)
        self.expect_archives()

    def keep_with_logo(self, name, fades):
        logo = self.host.folder / f"{name}.png"
        write_png(logo, 120, 40, (0, 88, 168), fades)
        self.host.write_cover(named=logo)
        self.host.write_data("JogTbl")
        self.keep(name, "JogTbl")

    def test_transparency_of_a_logo_is_all_that_the_first_part_does_not_allow(self):
        self.keep_with_logo("fading", fades=True)
        self.keep_with_logo("opaque", fades=False)  # has a channel for transparency, too, and doesn't use it
        self.expect_archives({"fading": r"(?i)soft ?mask|transparen|SMask"})

    def test_attached_data_are_all_that_the_first_part_does_not_allow(self):
        self.host.write_data("SimEx", 3)
        self.keep("attached", "SimEx", "--attach")
        taken = self.folder / "taken"
        taken.mkdir()
        subprocess.run(["pdfdetach", "-saveall", "-o", taken, self.kept / "attached.pdf"], check=True)
        names = ["Sim.tmp", "Sim1.tmp", "Sim2.tmp", "Sim3.tmp"]
        self.assertEqual(sorted(path.name for path in taken.iterdir()), names)
        for name in names:
            self.assertEqual((taken / name).read_bytes(), (self.host.temp_folder / name).read_bytes())
        self.expect_archives({"attached": r"(?i)embedded ?file|/EF\b"})

    def test_the_validator_does_complain(self):
        """Of a document whose colours mean nothing."""
        self.host.write_data("JogTbl")
        self.make("JogTbl")
        changed = as_part_1(self.pdf, self.folder / "changed.pdf")
        content = changed.read_bytes()
        changed.write_bytes(content.replace(b"/OutputIntents", b"/OutputIntentz"))
        lines = complaints([changed])["changed"]
        self.assertTrue(any(re.search("(?i)colou?r ?space", line) for line in lines), lines)


if __name__ == "__main__":
    unittest.main()
