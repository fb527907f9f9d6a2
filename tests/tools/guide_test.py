"""The guide and the description of the files describe all that the program has: keys, boxes, messages, pictures."""
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from documents import ROOT, Document

SRC = ROOT / "src"
GUIDE = Document(ROOT / "docs/user-guide.md")
FORMATS = Document(ROOT / "docs/file-formats.md")
PICTURES = ROOT / "docs/pictures"
MOST_BYTES_OF_PICTURES = 1_500_000

# Sections of the description of the files, with a file of that kind.
SECTIONS = {
    "## Parameter wizard file": "UPWizard.tmp", "## Trace file": "Trace.tmp", "## Real-time trace file": "RealTrace.tmp",
    "## Mechanical analysis file": "Mecha.tmp", "## Simulation file": "Sim.tmp", "`IdxIdxTbl.tmp`, ": "IdxIdxTbl.tmp",
    "`IdxZoneTbl.tmp`, ": "IdxZoneTbl.tmp", "`IdxJogTbl.tmp`, ": "IdxJogTbl.tmp",
    "## Print options file": "PrintOption.ToT", "### Header keys": "User.tmp", "### Comment": "User.tmp",
    "### Parameter block": "User.tmp",
}


def source(name):
    return (SRC / name).read_text(encoding="utf-8")


def plain(caption):
    return caption.replace("&", "").strip()


class Keys(unittest.TestCase):
    def commands(self):
        """Caption and keys of each entry of the preview's command table."""
        text = source("preview/window/commands.cpp")
        entries = re.findall(r'\{(\w+),\s+"(\w+)",\s+"([^"]+)",\s+"([^"]*)",', text)
        self.assertEqual(len(entries), int(re.search(r"array<CommandEntry, (\d+)>", text)[1]))
        return {plain(caption): keys.split("; ") for _, _, caption, keys in entries}

    def test_table_of_keys_is_that_of_the_preview(self):
        documented = {row[0]: re.findall(r"`([^`]+)`", row[1]) for row in GUIDE.rows("In the preview:")}
        self.assertEqual(documented, self.commands())

    def test_keys_of_the_page_view_are_described(self):
        documented = {key for row in GUIDE.rows("While the pages have the focus:") for key in re.findall(r"`(\w+)`", row[0])}
        self.assertEqual(documented, set(re.findall(r"KeyStep\{Qt::Key_(\w+),", source("preview/pages/page_input.cpp"))))


class Captions(unittest.TestCase):
    def expect_told(self, captions, least):
        self.assertGreaterEqual(len(captions), least)
        for caption in sorted(captions):
            self.assertIn(plain(caption), GUIDE.text)

    def test_every_box_and_choice_of_the_item_pages_is_described(self):
        found = set()
        for page in SRC.glob("dialogs/pages/Inf*.cpp"):
            found |= set(re.findall(r'"(?:chkItem\w+|optRange)", \w+, "([^"]+)"', page.read_text(encoding="utf-8")))
        self.expect_told(found, 20)

    def test_every_box_of_header_and_footer_is_described(self):
        text = source("dialogs/pages/item_page.cpp")
        self.expect_told(set(re.findall(r'\{"([^"]+)", &HeaderOptions::', text)) |
                         set(re.findall(r'"chkFooter", NoFamily, "([^"]+)"', text)), 5)

    def test_every_function_has_a_section(self):
        functions = set(re.findall(r'\{"([A-Z][\w -]+)", PageId', source("session/function_list.cpp")))
        self.assertGreaterEqual(len(functions), 9)
        headings = " ".join(re.findall(r"^### (.+)$", GUIDE.text, re.MULTILINE))
        for function in functions:
            self.assertIn(function, headings)


