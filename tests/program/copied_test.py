"""What other programs get of graphs and tables: files and the clipboard."""
import re
import subprocess
import unittest
import xml.etree.ElementTree

from program_case import PREVIEW, ProgramCase, wait_until

SVG = "{http://www.w3.org/2000/svg}"
SAVE = "Save graph as"


class Copied(ProgramCase):
    def start_preview(self, mode):
        self.host.write_data(mode)
        session = self.start(mode)
        session.confirm_dialog()
        return session

    def save_graph(self, session, path):
        session.wait_for(PREVIEW)
        self.user.press("ctrl+shift+s")
        session.wait_for(SAVE)
        self.user.fill_in(str(path))
        self.user.press_until("Return", SAVE, 0)
        wait_until(path.exists, f"{path}")
        session.wait_for(PREVIEW)

    def targets(self):
        return self.clipboard("TARGETS").decode().split()

    def clipboard(self, target):
        return subprocess.run(["xclip", "-o", "-selection", "clipboard", "-t", target], capture_output=True, check=False,
                              env={**self.environment(), "PATH": "/usr/bin:/bin"}).stdout

    def test_a_saved_graph_looks_alike_as_vectors_and_as_a_picture(self):
        session = self.start_preview("Trace")
        svg, png = self.folder / "graph.svg", self.folder / "graph.png"
        self.save_graph(session, svg)
        self.save_graph(session, png)
        self.assertEqual(session.close_preview(), 0)
        root = xml.etree.ElementTree.parse(svg).getroot()
        self.assertEqual(root.tag, SVG + "svg")
        self.assertTrue(root.find(SVG + "title").text)
        self.assertGreater(len(list(root.iter(SVG + "path"))), 20)
        width, height = self.size(png)
        drawn = self.folder / "drawn.png"
        subprocess.run(["rsvg-convert", "--background-color", "white", "-w", str(width), "-h", str(height), "-o", str(drawn),
                        str(svg)], check=True)
        difference = subprocess.run(["compare", "-metric", "MAE", str(png), str(drawn), "null:"], capture_output=True, text=True,
                                    check=False).stderr
        self.assertLess(float(re.search(r"\(([\d.e-]+)\)", difference)[1]), 0.02, difference)

    def size(self, picture):
        text = subprocess.run(["identify", "-format", "%w %h", str(picture)], capture_output=True, text=True, check=True).stdout
        return tuple(int(number) for number in text.split())

    def test_a_copied_graph_is_on_the_clipboard_as_vectors_and_as_a_picture(self):
        session = self.start_preview("Trace")
        session.wait_for(PREVIEW)
        self.user.press("ctrl+shift+c")
        wait_until(lambda: {"image/svg+xml", "application/pdf", "image/png"} <= set(self.targets()), "the clipboard")
        self.assertTrue(self.clipboard("application/pdf").startswith(b"%PDF"))
        self.assertTrue(self.clipboard("image/png").startswith(b"\x89PNG"))
        self.assertEqual(xml.etree.ElementTree.fromstring(self.clipboard("image/svg+xml")).tag, SVG + "svg")
        self.assertEqual(session.close_preview(), 0)

    def test_copied_tables_are_text_with_tabs_and_html(self):
        session = self.start_preview("JogTbl")
        session.wait_for(PREVIEW)
        self.user.press("ctrl+a", "ctrl+c")
        wait_until(lambda: {"text/html", "UTF8_STRING"} <= set(self.targets()), "the clipboard")
        rows = [line.split("\t") for line in self.clipboard("UTF8_STRING").decode().split("\n")]
        cells = re.findall(r"<td>(.*?)</td>", self.clipboard("text/html").decode())
        table = [row for row in rows if len(row) > 1]
        self.assertGreater(len(table), 5)
        self.assertEqual([cell for row in table for cell in row if cell], [cell for cell in cells if cell])
        self.assertEqual(session.close_preview(), 0)


if __name__ == "__main__":
    unittest.main()
