"""The floors of src/ and what each links, as src/CMakeLists.txt declares them."""
import re
from dataclasses import dataclass

FLOOR = re.compile(r"^\s*tarvis_floor\(\s*(\S+)\s+(\S+)(?:\s+RECURSE)?(?:\s+LINK\s+([^)]*?))?\s*\)", re.MULTILINE)
PROGRAM = re.compile(r"^\s*add_executable\(\s*(\S+)\s+(?:(\S+)/)?main\.cpp\s*\)", re.MULTILINE)
LINKS = r"target_link_libraries\(\s*%s\s+PRIVATE\s+([^)]*?)\s*\)"
OURS = "tarvis_"


@dataclass(frozen=True)
class Floor:
    folder: str    # below src/; "" for src/ itself
    target: str
    links: tuple   # targets, ours and others'


def read_floors(root):
    """All floors by their folder, and the programs whose folder is no floor."""
    text = (root / "src/CMakeLists.txt").read_text(encoding="utf-8")
    floors = {folder: Floor(folder, OURS + name, tuple((links or "").split())) for name, folder, links in FLOOR.findall(text)}
    for target, folder in PROGRAM.findall(text):
        links = re.search(LINKS % re.escape(target), text)
        linked = tuple(link for link in links[1].split() if link != "tarvis_flags") if links else ()
        floors.setdefault(folder, Floor(folder, target, linked))
    return floors


def below(floors, floor):
    """The targets that a floor may use: its own, and all that it links, directly or not."""
    by_target = {floor.target: floor for floor in floors.values()}
    found, ahead = set(), [floor.target]
    while ahead:
        target = ahead.pop()
        if target not in found:
            found.add(target)
            ahead += by_target[target].links if target in by_target else ()
    return found


def floor_of(floors, path):
    """The floor of a file below src/: the longest folder of its path that is one; None if none is."""
    folder = path.rpartition("/")[0]
    while folder not in floors:
        if "/" not in folder:
            return None
        folder = folder.rpartition("/")[0]
    return floors[folder]