class Limits(unittest.TestCase):
    def test_limits_of_the_cover_letter_are_those_of_its_fields(self):
        text = source("dialogs/EditCover.cpp")
        plans = re.findall(r'\{\d, "([^"]+)", \{[\d, ]+\}, (?:OneLine|SeveralLines), (\d+), \w+\}', text)
        self.assertGreaterEqual(len(plans), 13)
        documented = {name: row[1] for row in GUIDE.rows("![The greeting](pictures/cover-greeting.png)") for name in
                re.split(", ", row[0].replace(" of an addressee", ""))}
        for caption, limit in plans:
            name = plain(caption).rstrip(":")
            if name != "Zip Code":  # never shown
                self.assertTrue(documented[name].startswith(f"{limit} bytes"), f"{name}: {documented[name]}")
        constants = dict(re.findall(r"constexpr \w+ (\w+) = (\d+);", text))
        self.assertIn("GreetingLimit = GreetingLines * GreetingWidth;", text)
        lines, width = int(constants["GreetingLines"]), int(constants["GreetingWidth"])
        self.assertEqual(documented["Greeting Sentences"], f"{lines * width} bytes in all, {lines} lines of {width} bytes")
        self.assertTrue(documented["Address"].endswith(f"{constants['AddressLines']} lines of {constants['AddressWidth']} bytes"))


class ManualPages(unittest.TestCase):
    def page(self, name):
        return (ROOT / "packaging" / name).read_text(encoding="utf-8")

    def test_every_mode_is_listed_under_its_editions(self):
        choices = set(re.findall(r"ModeChoice\{(\d), Mode::(\w+)", source("session/function_list.cpp")))
        documented = set()
        for edition, modes in re.findall(r"^\.TP\n(\d)(?:, version \d00)?\n(.+)$", self.page("tarvis.1"), re.MULTILINE):
            documented |= {(edition, mode) for mode in modes.replace("the same, ", "").split(", ")}
        self.assertEqual(documented, choices)
        for _, mode in choices:
            self.assertIn(f"`{mode}`", (ROOT / "README.md").read_text(encoding="utf-8"))

    def test_every_value_of_the_configuration_is_described(self):
        page = self.page("tarvis.ini.5").replace(r"\(rs", "\\")
        keys = re.findall(r'EditionKeys\{\d, R"\(([^)]+)\)", "(\w+)", "(\w+)",\s*"(\w+)"\}', source("launch/system_paths.cpp"))
        self.assertEqual(len(keys), 3)
        for key, *values in keys:
            section = page.split(f"[{key}]", 1)[1].split(".TP", 1)[0]
            for value in values:
                self.assertIn(value, section)
        for entry in re.findall(r'Find\("Tarvis", "(\w+)"\)', source("platform/system/configuration_registry.cpp")):
            self.assertIn(entry, page)


class Messages(unittest.TestCase):
    def test_every_numbered_failure_is_listed_with_its_number(self):
        table = re.search(r"Messages = \{(.*?)\};", source("run/failures.cpp"), re.DOTALL)[1]
        messages = re.findall(r'"([^"]+)"', table)
        self.assertEqual(len(messages), 17)
        self.assertIn(re.search(r'Canceled = "([^"]+)"', source("run/failures.cpp"))[1], GUIDE.text)
        documented = {row[0]: row[1] for row in GUIDE.rows("confirmed in the dialog is kept.")}
        self.assertEqual(documented, {str(number): text for number, text in enumerate(messages, 1)})

    def test_every_other_message_is_described(self):
        sentence = re.compile(r'(?:tr\(|Box box\([^;]*?)"([A-Z][^"]*\.)"')
        found = {text for name in ("preview/window/document_output.cpp", "platform/system_printers.cpp", "dialogs/pages/InfIdxTbl.cpp")
                 for text in sentence.findall(source(name))}
        found |= set(re.findall(r'"(Wrong [^"]+)"', source("dialogs/pages/InfIdxTbl.cpp")))
        self.assertGreaterEqual(len(found), 5, found)
        for message in found:
            self.assertIn(message, GUIDE.text)
        text = source("dialogs/controls/input_limits.cpp") + source("session/title_limit.cpp")
        for part in re.findall(r'"(Try with [^"]+?|[^"]*be Inputted\.)"', text):
            self.assertIn(part.replace("\\n", " ").strip(), GUIDE.text)


