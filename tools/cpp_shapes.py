"""Finds the functions and classes of a C++ source in its text, as far as their sizes need it.

It relies on the layout that clang-format gives the tree, and on no macro of the tree holding a lone brace. The parsers
that were tried are no way around it: ctags misses functions after a character literal with a prefix and templates with
parameter packs, and knows only the line of a name, not where its declaration begins; a compiler takes minutes.
"""
import re
from dataclasses import dataclass, field

_NOT_CODE = re.compile(r'''
    //[^\n]* | /\*.*?\*/                      # comments
  | R"(?P<end>[^(\s]*)\(.*?\)(?P=end)"        # raw strings
  | "(?:\\.|[^"\\\n])*"                       # strings
  | (?<!\w)(?:u8|[uUL])?'(?:\\.|[^'\\\n])+'   # characters, not the ' within a number
  | ^[ \t]*\#(?:\\\n|[^\n])*                  # directives
  | \bQ_(?:OBJECT|GADGET)\b                   # a macro that no semicolon ends
''', re.VERBOSE | re.DOTALL | re.MULTILINE)
_ACCESS = re.compile(r"^\s*(?:(?:public|protected|private)(?:\s+slots|\s+Q_SLOTS)?|signals|Q_SIGNALS)\s*:(?!:)")
_CLASS = re.compile(r"(?:template\s+)?(?:class|struct|union)\b(?:\s*\[\])*\s*([\w:]*)")
_TEST = re.compile(r"^(?:TEST|TEST_F|TEST_P|TYPED_TEST)\s*\(\s*(\w+)\s*,\s*(\w+)\s*\)$")


@dataclass
class Shape:
    """A function with its lines, or a class with the names of the methods that it declares or defines."""
    name: str
    first: int
    last: int = 0
    methods: list = field(default_factory=list)


def _blanked(text):
    """The text with everything that is no code turned into blanks; all stays in its line."""
    return _NOT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)


def _plain(head):
    """A declaration without arguments of templates, without what is between brackets, and with operators named."""
    head = re.sub(r"operator\s*(?:\(\s*\)|[^\s\w(]+)", "operator_", head)
    while (shorter := re.sub(r"<[^<>]*>", "", head)) != head:
        head = shorter
    depth, kept = 0, []
    for character in head:
        depth -= character in ")]"
        if depth == 0:
            kept.append(character)
        depth += character in "(["
    return "".join(kept).strip()


def _kind(head):
    """What a brace opens at a place for declarations, by the words before it since the last statement."""
    if head.count("(") != head.count(")"):
        return "other"  # the value of a parameter that may be left out
    plain = _plain(head)
    if re.match(r"(?:inline\s+)?namespace\b", plain):
        return "namespace"
    if _CLASS.match(plain) and "(" not in plain:
        return "class"
    before = plain.split("(", 1)[0]
    if "=" in before or before == plain or re.match(r"(?:template\s+)?enum\b", plain):
        return "other"
    members = re.search(r"\)[^:]*(?<!:):(?!:)(.*)$", plain, re.DOTALL)
    if members and not re.search(r"[)}]\s*$", members[1]):
        return "other"  # the initial value of a member
    return "function"


def _declared_name(head):
    """The name before the parameters; that of a test is SUITE.NAME."""
    test = _TEST.match(head)
    return f"{test[1]}.{test[2]}" if test else _plain(head).split("(", 1)[0].split()[-1].lstrip("*&")


def _is_method(head):
    """Whether a declaration in a class is a function with code: none that is deleted or left to the compiler."""
    plain = _plain(head)
    before = plain.split("(", 1)[0]
    if before == plain or "=" in before or re.match(r"(?:using|typedef|friend|static_assert|enum|Q_\w+)\b", plain):
        return False
    is_pointer = re.search(r"\(\s*\*", head) and plain.count("(") > 1 and re.search(r"\)\s*\(", plain)
    return not is_pointer and not re.search(r"=\s*(?:delete|default)$", plain)


class _Reader:
    """Walks through the code once; `functions` and `classes` grow by each that ends."""

    def __init__(self, text):
        self._code = _blanked(text)
        self._open = []  # kind and shape of each brace that is open
        self._head = ""
        self._first = 1
        self._line = 1
        self.functions, self.classes = [], []

    def _declares(self):
        """Whether the place is one for declarations: outside of functions and of initial values."""
        return all(kind in ("namespace", "class") for kind, _ in self._open)

    def _note_method(self, head):
        if self._open and self._open[-1][0] == "class" and _is_method(head):
            self._open[-1][1].methods.append(_declared_name(head))

    def _brace_opens(self):
        head = self._head.strip()
        if not self._declares():
            self._open.append(("inner", None))
            return
        kind = _kind(head)
        shape = None
        if kind == "function":
            shape = Shape(_declared_name(head), self._first)
            self._note_method(head)
        elif kind == "class":
            shape = Shape(_CLASS.match(_plain(head))[1] or "(unnamed)", self._first)
        self._open.append((kind, shape))
        if kind != "other":
            self._head = ""

    def _brace_closes(self):
        kind, shape = self._open.pop() if self._open else ("inner", None)
        if shape:
            shape.last = self._line
            (self.functions if kind == "function" else self.classes).append(shape)
        if kind in ("function", "namespace", "class"):
            self._head = ""
        elif kind == "other":
            self._head += "}"

    def _take(self, character):
        if character == "{":
            self._brace_opens()
        elif character == "}":
            self._brace_closes()
        elif not self._declares():
            return
        elif character == ";" and self._head.count("(") == self._head.count(")"):
            self._note_method(self._head.strip())
            self._head = ""
        else:
            if not self._head.strip():
                self._first = self._line
            self._head += character
            if character == ":" and _ACCESS.match(self._head):
                self._head = ""

    def read(self):
        for place, character in enumerate(self._code):
            if character == ":" and self._code[place + 1:place + 2] == ":":
                self._head += ":" if self._declares() else ""
                continue
            self._take(character)
            self._line += character == "\n"
        return self


def shapes_of(text):
    """The functions and the classes of a source."""
    reader = _Reader(text).read()
    return reader.functions, reader.classes
