"""Manual page, help, completion and user guide of tarvis-pdf agree with the program."""
import re
import subprocess
import unittest

from pdf_case import PROGRAM, ROOT, PdfCase

COMPLETION = ROOT / "packaging/tarvis-pdf.bash"


def source(name):
    return (ROOT / name).read_text(encoding="utf-8")


def completed(*words):
    """What bash proposes for the last of the words."""
    script = ('source "$0"; COMP_WORDS=(tarvis-pdf "$@"); COMP_CWORD=$#; _tarvis_pdf; printf "%s\\n" "${COMPREPLY[@]}"')
    output = subprocess.run(["bash", "-c", script, COMPLETION, *words], capture_output=True, text=True, check=True)
    return output.stdout.split()


class Words(PdfCase):
    def setUp(self):
        super().setUp()
        self.options = set(re.findall(r'Option\{"(--[a-z-]+)"', source("src/pdf/order.cpp")))
        self.assertEqual(len(self.options), 12)

    def test_every_option_is_described_everywhere(self):
        usage = subprocess.run([PROGRAM, "--help"], capture_output=True, text=True, check=True, env=self.environment()).stdout
        page = source("packaging/tarvis-pdf.1").replace(r"\-", "-")
        guide = source("docs/user-guide.md").split("## Documents without a window", 1)[1].split("\n## ", 1)[0]
        for text in (usage, page, guide):
            self.assertEqual(set(re.findall(r"(?<![\w-])--[a-z][a-z-]+", text)), self.options)
        self.assertEqual(set(completed("--")), self.options)

    def test_pages_tell_how_many_documents_are_made(self):
        for text in (source("packaging/tarvis-pdf.1"), source("docs/user-guide.md")):
            self.assertIn("xargs -P", text.replace("\\-", "-").replace("  ", " "))


class Completion(unittest.TestCase):
    def test_completion_of_operands_counts_those_before_them(self):
        self.assertEqual(completed("Idx"), ["IdxTbl"])
        self.assertEqual(completed("--data", "folder", "--check", "Sim"), ["Sim", "SimEx"])
        self.assertEqual(completed("--paper", "A4", "Trace", ""), ["1", "2", "4"])
        self.assertEqual(completed("--paper", "A"), ["A4", "A5"])

    def test_completion_of_names_knows_every_line_of_the_options_file(self):
        keys = re.findall(r'"([A-Z][\w-]+)"', source("src/printfiles/option_lines.cpp"))
        names = completed("--set", "")
        self.assertGreater(len(names), 40)
        self.assertEqual({key for key in keys if key not in ("File-Spec", "PrmWizOption")}, {name.rstrip("=") for name in names})


if __name__ == "__main__":
    unittest.main()