class Pictures(unittest.TestCase):
    def test_every_picture_is_shown_and_every_shown_one_is_there(self):
        shown = {link for document in (GUIDE, Document(ROOT / "README.md"))
                 for link in re.findall(r"!\[[^\]]+\]\((?:docs/)?pictures/([^)]+)\)", document.text)}
        self.assertEqual(shown, {path.name for path in PICTURES.iterdir()})

    def test_every_picture_is_made_by_the_script(self):
        runs = re.findall(r"^    Run\(.*", (ROOT / "tools/guide_pictures.py").read_text(encoding="utf-8"), re.MULTILINE)
        made = [name + ".png" for run in runs for name in re.findall(r'"([a-z-]+)"', run)]
        self.assertEqual(set(made), {path.name for path in PICTURES.glob("*.png")})

    def test_script_makes_a_picture_like_the_one_that_is_kept(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, ROOT / "tools/guide_pictures.py", "--program", os.environ["TARVIS_PROGRAM"],
                            "--output", folder, "page-zone-table"], capture_output=True, check=True)
            self.assertEqual([path.name for path in Path(folder).iterdir()], ["page-zone-table.png"])
            kept, made = (subprocess.run(["identify", "-format", "%w x %h", where / "page-zone-table.png"],
                                         capture_output=True, text=True, check=True).stdout
                          for where in (PICTURES, Path(folder)))
            self.assertEqual(made, kept)

    def test_pictures_stay_small(self):
        self.assertLess(sum(path.stat().st_size for path in PICTURES.iterdir()), MOST_BYTES_OF_PICTURES)


class FileKeys(unittest.TestCase):
    def keys(self, text):
        """The keys that a reader's tables name."""
        entry = r'\{\s*"([\w/-]+)",\s*(?:Rest|Fields|FieldsAndRest|OnlyAbove|CursorLine|ItemLine|SettingLine|ValuesLine' \
                r'|CmpTimeLine|SlotLine|UnitLine|newFileSpec|\w+\.(?:Count|Begin|End|Continue|Whole))\b'
        option = r'(?<![A-Za-z])(?:Whole|List|Elements|Header|AcceptedOnly)\("([\w/-]+)"'
        return set(re.findall(entry, text)) | set(re.findall(option, text))

    def tables(self):
        """The files that hold key tables, with their text."""
        for reader in sorted(SRC.glob("printfiles/*")):
            text = reader.read_text(encoding="utf-8")
            if re.search(r"KeyTable|OptionLine", text) and reader.stem != "key_table":
                yield reader, text

    def test_every_key_of_the_readers_is_described(self):
        documented = set(FORMATS.spans)
        count = 0
        for reader, text in self.tables():
            keys = self.keys(text) | set(re.findall(r'"(User\d\w+)"', text))
            count += len(keys)
            self.assertEqual(keys - documented, set(), reader.name)
        self.assertGreaterEqual(count, 190)

    def test_no_line_of_a_key_table_is_missed(self):
        # A text that is first in braces is a key: the pattern above must know its form of line.
        for reader, text in self.tables():
            first = set(re.findall(r'\{\s*"([\w/-]+)",', text)) - set(re.findall(r'"(User\d\w+)"', text))
            self.assertEqual(first - self.keys(text), set(), reader.name)

    def told_keys(self):
        """Each key of the description, with the name of a file that has it."""
        for start, name in SECTIONS.items():
            table = FORMATS.prose.split("\n" + start, 1)[1].split("\n| Key ", 1)[1].split("\n\n", 1)[0]
            for row in table.splitlines()[2:]:
                for key in re.findall(r"`([^`]+)`", row.split("|")[1]):
                    yield key, name

    def test_every_key_that_is_described_is_known(self):
        keys = list(self.told_keys())
        self.assertGreaterEqual(len(keys), 170)
        with tempfile.TemporaryDirectory() as folder:
            paths = [Path(folder) / str(number) / name for number, (_, name) in enumerate(keys)]
            for path, (key, _) in zip(paths, keys):
                path.parent.mkdir()
                path.write_bytes(key.encode() + b",\r\n")
            output = subprocess.run([os.environ["TARVIS_CHECK"], *paths], capture_output=True, text=True, check=False).stdout
        self.assertEqual(len(output.splitlines()), len(keys))
        self.assertEqual([line for line in output.splitlines() if "unknown key" in line], [])


if __name__ == "__main__":
    unittest.main()
