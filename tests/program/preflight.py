"""Asks an independent validator whether a PDF is an archive."""
import re
import subprocess
import tempfile

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
    """What the validator says of each file: no line for a valid one. It takes longer to start than to validate."""
    with tempfile.NamedTemporaryFile("w", suffix=".txt") as names:
        names.write("".join(f"{pdf}\n" for pdf in pdfs))
        names.flush()
        done = subprocess.run(["java", "-cp", CLASS_PATH, "org.apache.pdfbox.preflight.Validator_A1b", "batch", names.name],
                              capture_output=True, text=True, check=False)
    said = dict(re.findall(r"^The file (\S+?\.pdf) ?is (.*?)(?=^The file |\Z)", done.stdout, re.M | re.S))
    if sorted(said) != sorted(pdf.name for pdf in pdfs):
        raise AssertionError(done.stdout + done.stderr)
    return {pdf.stem: lines_about(said[pdf.name]) for pdf in pdfs}


def lines_about(words):
    first, *rest = [line for line in words.splitlines() if line]
    return [] if first == "a valid PDF/A-1b file" else rest or [first]
