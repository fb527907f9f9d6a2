"""The presets of CMakePresets.json: whose build may stop at a warning."""
import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def flags_of(preset):
    """All options of the compiler with which a preset builds the program's own files."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["cmake", "--preset", preset, "-B", folder], cwd=ROOT, check=True, capture_output=True)
        commands = json.loads(Path(folder, "compile_commands.json").read_text(encoding="utf-8"))
        return {word for command in commands for word in command["command"].split()}


class Presets(unittest.TestCase):
    def test_a_warning_stops_no_users_build(self):
        flags = flags_of("release")
        self.assertIn("-Wextra", flags)
        self.assertEqual([flag for flag in flags if flag.startswith("-Werror")], [])

    def test_a_warning_stops_a_developers_build(self):
        commands = json.loads(Path(os.environ["TARVIS_BUILD"], "compile_commands.json").read_text(encoding="utf-8"))
        own = [command for command in commands if command["file"].startswith(str(ROOT))]
        self.assertGreater(len(own), 50)
        for command in own:
            self.assertIn("-Werror", command["command"].split(), command["file"])


if __name__ == "__main__":
    unittest.main()
