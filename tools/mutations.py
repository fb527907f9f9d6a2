"""Finds the small changes that can be made to C++ code, each of them alone: the mutants of tools/mutate.

The code is read as tokens, not parsed. It relies on the layout that clang-format gives: a comparison has a blank on both
sides, the angle bracket of a template has not. A change that makes no sense does not compile, and then does not count.
"""
import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<skip>\s+ | //[^\n]* | /\*.*?\*/ | ^\#(?:[^\n]*\\\n)*[^\n]*)
      | (?P<text>R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)" | "(?:\\.|[^"\\\n])*" | '(?:\\.|[^'\\\n])+')
      | (?P<number>(?:0[xX][0-9A-Fa-f']+|\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?)[uUlLfF]*)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<sign><=>|<<=|>>=|->|::|\+\+|--|&&|\|\||<<|>>|[<>=!+\-*/%&|^]=|\.\.\.|.)""",
    re.VERBOSE | re.DOTALL | re.MULTILINE)

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
SIGNS = {"+": "-", "-": "+", "+=": "-=", "-=": "+=", "*": "/", "++": "--", "--": "++"}
PREFIXES = {"!": "NotSwitch", "-": "MinusSwitch", "++": "StepSwitch"}  # of mutant_switch.h
CONDITIONS = {"&&": "||", "||": "&&", "true": "false", "false": "true", "?": "== false ?"}
SPACED = {"<", ">", "+", "-", "*"}  # means something else where it has no blank on both sides
BEFORE_MINUS = {"(", ",", "=", "return", "?", ":", "{", "<", ">", "=="}  # where a minus has one operand
BEFORE_OPERAND = BEFORE_MINUS | {";", "}", "&&", "||", "!=", "<=", ">=", "+", "+=", "-="}  # the same for any operator
TYPE_WORDS = {"class", "struct", "union", "enum", "namespace"}
BEFORE_CODE = {")", "else", "do", "try", "const", "override", "noexcept", "final", "mutable"}
# What a statement that can be left out never begins with: it declares something, or the rest needs it.
KEPT = {"return", "using", "const", "constexpr", "static", "auto", "static_assert", "friend", "typedef", "template",
        "delete", "goto", "struct", "class", "enum", "public", "private", "protected", "virtual", "explicit", "inline"}
LEFT_OUT = {"break", "continue", "throw"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


@dataclass(frozen=True)
class Mutant:
    """One change: `old` at `start` becomes `new`."""
    file: str
    line: int
    kind: str
    start: int
    old: str
    new: str
    operands: int = 0  # of an operator that can be switched: 1 if it is before the only one

    @property
    def end(self):
        return self.start + len(self.old)

    def applied_to(self, code):
        return code[:self.start] + self.new + code[self.end:]

    def switch(self, number):
        """The texts before and after `old` that make the change when mutant `number` is chosen at run time, and whether
        `old` itself stays between them; None for what can only be changed by itself."""
        if self.kind == "number" or self.old in ("true", "false"):
            return f"Mutated({number}LL, {self.old}, {self.new})", "", False
        if self.kind == "statement":
            return f"{{ if (!IsMutated({number}LL)) ", " }", True
        if self.kind == "condition" and self.new == f"!({self.old})":
            return f"IsMutated({number}LL) != static_cast<bool>(", ")", True
        if self.old == "?":
            return f"^ Flip{{{number}LL}} ", "", True
        if self.operands == 2:
            return f"{self.old} Switch{{{number}LL}} ", "", True
        if self.operands == 1:
            return f"{PREFIXES[self.old]}{{{number}LL}} ->* ", "", False
        return None

    def __str__(self):
        def short(text):
            text = " ".join(text.split())
            return text if len(text) <= 60 else text[:57] + "..."
        change = f"without {short(self.old)}" if self.kind == "statement" else f"{short(self.old)} -> {short(self.new)}"
        return f"{self.file}:{self.line}: {self.kind}: {change}"


def tokens_of(code):
    return [Token(match.lastgroup if match.lastgroup != "mark" else "text", match.group(), match.start())
            for match in TOKEN.finditer(code) if not match.group("skip")]


def next_number(text):
    """The literal that is one more: 283 -> 284, 8.5F -> 9.5F, 0xE0E0E0 -> 0xE0E0E1."""
    if text[:2].lower() == "0x":
        digits = re.match(r"0[xX]([0-9A-Fa-f']+)", text)[1].replace("'", "")
        rest = text[len(re.match(r"0[xX][0-9A-Fa-f']+", text)[0]):]
        return f"{text[:2]}{(int(digits, 16) + 1) & (16 ** len(digits) - 1):0{len(digits)}X}{rest}"
    whole = re.match(r"[\d']+", text)[0]
    return str(int(whole.replace("'", "")) + 1) + text[len(whole):]


def is_spaced(code, token):
    return code[token.start - 1:token.start].isspace() and code[token.end:token.end + 1].isspace()


def is_pure(tokens, index):
    """Whether this is the 0 of a function without a body, as in `virtual void Beep() = 0;`."""
    return [token.text for token in tokens[index - 1:index + 2]] == ["=", "0", ";"] and \
        tokens[index - 2].text in {")", "const", "noexcept"}


def token_changes(code, tokens):
    """Numbers, comparisons, signs and conditions: changes of one token."""
    for index, token in enumerate(tokens):
        before = tokens[index - 1] if index > 0 else Token("", "", 0)
        after = tokens[index + 1] if index + 1 < len(tokens) else Token("", "", 0)
        if before.text == "operator" or is_pure(tokens, index):
            continue
        if token.kind == "number":
            yield "number", token, next_number(token.text)
        elif token.text in SPACED and not is_spaced(code, token):
            if token.text == "-" and after.kind in ("number", "word") and before.text in BEFORE_MINUS:
                yield "sign", token, " "
        elif token.text in COMPARISONS:
            yield "comparison", token, COMPARISONS[token.text]
        elif token.text in SIGNS and "text" not in (before.kind, after.kind):
            yield "sign", token, SIGNS[token.text]
        elif token.text in CONDITIONS:
            yield "condition", token, CONDITIONS[token.text]
        elif token.text == "!" and before.text != "(":
            yield "condition", token, " "


def closing(tokens, index):
    """The index of the bracket that closes the one at `index`."""
    depth = 0
    for at in range(index, len(tokens)):
        if tokens[at].text in ("(", "{", "["):
            depth += 1
        elif tokens[at].text in (")", "}", "]"):
            depth -= 1
            if depth == 0:
                return at
    return len(tokens) - 1


def negations(code, tokens):
    """The whole condition of each `if` and `while`, turned round."""
    for index, token in enumerate(tokens[:-1]):
        if token.text not in ("if", "while") or tokens[index + 1].text != "(":
            continue
        end = closing(tokens, index + 1)
        inner = tokens[index + 2:end]
        if not inner or any(t.text in ("=", ";") for t in inner):
            continue
        old = code[inner[0].start:inner[-1].end]
        yield "condition", Token("", old, inner[0].start), f"!({old})"


def opens_code(tokens, index, begin):
    """Whether the brace at `index` opens statements; the statement or declaration before it starts at `begin`."""
    head = [t.text for t in tokens[begin:index]]
    if TYPE_WORDS & set(head) and "(" not in head:
        return False
    return not head or head[-1] in BEFORE_CODE or "->" in head[-4:] or head[-1] == ":"


def ends_of_semicolons(tokens):
    """(first, last, whether it is among statements) of all that ends in a semicolon: indices, or else it is a declaration."""
    blocks = [{"code": False, "depth": 0, "begin": 0}]
    for index, token in enumerate(tokens):
        block = blocks[-1]
        if token.text in ("(", "["):
            block["depth"] += 1
        elif token.text in (")", "]"):
            block["depth"] -= 1
        elif token.text == "{":
            begin = block["begin"] if block["depth"] == 0 else index - 1
            blocks.append({"code": opens_code(tokens, index, begin), "depth": 0, "begin": index + 1})
        elif token.text == "}" and len(blocks) > 1:
            was_code = blocks.pop()["code"]
            if was_code and blocks[-1]["depth"] == 0:
                blocks[-1]["begin"] = index + 1
        elif token.text == ";" and block["depth"] == 0:
            if block["begin"] < index:
                yield block["begin"], index, block["code"]
            block["begin"] = index + 1


def statements(tokens):
    """(first, last) indices of all that ends in a semicolon and is among statements."""
    return [(first, last) for first, last, is_statement in ends_of_semicolons(tokens) if is_statement]


def without_control(tokens, first, last):
    """The index of the statement proper, after `if (...)`, `else`, `for (...)` and labels."""
    while first < last:
        word = tokens[first].text
        if word in ("if", "for", "while") or (word == "constexpr" and tokens[first - 1].text == "if"):
            if tokens[first + 1].text == "constexpr":
                first += 1
            first = closing(tokens, first + 1) + 1
        elif word in ("else", "do"):
            first += 1
        elif word in ("case", "default"):
            first = next(at for at in range(first, last) if tokens[at].text == ":") + 1
        else:
            break
    return first


def is_declaration(tokens, first, last):
    """Whether two names are side by side, as in `Band first = ...` or `std::size_t end`."""
    at = first
    while at < last and (tokens[at].kind == "word" or tokens[at].text == "::"):
        if tokens[at].kind == "word" and tokens[at + 1].kind == "word":
            return True
        at += 1
    return tokens[at].text in ("<", "&", "*") and at > first


def omissions(code, tokens):
    """Statements that can be left out."""
    for first, last in statements(tokens):
        first = without_control(tokens, first, last)
        if first >= last:
            continue
        begins = tokens[first].text
        if begins in KEPT or (begins not in LEFT_OUT and is_declaration(tokens, first, last)):
            continue
        yield "statement", Token("", code[tokens[first].start:tokens[last].end], tokens[first].start), ";"


def operand_counts(tokens):
    """For the place of each operator that can be switched: how many operands it has."""
    counts = {}
    for before, token, after in zip(tokens, tokens[1:], tokens[2:]):
        if token.text in PREFIXES and before.text in BEFORE_OPERAND:
            counts[token.start] = 1
        elif after.text == "{":  # a list has no type that a function could take
            continue
        elif token.text in COMPARISONS or token.text in SIGNS and token.text not in ("++", "--"):
            counts[token.start] = 2
    return counts


def without_result(tokens):
    """(begin, end) of what no test can notice: assertions, which hold, the room that is reserved for elements, and the zero
    that a member holds until it gets its value."""
    for first, last, is_statement in ends_of_semicolons(tokens):
        if not is_statement and [t.text for t in tokens[last - 2:last]] == ["=", "0"] and tokens[first].text not in KEPT:
            yield tokens[last - 1].start, tokens[last - 1].end
    for index, token in enumerate(tokens[:-1]):
        if token.text in ("assert", "reserve") and tokens[index + 1].text == "(":
            first = index
            while first > 0 and tokens[first - 1].text not in (";", "{", "}", ")"):
                first -= 1
            yield tokens[first].start, tokens[closing(tokens, index + 1)].end


def mutants_of(file, code):
    """All mutants of the code of one file, in the order of the file."""
    tokens = tokens_of(code)
    operands = operand_counts(tokens)
    idle = list(without_result(tokens))
    found = [Mutant(file, code.count("\n", 0, token.start) + 1, kind, token.start, token.text, new,
                    operands.get(token.start, 0) if token.kind == "sign" else 0)
             for changes in (token_changes(code, tokens), negations(code, tokens), omissions(code, tokens))
             for kind, token, new in changes
             if not any(begin <= token.start < end for begin, end in idle)]
    return sorted(found, key=lambda mutant: (mutant.start, mutant.kind, mutant.new))


def with_switches(code, numbered):
    """The code with all (number, mutant) of it that can be switched side by side."""
    pieces = []  # (place, order at that place, text, length of what it replaces)
    for number, mutant in numbered:
        before, after, keeps = mutant.switch(number)
        if not keeps:
            pieces.append((mutant.start, 0, before, len(mutant.old)))
        else:
            pieces.append((mutant.start, -len(mutant.old), before, 0))  # the longest is outermost
            pieces.append((mutant.end, len(mutant.old) - len(code), after, 0))
    made, position = ['#include "mutant_switch.h"\n'], 0
    for place, _, text, length in sorted(pieces):
        made += [code[position:place], text]
        position = place + length
    return "".join(made) + code[position:]
