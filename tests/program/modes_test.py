"""Every function prints what the demo host wrote for it, in the order that its items have."""
import re
import subprocess
import unittest

from program_case import ProgramCase

PARAMETERS = ["Parameters List", "Comments"]

# mode: title, then the bands of the document in their order
DOCUMENTS = {
    "User": ["Parameters", *PARAMETERS],
    "UPWizard": ["Parameter Wizard", "Electrical Schematic Diagram"],
    "Trace": ["Tracing", "Traced Graph", "Trace Object Setting", "Trigger Setting", "Acquisition Date of the Data",
              *PARAMETERS],
    "RealTrace": ["Real-Time Tracing", "Real-Time Tracing Graph", "Tracing Info", *PARAMETERS],
    "Mecha": ["Mechanical Analysis", "Gain Graph/Phase Graph", "Resonance/Anti-Resonance", "Notch Filters Info",
              "Measurement Conditions", "Acquisition Date of the Data", "Comments"],
    "Sim": ["Dynamics Simulation", "Simulated Graph", "Simulation Information", "Simulation Object Setting",
            "Reference Setting", "Servo Drive Setting", "Mechanical Setting", "Acquisition Date of the Data",
            *PARAMETERS],
    "IdxTbl": ["Program Table", "Program Table", "Comments"],
    "ZoneTbl": ["Zone Table", "Zone Table", "Comments"],
    "JogTbl": ["Jog Speed Table", "Jog Speed Table", "Comments"],
}
DOCUMENTS["SimEx"] = DOCUMENTS["Sim"]
NOT_ACCEPTED = [("UPWizard", 2), ("RealTrace", 2), ("Mecha", 2), ("Sim", 2), ("SimEx", 1), ("SimEx", 2),
                ("IdxTbl", 1), ("ZoneTbl", 4), ("JogTbl", 4), ("UPWizard", 4)]


def text_of(pdf):
    told = subprocess.run(["pdftotext", "-layout", str(pdf), "-"], capture_output=True, text=True, check=True).stdout
    return re.sub(r"[ \n\f]+", " ", told)


class Modes(ProgramCase):
    def saved_document(self, mode, overlapped=0):
        """The text of the document that the mode's default options give; the run is over then."""
        self.host.write_data(mode, overlapped)
        session = self.start(mode)
        session.confirm_dialog()
        pdf = self.folder / "document.pdf"
        session.save_pdf(pdf)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual([name for name in self.files_left() if name.endswith((".tmp", ".emf"))], [])
        self.assertEqual(self.standard_error(), "")
        return text_of(pdf)

    def expect_in_order(self, text, captions):
        place = 0
        for caption in captions:
            found = text.find(caption, place)
            self.assertGreaterEqual(found, 0, f"'{caption}' is missing or out of order")
            place = found + len(caption)

    def test_every_mode_prints_its_items_in_order(self):
        for mode, captions in DOCUMENTS.items():
            with self.subTest(mode=mode):
                self.expect_in_order(self.saved_document(mode), captions)

    def test_cover_letter_comes_first_and_counts_as_a_page(self):
        self.host.write_cover()
        text = self.saved_document("JogTbl")
        self.expect_in_order(text, ["SUBJECT:", "Commissioning of axis 1", "Sincerely yours,", "Page 1/ 2",
                                    "Jog Speed Table", "Page 2/ 2"])

    def test_overlapping_traces_follow_one_another_under_titles_of_their_own(self):
        text = self.saved_document("Trace", overlapped=3)
        self.expect_in_order(text, ["Tracing-Overlapping result", "axis1.trc", "Tracing-Overlapping target",
                                    "axis1_run1.trc", "axis1_run2.trc", "axis1_run3.trc"])

    def test_modes_that_the_edition_does_not_know_are_failure_1(self):
        for mode, edition in NOT_ACCEPTED:
            with self.subTest(mode=mode, edition=edition):
                session = self.start(mode, edition)
                text, _ = self.read_message(session, "Printing Error")
                self.assertTrue(text.startswith("Argument is wrong.\n"))
                self.user.press("Return")
                self.assertEqual(session.process.wait(timeout=30), 0)


if __name__ == "__main__":
    unittest.main()
