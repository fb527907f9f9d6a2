"""Runs a print server for a test program until its input ends.

First line written: the address of the server and the user to print as. Each line read is "NUMBER RECEIVED PRINTED":
once that many jobs are done, the document that the server received and the file that came out of the last one are put
in those two places, and "done" is written.
"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "demo"))
from print_queue import PrintQueue  # noqa: E402

queue = PrintQueue()
try:
    print(queue.environment["CUPS_SERVER"], queue.environment["CUPS_USER"], flush=True)
    for line in sys.stdin:
        number, received, printed = line.split()
        queue.received(queue.wait_for_job(int(number)), received)
        queue.printed(printed)
        print("done", flush=True)
finally:
    queue.close()
