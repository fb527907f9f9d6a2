"""What a screen reader gets of the preview, over the accessibility bus."""
import unittest

from assistive import Announcements
from program_case import PREVIEW, ProgramCase, wait_until


class Reading(ProgramCase):
    def start_preview(self, mode="User"):
        self.host.write_data(mode)
        session = self.start(mode)
        session.confirm_dialog()
        self.preview = self.window(session, PREVIEW)
        self.pages = wait_until(lambda: self.preview.find("document frame"), "the pages as a document")
        return session

    def test_the_pages_are_a_document_with_lines_cells_and_a_caret(self):
        session = self.start_preview()
        self.assertRegex(self.pages.name, r"^Page 1 of \d+$")
        text = self.pages.text
        lines = text.split("\n")
        self.assertIn("Parameters List", lines)
        head = next(line for line in lines if line.startswith("No.\t"))
        self.assertEqual(head.split("\t"), ["No.", "Name", "Setting Value", "Unit", "Default Setting"])
        row = next(line for line in lines if line.startswith("S-006\t"))
        at = text.index(row)
        self.assertEqual(self.pages.line_at(at + 8).rstrip("\n"), row)
        self.assertEqual(self.pages.cell_at(at + 8).rstrip("\t"), row.split("\t")[1])
        self.pages.move_caret(at + 2)
        wait_until(lambda: self.pages.caret == at + 2, "the caret")
        left, top, width, height = self.pages.place_of(at)
        self.assertGreater(width, 1)
        self.assertGreater(height, 5)
        self.assertEqual(self.pages.offset_at(left + 1, top + height // 2), at)
        self.assertEqual(session.close_preview(), 0)

    def test_another_page_is_announced_and_the_caret_goes_along(self):
        session = self.start_preview()
        with Announcements("object:property-change:accessible-name", "object:text-caret-moved") as heard:
            self.user.press("ctrl+Next")
            wait_until(lambda: heard.said(r"^Page 2 of \d+$"), "the page to be announced")
            wait_until(lambda: heard.of("object:text-caret-moved"), "the caret to go along")
        self.assertGreater(self.pages.caret, 100)
        self.assertEqual(session.close_preview(), 0)

    def test_thumbnails_have_names_and_lead_to_their_pages(self):
        session = self.start_preview()
        self.preview.find("page tab", "Pages").press()
        thumbnail = wait_until(lambda: self.preview.find("list item", "Page 2"), "the thumbnails")
        thumbnail.press()
        wait_until(lambda: self.pages.name.startswith("Page 2 of"), "the page")
        self.assertTrue(thumbnail.has("selected"))
        self.assertEqual(session.close_preview(), 0)

    def test_the_focus_stays_in_the_find_field_at_every_hit(self):
        session = self.start_preview("Trace")
        with Announcements("object:state-changed:focused") as heard:
            self.user.press("ctrl+f")
            field = wait_until(lambda: self.preview.find("text", "Text to find"), "the find bar")
            self.user.write("s")
            for _ in range(8):
                self.user.press("Return")
            wait_until(lambda: any(name.startswith("9 of ") for name in self.labels()), "the ninth hit")
            self.assertTrue(field.has("focused"))
            self.assertEqual({role for role, _ in heard.sources("object:state-changed:focused")} - {"text", "document frame"}, set())
        self.assertEqual(session.close_preview(), 0)

    def labels(self):
        return [widget.name for widget in self.preview.all() if widget.role == "label"]


if __name__ == "__main__":
    unittest.main()
