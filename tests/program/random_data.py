"""The data of a host that prints something else each time, as a seed has it."""
import re
import tempfile
from pathlib import Path

import program_case  # noqa: F401  finds the modules of tests/host
from host import Host
from modes import write_program_table, write_zone_table
from servo_pack import PARAMETERS

LONGEST = 2000  # parameters of a list
# How many data sets lie over one another where several can.
OVERLAPPED = {"Trace": (0, 2, 3), "Sim": (0, 2), "SimEx": (0, 3)}
TABLES = {"IdxTbl": lambda source, folder: write_program_table(folder, source.random() < 0.5, source.choice((64, 128, 256))),
          "ZoneTbl": lambda source, folder: write_zone_table(folder, source.choice((8, 32)))}
WORDS = ("axis", "fork", "load", "12 kg", "resonance", "tuned", "Größe", "at half height", "-")
PARAMETER_BLOCK = re.compile(r"^UserNum,.*?^(?=SwitchNum,)", re.DOTALL | re.MULTILINE)
COMMENT = re.compile(r"CommentCnt,.*?\r\nComment,[^\r]*")


class RandomData:
    """Curves take long to draw, so each choice of overlapping sets is drawn once; all else differs from time to time."""

    def __init__(self, source, host):
        self._source = source
        self._host = host
        self._drawn = {}

    def write(self, mode):
        """In place of what the host had written."""
        for name, content in self._files(mode).items():
            if name.endswith(".tmp"):
                content = self._varied(content.decode("cp1252")).encode("cp1252")
            (self._host.temp_folder / name).write_bytes(content)

    def take_away_pictures(self):
        """Those that the program has to leave, as they are no metafiles."""
        for picture in self._host.temp_folder.glob("*.bmp"):
            picture.unlink()

    def _files(self, mode):
        if mode in TABLES:
            return self._written(lambda host: TABLES[mode](self._source, host.temp_folder))
        sets = self._source.choice(OVERLAPPED.get(mode, (0,)))
        if (mode, sets) not in self._drawn:
            self._drawn[mode, sets] = self._written(lambda host: host.write_data(mode, sets))
        return self._drawn[mode, sets]

    def _written(self, write):
        """Files that another host has written, as if this one had."""
        with tempfile.TemporaryDirectory(dir=self._host.folder) as folder:
            other = Host(folder)
            other.prepare()
            write(other)
            return {path.name: path.read_bytes().replace(bytes(other.temp_folder), bytes(self._host.temp_folder))
                    for path in other.temp_folder.iterdir()}

    def _varied(self, text):
        text = PARAMETER_BLOCK.sub(lambda _: self._parameters(), text)
        text = COMMENT.sub(lambda _: self._comment(), text)
        return re.sub(r"(?m)^File,axis", lambda _: f"File,{self._source.choice(('x', 'axis', 'a long name of '))}", text)

    def _parameters(self):
        """Few of them are as likely as many."""
        count = round(LONGEST ** self._source.random())
        lines = [f"UserNum,{count}"]
        for number in range(count):
            parameter = self._source.choice(PARAMETERS)
            lines += [f"UserName,S-{number:03d},{parameter.name}",
                      f"UserValue,{self._source.randrange(65536)},{parameter.default},{parameter.unit}"]
        return "".join(line + "\r\n" for line in lines)

    def _comment(self):
        lines = [" ".join(self._source.choices(WORDS, k=self._source.randrange(12))) for _ in range(self._source.randrange(1, 9))]
        return f"CommentCnt,{len(lines)}\r\nComment," + "\\r\\n".join(lines)
