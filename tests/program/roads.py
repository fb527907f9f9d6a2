"""Every way in which the host can start the program, as the host was promised it: what each leads to."""
from dataclasses import dataclass

# (edition, version): the function list of the dialog. Edition 2 knows no versions, so any value will do.
FUNCTION_LISTS = {
    (1, "100"): ["Parameters", "Parameter Wizard", "Tracing", "Real-Time Tracing"],
    (1, "200"): ["Parameters", "Parameter Wizard", "Tracing", "Real-Time Tracing", "Mechanical Analysis",
                 "Dynamics Simulation"],
    (2, "x"): ["Parameters", "Tracing", "Program Table", "Zone Table", "Jog Speed Table"],
    (4, "100"): ["Parameters", "Tracing", "Real-Time Tracing"],
    (4, "200"): ["Parameters", "Tracing", "Real-Time Tracing", "Mechanical Analysis", "Dynamics Simulation"],
}
UNKNOWN_HOSTS = [(0, "200"), (3, "200"), (-1, "200"), (1, "300"), (1, ""), (4, "20"), (4, "abc")]

# mode: the entry of the function list, by edition. An edition that isn't there doesn't accept the mode.
MODES = {
    "User": {1: 0, 2: 0, 4: 0},
    "UPWizard": {1: 1},
    "Trace": {1: 2, 2: 1, 4: 1},
    "RealTrace": {1: 3, 4: 2},
    "Mecha": {1: 4, 4: 3},
    "Sim": {1: 5, 4: 4},
    "SimEx": {4: 4},
    "IdxTbl": {2: 2},
    "ZoneTbl": {2: 3},
    "JogTbl": {2: 4},
    "PrnSetting": {1: 0, 2: 0, 4: 0},
}
WITH_GRAPHS = ("Trace", "RealTrace", "Mecha", "Sim", "SimEx")  # the modes whose pages come in two colour kinds
WITH_COLOUR = (*WITH_GRAPHS, "PrnSetting")


@dataclass(frozen=True)
class Document:
    """What a mode prints of the host's data with every item on."""
    title: str
    file: str  # its name in the header; empty where the header has none
    contents: tuple
    pages: int
    texts: tuple  # some that are on the pages


PARAMETERS = ("Parameters List", "Comments")
DOCUMENTS = {
    "User": Document("Parameters", "axis1.prm", PARAMETERS, 3, ("S-000", "0x0011")),
    "UPWizard": Document("Parameter Wizard", "", ("Electrical Schematic Diagram",), 1, ("Encoder Dividing Ratio",)),
    "Trace": Document("Tracing", "axis1.trc", (
        "Traced Graph", "Trace Object Setting", "Trigger Setting", "Acquisition Date of the Data", *PARAMETERS), 5,
        ("Speed Reference", "1,200 min-1", "11/20/2026 15:48:10", "S-000")),
    "RealTrace": Document("Real-Time Tracing", "axis1.rtt", (
        "Real-Time Tracing Graph", "Tracing Info", *PARAMETERS), 4, ("0 to 200 ms", "S-000")),
    "Mecha": Document("Mechanical Analysis", "axis1.mec", (
        "Gain Graph/Phase Graph", "Resonance/Anti-Resonance ", "Notch Filters Info", "Measurement Conditions",
        "Acquisition Date of the Data", "Comments"), 2, ("Resonance Frequency 1", "Fork at half height, load 12 kg.")),
    "Sim": Document("Dynamics Simulation", "axis1.sim", (
        "Simulated Graph", "Simulation Information", "Simulation Object Setting", "Reference Setting",
        "Servo Drive Setting", "Mechanical Setting", "Acquisition Date of the Data", *PARAMETERS), 6, ("S-000",)),
    "IdxTbl": Document("Program Table", "axis1.idx", ("Program Table", "Comments"), 2, ("Steps 0 to 10 fetch a box",)),
    "ZoneTbl": Document("Zone Table", "axis1.zon", ("Zone Table", "Comments"), 1, ("reference unit", "-320000")),
    "JogTbl": Document("Jog Speed Table", "axis1.jog", ("Jog Speed Table", "Comments"), 1, ("Speeds grow by 40 %",)),
}
DOCUMENTS["SimEx"] = DOCUMENTS["Sim"]


@dataclass(frozen=True)
class Overlap:
    """What precedes the single sets where several lie over one another."""
    contents: tuple
    pages: int


