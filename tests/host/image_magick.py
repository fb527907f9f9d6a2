"""Calls the tools of ImageMagick: version 7 has one program for all of them, version 6 one for each."""
import shutil


def command(tool):
    """The first words of a call of `tool`, such as `convert` or `import`."""
    if shutil.which("magick") is None:
        return [tool]
    return ["magick"] if tool == "convert" else ["magick", tool]
