"""Plays the host: writes configuration, help and data files below one folder, and starts the program."""
import os
import subprocess
from dataclasses import dataclass
from pathlib import Path

import modes
import simulation
from bitmap import Bitmap
from options_file import write_options_with_cover

HELP_CONTEXT = 1200


@dataclass(frozen=True)
class Edition:
    number: int
    key: str
    base_value: str
    version_value: str
    help_value: str


EDITIONS = {number: Edition(number, rf"SOFTWARE\Korvane\Tessaline\Brenmark\{name}\Setup", base, name, name + "HelpPath")
            for number, name, base in ((1, "Quillon", "SystemPath"), (2, "Rotavon", "SystemPath"), (4, "Quillex", "SavePath"))}

OVERLAPPING = ("Trace", "Sim", "SimEx")  # modes whose data sets can lie over one another
OVERLAPPED_SETS = {"Trace": 3, "Sim": 3, "SimEx": 11}

# For each mode an edition that accepts it, and what writes its data files.
MODES = {
    "User": (1, modes.write_user),
    "UPWizard": (1, modes.write_wizard),
    "Trace": (1, modes.write_trace),
    "RealTrace": (1, modes.write_real_trace),
    "Mecha": (1, modes.write_mecha),
    "Sim": (1, simulation.write_simulation),
    "SimEx": (4, simulation.write_simulation),
    "IdxTbl": (2, modes.write_program_table),
    "ZoneTbl": (2, modes.write_zone_table),
    "JogTbl": (2, modes.write_jog_table),
    "PrnSetting": (1, lambda folder: None),
}


class Host:
    """Everything lies below `folder`, which is made anew as far as it is missing."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.system_folder = self.folder / "base" / "bin"
        self.temp_folder = self.system_folder / "dat" / "tmp"
        self.help_file = self.folder / "help" / "host.html"
        self.options_file = self.system_folder / "PrintOption.ToT"
        self.configuration = self.folder / "tarvis.ini"

    def prepare(self, version="200", pdf_printer=True):
        """Lays the folders, the configuration of all editions and the help file."""
        self.temp_folder.mkdir(parents=True, exist_ok=True)
        self.help_file.parent.mkdir(parents=True, exist_ok=True)
        self.help_file.write_text(f'<h1 id="{HELP_CONTEXT}">Printing</h1><p>Choose what is printed, then press OK.</p>\n')
        lines = []
        for edition in EDITIONS.values():
            lines += [f"[{edition.key}]", f"{edition.base_value}={self.folder / 'base'}",
                      f"{edition.version_value}={version}", f"{edition.help_value}={self.help_file.parent}", ""]
        lines += ["[Tarvis]", "CodePage=1252", f"PdfPrinter={'yes' if pdf_printer else 'no'}", ""]
        self.configuration.write_text("\n".join(lines), encoding="utf-8")

    def write_data(self, mode, overlapped=0):
        """`overlapped` data sets lie over one another, in the modes that have such."""
        if overlapped:
            MODES[mode][1](self.temp_folder, overlapped=overlapped)
        else:
            MODES[mode][1](self.temp_folder)

    def write_cover(self, coloured=True, named=None):
        """The options hold the logo's full path, or the one that is `named`."""
        logo = self.folder / "logo.bmp"
        picture = Bitmap(240, 80)
        picture.box(0, 0, 240, 80, rgb=0x003060, inside=0x0058A8)
        for k in range(5):
            picture.fill(20 + 44 * k, 20 + 6 * k, 48 + 44 * k, 60, 0xFFFFFF)
        picture.save(logo)
        write_options_with_cover(self.options_file, named or logo, coloured)

    def arguments(self, mode, edition=None):
        return [mode, self.help_file.name, str(HELP_CONTEXT), str(MODES[mode][0] if edition is None else edition)]

    def start(self, program, mode, edition=None, environment=None, **popen):
        """Starts the program with the four arguments, as a child process."""
        return self.start_with(program, self.arguments(mode, edition), environment, **popen)

    def start_with(self, program, arguments, environment=None, through=(), **popen):
        """The same with any arguments. A variable that is None is not set; `through` is a command that ends by
        becoming the program."""
        variables = {**os.environ, "TARVIS_CONFIG": str(self.configuration), **(environment or {})}
        variables = {name: value for name, value in variables.items() if value is not None}
        return subprocess.Popen([*through, str(program), *arguments], env=variables, **popen)
