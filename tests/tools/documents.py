"""Reads the tree's documents: fenced blocks, code spans, links and tables."""
import re
import textwrap
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FENCE = re.compile(r"^ *```(\w*)\n(.*?)^ *```$", re.MULTILINE | re.DOTALL)
SPAN = re.compile(r"`([^`\n]+)`")
LINK = re.compile(r"\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ (.+)$", re.MULTILINE)


@dataclass(frozen=True)
class Block:
    kind: str  # what the fence names: sh, console, text, ...
    lines: tuple


class Document:
    def __init__(self, path):
        self.path = path
        self.name = str(path.relative_to(ROOT))
        self.text = path.read_text(encoding="utf-8")
        self.blocks = [Block(kind, tuple(textwrap.dedent(body).splitlines())) for kind, body in FENCE.findall(self.text)]
        self.prose = FENCE.sub("", self.text)
        self.spans = SPAN.findall(self.prose)
        self.links = LINK.findall(self.prose)

    def anchors(self):
        """As the usual viewers make them of the headings."""
        return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in HEADING.findall(self.prose)}

    def rows(self, heading):
        """The cells of the table rows below the line `heading`, without the table's head."""
        below = self.prose.split(heading + "\n", 1)[1].lstrip("\n")
        table = below.split("\n\n", 1)[0]
        return [[cell.strip() for cell in line.strip("|").split("|")] for line in table.splitlines()[2:]]


def documents():
    patterns = ("*.md", "docs/*.md", "fuzz/*.md", "tests/**/*.md")
    return [Document(path) for pattern in patterns for path in sorted(ROOT.glob(pattern))]
