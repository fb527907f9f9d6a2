"""Lines of the host's print files: KEY,VALUE with CR LF, in the code page of the system."""


class PrintFile:
    """Collects the lines of one file. Numbers and texts follow the key, parted by commas."""

    def __init__(self, kind, models, shown_file, spec=3):
        self._lines = []
        self.line("File-Spec", spec)
        self.line("FileType", kind)
        self.line("Made-by", "Demo Host Ver.2.00")
        self.line("DateTime", "2026/11/20 16:05:42")
        self.line("MechaInfo", models)
        self.line("File", shown_file)

    def line(self, key, *fields):
        self._lines.append(",".join([key, *(str(field) for field in fields)]))

    def write(self, path, code_page="cp1252"):
        text = "".join(line + "\r\n" for line in self._lines)
        path.write_bytes(text.encode(code_page))


def escaped(text):
    """A text of several lines as one line of a file."""
    return text.replace("\r\n", "\\r\\n")


def write_parameters(file, parameters, switches, comment):
    """The block of parameters, switches and comment that several files share."""
    file.line("UserNum", len(parameters))
    for parameter in parameters:
        file.line("UserName", parameter.no, parameter.name)
        file.line("UserValue", parameter.value, parameter.default, parameter.unit)
    file.line("SwitchNum", len(switches))
    for switch in switches:
        file.line("Switch", switch.no, switch.value, switch.default, switch.name)
        for k, digit in enumerate(switch.digits):
            text = escaped(f"{digit.heading}\r\n{digit.value}:{digit.meaning}") if digit.count else ""
            file.line(f"Switch{k}", digit.first, digit.count, digit.value, digit.default, text)
    file.line("CommentCnt", comment.count("\r\n") + 1)
    file.line("Comment", escaped(comment))
