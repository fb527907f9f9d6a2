"""Systems with few fonts, as environments of programs."""
import shutil
import struct
import tempfile
from pathlib import Path

from pdf_case import output_of

EMBEDDING_RIGHTS = 8  # place in the table OS/2
NEVER = 2


def file_of(family):
    """The file of an installed font."""
    wanted = f"{family}:style=Regular"
    path, found = output_of("fc-match", "--format=%{file}|%{family}", wanted).split("|")
    assert family in found, f"the font {family} is not installed; tools/install_packages testing"
    return Path(path)


def with_only(folder, *families):
    """The environment of a system that has nothing but these fonts, which are copied to a folder in this one."""
    place = Path(tempfile.mkdtemp(dir=folder))
    fonts = place / "fonts"
    fonts.mkdir()
    for family in families:
        shutil.copy(file_of(family), fonts)
    configuration = place / "fonts.conf"
    configuration.write_text(f"<fontconfig><dir>{fonts}</dir><cachedir>{place / 'cache'}</cachedir></fontconfig>")
    return {"FONTCONFIG_FILE": str(configuration)}


def that_must_not_be_embedded(folder, family):
    """The same with a font whose maker has forbidden that files hold it."""
    environment = with_only(folder, family)
    for font in (Path(environment["FONTCONFIG_FILE"]).parent / "fonts").iterdir():
        data = bytearray(font.read_bytes())
        for at in range(12, 12 + 16 * struct.unpack(">H", data[4:6])[0], 16):
            if data[at:at + 4] == b"OS/2":
                place = struct.unpack(">L", data[at + 8:at + 12])[0] + EMBEDDING_RIGHTS
                data[place:place + 2] = struct.pack(">H", NEVER)
        font.write_bytes(data)
    return environment
