"""A print server of its own on the loopback address, with one queue that ends in PDF files."""
import fcntl
import os
import pwd
import socket
import subprocess
import tempfile
import time
from pathlib import Path

from desktop import wait_until

QUEUE = "DemoPDF"
PPD = Path("/usr/share/ppd/cups-pdf/CUPS-PDF_noopt.ppd")
ANONYMOUS = Path("/var/spool/cups-pdf/ANONYMOUS")  # where the PDF back end leaves what unknown users print
UNKNOWN_USER = "demo-printer-user"
ESTABLISHED = "01"  # as the system lists the states of connections

FILES_CONF = """\
ServerRoot {folder}/etc
RequestRoot {folder}/spool
CacheDir {folder}/cache
StateDir {folder}/run
TempDir {folder}/spool/tmp
ServerBin /usr/lib/cups
DataDir /usr/share/cups
AccessLog {folder}/access_log
ErrorLog {folder}/error_log
PageLog {folder}/page_log
SystemGroup {group}
"""
SERVER_CONF = """\
Listen 127.0.0.1:{port}
Browsing Off
DefaultAuthType None
WebInterface No
LogLevel info
DirtyCleanInterval 0
PreserveJobHistory Yes
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow 127.0.0.1
</Location>
<Location /admin>
  Order allow,deny
  Allow 127.0.0.1
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
"""


def _free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def _take_turn():
    """Waits until no other queue of this user is open: the PDF back end of all queues writes to one folder. Closing what
    is returned, or the end of the process, gives the turn back."""
    turn = open(Path(tempfile.gettempdir()) / f"tarvis-print-queue-{os.getuid()}.lock", "w", encoding="ascii")
    fcntl.flock(turn, fcntl.LOCK_EX)
    return turn


def _attributes(request):
    """Names and values of an encoded print request: a tag, then name and value with two bytes of length each."""
    place, name = 8, ""
    while request[place] != 3:  # the end of all attributes
        tag, place = request[place], place + 1
        if tag < 16:  # starts a group
            continue
        pair = []
        for _ in range(2):
            length = int.from_bytes(request[place:place + 2], "big")
            pair.append(request[place + 2:place + 2 + length])
            place += 2 + length
        name = pair[0].decode() or name
        if tag in (0x21, 0x23):  # integers
            value = str(int.from_bytes(pair[1], "big"))
        elif tag == 0x22:  # a truth
            value = "true" if pair[1][0] else "false"
        else:
            value = pair[1].decode("utf-8", "replace")
        yield name, value


