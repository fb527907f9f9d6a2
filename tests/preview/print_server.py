"""Runs a print server for a test program until its input ends.

First line written: the address of the server and the user to print as. Each line read is a command, answered by one
line:
  job RECEIVED PRINTED  waits for the next job; the document that the server received and the file that came out are
                        put in those two places, and what was asked for along with it is answered as JSON
  remove, restore       takes the queue away and sets it up again
  stop, start           the server
  pause, resume         the server, which in between takes connections and answers none
  await                 waits until somebody has asked a paused server for something
"""
import json
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "host"))
from desktop import wait_until  # noqa: E402
from print_queue import PrintQueue  # noqa: E402

OPTIONS = """\
*OpenUI *InputSlot/Paper Source: PickOne
*OrderDependency: 20 AnySetup *InputSlot
*DefaultInputSlot: Upper
*InputSlot Upper/Upper Tray: ""
*InputSlot Lower/Lower Tray: ""
*CloseUI: *InputSlot

*OpenUI *Duplex/Two Sides: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: None
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long Edge: ""
*Duplex DuplexTumble/Short Edge: ""
*CloseUI: *Duplex

*OpenUI *StapleLocation/Staple: PickOne
*OrderDependency: 20 AnySetup *StapleLocation
*DefaultStapleLocation: None
*StapleLocation None/No Staple: ""
*StapleLocation UpperLeft/Upper Left: ""
*CloseUI: *StapleLocation

*OpenUI *ColorModel/Colour: PickOne
*OrderDependency: 20 AnySetup *ColorModel
*DefaultColorModel: RGB
*ColorModel Gray/Grey: ""
*ColorModel RGB/Colour: ""
*CloseUI: *ColorModel

"""


class Server:
    def __init__(self):
        self.queue = PrintQueue(OPTIONS)
        self._last_job = 0

    def job(self, received, printed):
        jobs = wait_until(lambda: [job for job in self.queue.jobs_done() if job > self._last_job], "a print job", 60)
        self._last_job = jobs[-1]
        self.queue.received(self._last_job, received)
        self.queue.printed(printed)
        return json.dumps(self.queue.options(self._last_job))

    def remove(self):
        self.queue.remove_queue()

    def restore(self):
        self.queue.add_queue()

    def stop(self):
        self.queue.stop_server()

    def start(self):
        self.queue.start_server()

    def pause(self):
        self.queue.pause_server()

    def resume(self):
        self.queue.resume_server()

    def wait_for_request(self):
        wait_until(self.queue.has_request, "a request")


NAMES = {"await": "wait_for_request"}  # which is a word of the language
server = Server()
try:
    print(server.queue.environment["CUPS_SERVER"], server.queue.environment["CUPS_USER"], flush=True)
    for line in sys.stdin:
        command, *arguments = line.split()
        print(getattr(server, NAMES.get(command, command))(*arguments) or "done", flush=True)
finally:
    server.queue.close()