OVERLAPS = {
    "Trace": Overlap(("Traced Graph", "Overlapping Target"), 1),
    "SimEx": Overlap(("Simulated Graph", "Overlapping Target", "List of File Name", "Setting Time", "Parameter"), 2),
}


@dataclass(frozen=True)
class Road:
    mode: str
    edition: int
    version: str
    cover: bool
    colour: bool
    sets: int = 0  # that lie over one another in the host's data; 0 for data of a single set
    detail: bool = True  # the single sets are printed, too
    in_windows: bool = True  # driven through dialog and preview; else tarvis-pdf makes the document

    @property
    def overlap(self):
        """None where the mode prints one set whatever the data hold."""
        return OVERLAPS.get(self.mode) if self.sets else None

    def headings(self):
        """(title of the page head, group in the contents, the bands below it, pages) for each set that is printed."""
        document = DOCUMENTS[self.mode]
        one = document.contents, document.pages
        if not self.overlap:
            return [(document.title, "", *one)]
        groups = [(f"{document.title}-Overlapping result", "Overlapping result" if self.detail else "",
                 self.overlap.contents, self.overlap.pages)]
        if self.detail:
            groups.append((f"{document.title}-Overlapping target", "Overlapping target", *one))
            groups += [(f"{document.title}-Overlapping data", f"Overlapping data {n}/{self.sets - 1}", *one)
                     for n in range(1, self.sets)]
        return groups

    def pages(self):
        return self.cover + sum(pages for _, _, _, pages in self.headings())

    def contents(self):
        """(level, title) of each entry of the table of contents."""
        entries = [(0, "Cover")] if self.cover else []
        for _, group, bands, _ in self.headings():
            entries += [(0, group)] if group else []
            entries += [(int(bool(group)), band) for band in bands]
        return entries

    @property
    def functions(self):
        return FUNCTION_LISTS[self.edition, self.version]

    @property
    def entry(self):
        return MODES[self.mode][self.edition]

    def __str__(self):
        sets = f"_{self.sets}_sets_{'in' if self.detail else 'without'}_detail" if self.sets else ""
        return (f"{self.mode}_of_edition_{self.edition}_{self.version}_{'with' if self.cover else 'without'}_cover_"
                f"{'in_colour' if self.colour else 'in_black_and_white'}{sets}"
                f"{'' if self.in_windows else '_without_windows'}")


def accepted():
    """(mode, edition, version) of each row and column that leads to the dialog."""
    for (edition, version), functions in FUNCTION_LISTS.items():
        for mode, entries in MODES.items():
            if edition in entries and entries[edition] < len(functions):
                yield mode, edition, version


def roads():
    """Each mode with and without cover, in colour and in black and white. Where colour changes no page, it goes
    with the cover and without it in turn. Each mode of each edition and version is driven through the windows once, with
    these choices in turn; the other documents are made by tarvis-pdf, which gives the same bytes (same_pdf_test.py)."""
    for count, (mode, edition, version) in enumerate(accepted()):
        choices = [(cover, colour) for cover in (False, True) for colour in (False, True)
                   if mode in WITH_COLOUR or colour == (cover == (count % 2 == 0))]
        for number, (cover, colour) in enumerate(choices):
            driven = mode == "PrnSetting" or number == count % len(choices)  # PrnSetting makes no document
            yield Road(mode, edition, version, cover, colour, in_windows=driven)
        if mode in ("Trace", "Sim", "SimEx"):
            yield Road(mode, edition, version, cover=True, colour=False, sets=3,
                       in_windows=(mode, edition, version) == ("Trace", 1, "200"))
            yield Road(mode, edition, version, cover=False, colour=True, sets=3, detail=False, in_windows=mode == "SimEx")
        if mode == "SimEx":
            yield Road(mode, edition, version, cover=False, colour=True, sets=8, in_windows=False)


def refused():
    """(mode, edition, version) of what ends as a wrong argument."""
    for edition, version in FUNCTION_LISTS:
        for mode in MODES:
            if edition not in MODES[mode]:
                yield mode, edition, version
    for edition, version in UNKNOWN_HOSTS:
        yield "User", edition, version
        yield "PrnSetting", edition, version


def beyond_the_list():
    """(mode, edition, version) of what the edition knows, but not in this version: a host must not ask for it."""
    for (edition, version), functions in FUNCTION_LISTS.items():
        for mode, entries in MODES.items():
            if edition in entries and entries[edition] >= len(functions):
                yield mode, edition, version
