"""Asks an independent validator whether a PDF is an archive."""
import re
import subprocess

JARS = ("preflight", "pdfbox2", "fontbox2", "xmpbox", "commons-logging", "jaxb-api", "javax.activation")
CLASS_PATH = ":".join(f"/usr/share/java/{name}.jar" for name in JARS)
LATER_PARTS = re.compile(rb"<pdfaid:part>[23]</pdfaid:part>\n<pdfaid:conformance>[UA]</pdfaid:conformance>")
PART_1 = b"<pdfaid:part>1</pdfaid:part>\n<pdfaid:conformance>B</pdfaid:conformance>"


def as_part_1(pdf, changed):
    """The validator knows part 1 of the standard only. So the file is written anew without what that part doesn't have,
    compressed objects, and its identification is changed; all else stays as it is."""
    subprocess.run(["qpdf", "--object-streams=disable", "--newline-before-endstream", "--force-version=1.4", pdf, changed],
                   check=True)
    content = changed.read_bytes()
    content, count = LATER_PARTS.subn(PART_1, content)  # of the same length, so that nothing moves
    if count != 1:
        raise AssertionError(f"{pdf.name} doesn't say once that it is an archive")
    changed.write_bytes(content)
    return changed


def complaints(pdfs):
    """What the validator says of each file: no line for a valid one."""
    lines = {}
    for pdf in pdfs:
        done = subprocess.run(["java", "-cp", CLASS_PATH, "org.apache.pdfbox.preflight.Validator_A1b", str(pdf)],
                              capture_output=True, text=True, check=False)
        first, *rest = [line for line in done.stdout.splitlines() if line] or [done.stderr]
        if first == f"The file {pdf.name} is a valid PDF/A-1b file" and done.returncode == 0:
            lines[pdf.stem] = []
        else:
            lines[pdf.stem] = rest or [first]
    return lines