class PrintQueue:
    """The PDF back end works for the system's own user only, so elsewhere the server is started through sudo."""

    def __init__(self, more_options="", holds_jobs=False):
        """`more_options` are options that the queue's printer has besides paper, as a printer description lists them. If it
        holds jobs, they are taken and none is printed, and it needs to wait for no other queue."""
        self._as_root = [] if os.getuid() == 0 else ["sudo", "-n"]
        self._turn = None if holds_jobs else _take_turn()
        self.folder = Path(tempfile.mkdtemp(prefix="print-queue-"))
        self.folder.chmod(0o755)
        for name in ("etc", "spool/tmp", "cache", "run"):
            (self.folder / name).mkdir(parents=True)
        port = _free_port()
        (self.folder / "cupsd.conf").write_text(SERVER_CONF.format(port=port))
        (self.folder / "cups-files.conf").write_text(FILES_CONF.format(folder=self.folder, group="root"))
        self.environment = {"CUPS_SERVER": f"127.0.0.1:{port}", "CUPS_USER": UNKNOWN_USER}
        description = PPD.read_text(encoding="latin-1").replace("*CloseGroup: General", more_options + "*CloseGroup: General")
        (self.folder / "printer.ppd").write_text(description, encoding="latin-1")
        self.start_server()
        self.add_queue()
        if holds_jobs:
            self.hold_jobs()
        self._started = time.time()

    def start_server(self):
        self._server = subprocess.Popen([*self._as_root, "/usr/sbin/cupsd", "-f", "-c", self.folder / "cupsd.conf",
                                         "-s", self.folder / "cups-files.conf"], stderr=subprocess.DEVNULL)
        wait_until(self._answers, "the print server")

    def stop_server(self):
        subprocess.run([*self._as_root, "kill", str(self._server.pid)], check=False)
        self._server.wait()

    def pause_server(self):
        """It takes connections and answers none."""
        subprocess.run([*self._as_root, "kill", "-STOP", str(self._server.pid)], check=True)

    def resume_server(self):
        subprocess.run([*self._as_root, "kill", "-CONT", str(self._server.pid)], check=True)

    def has_request(self):
        """Whether anything arrived that the server has not read yet."""
        port = int(self.environment["CUPS_SERVER"].split(":")[1])
        for line in Path("/proc/net/tcp").read_text(encoding="ascii").splitlines()[1:]:
            _, local, _, state, queues, *_ = line.split()
            if int(local.split(":")[1], 16) == port and state == ESTABLISHED and int(queues.split(":")[1], 16) > 0:
                return True
        return False

    def add_queue(self):
        self._run("lpadmin", "-p", QUEUE, "-E", "-v", "cups-pdf:/", "-P", self.folder / "printer.ppd")
        self._run("lpadmin", "-d", QUEUE)

    def remove_queue(self):
        """As an administrator may do at any moment."""
        self._run("lpadmin", "-x", QUEUE)

    def hold_jobs(self):
        """From now on jobs are taken and none is printed."""
        self._run("cupsdisable", QUEUE)

    def _run(self, *command):
        environment = {**os.environ, "CUPS_SERVER": self.environment["CUPS_SERVER"],
                "CUPS_USER": pwd.getpwuid(0).pw_name}
        return subprocess.run(command, env=environment, capture_output=True, text=True, check=True).stdout

    def _answers(self):
        try:
            return "is running" in self._run("lpstat", "-r")
        except subprocess.CalledProcessError:
            return False

    def jobs_done(self):
        """Numbers of the finished jobs, oldest first."""
        lines = self._run("lpstat", "-W", "completed", "-o", QUEUE).splitlines()
        return sorted(int(line.split()[0].rsplit("-", 1)[1]) for line in lines)

    def jobs_waiting(self):
        """How many jobs the queue has taken and not printed."""
        return len(self._run("lpstat", "-W", "not-completed", "-o", QUEUE).splitlines())

    def cancel_jobs(self):
        """All of them, with what the server keeps about them."""
        self._run("cancel", "-a", "-x", QUEUE)

    def wait_for_job(self, count=1, seconds=60):
        return wait_until(lambda: self.jobs_done()[count - 1:count], f"print job {count}", seconds)[0]

    def options(self, job):
        """What the program asked for along with the document: each attribute of the job with its last value, as text."""
        control = subprocess.run([*self._as_root, "cat", self.folder / "spool" / f"c{job:05d}"],
                                 capture_output=True, check=True).stdout
        return dict(_attributes(control))

    def received(self, job, target):
        """Copies the document as the program handed it over to `target`."""
        source = self.folder / "spool" / f"d{job:05d}-001"
        subprocess.run([*self._as_root, "cp", source, target], check=True)
        subprocess.run([*self._as_root, "chmod", "a+r", target], check=True)

    def _is_whole(self, file):
        """The back end goes on writing for a while after its job is done."""
        end = subprocess.run([*self._as_root, "tail", "-c", "64", file], capture_output=True, check=True).stdout
        return end.rstrip().endswith(b"%%EOF")

    def printed(self, target):
        """Moves the newest file that the PDF back end made since the server started to `target`."""
        def newest():
            files = [f for f in ANONYMOUS.glob("*.pdf") if f.stat().st_mtime >= self._started - 1]
            file = max(files, key=lambda f: f.stat().st_mtime, default=None)
            return file if file and self._is_whole(file) else None
        subprocess.run([*self._as_root, "mv", wait_until(newest, "the printed file"), target], check=True)

    def close(self):
        self.stop_server()
        subprocess.run([*self._as_root, "rm", "-rf", str(self.folder)], check=False)
        if self._turn:
            self._turn.close()
