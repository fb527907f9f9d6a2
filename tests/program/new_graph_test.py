"""A graph that the host draws anew into the same file while the dialog is open again shows in the next preview."""
import unittest

from program_case import ProgramCase
from metafile import Metafile
from saved_pdf import words_in_a_row

FILES = ("TraceGraphC.emf", "TraceGraph.emf")


class NewGraph(ProgramCase):
    def draw_graph(self, words):
        """As the host does: into the files that the trace file names."""
        for name in FILES:
            path = self.host.temp_folder / name
            self.assertTrue(path.exists(), name)
            graph = Metafile(1240, 800)
            graph.font(60)
            graph.pen(0)
            graph.polyline([(0, 700), (1240, 100)])
            graph.text(100, 300, words)
            graph.save(path)

    def saved_words(self, session, name):
        session.save_pdf(self.folder / name)
        return words_in_a_row(self.folder / name)

    def test_shows_after_the_printing_items_were_edited(self):
        self.host.write_data("Trace")
        self.draw_graph("First curve")
        session = self.start("Trace")
        session.confirm_dialog()
        self.assertIn("First curve", self.saved_words(session, "first.pdf"))
        self.edit_items(session)
        self.draw_graph("Second curve")
        session.confirm_dialog()
        words = self.saved_words(session, "second.pdf")
        self.assertIn("Second curve", words)
        self.assertNotIn("First curve", words)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_left(), [])


if __name__ == "__main__":
    unittest.main()
