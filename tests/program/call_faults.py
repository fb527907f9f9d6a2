"""Makes single calls of a program to the system fail, or kills it before them, by the fault injection of strace."""
import os
import re
import tempfile
from collections import Counter
from dataclasses import dataclass, replace
from pathlib import Path

# The errors that a call can really end with. What only gives things back is left out, and so is "brk": it reports a failure
# by the end of the heap as it was, which strace can't return. Short memory is tried by limits.
ERRORS = {
    "openat": ("EIO", "EACCES", "EINTR", "ENOMEM", "EMFILE", "ENOSPC"),
    "read": ("EIO", "EINTR"),
    "pread64": ("EIO", "EINTR"),
    "write": ("EIO", "ENOSPC", "EINTR"),
    "writev": ("EIO", "ENOSPC", "EINTR"),
    "lseek": ("EIO",),
    "close": ("EIO", "EINTR"),
    "newfstatat": ("EIO", "EACCES", "ENOMEM"),
    "statx": ("EIO", "EACCES", "ENOMEM"),
    "access": ("EIO", "EACCES"),
    "readlink": ("EIO", "EACCES"),
    "getcwd": ("ENOENT", "ENOMEM"),
    "getdents64": ("EIO", "ENOMEM"),
    "copy_file_range": ("EIO", "ENOSPC"),
    "sendfile": ("EIO", "ENOSPC"),
    "rename": ("EIO", "ENOSPC", "EACCES"),
    "unlink": ("EIO", "EACCES"),
    "fchmod": ("EIO", "EPERM"),
    "fchmodat": ("EIO", "EPERM"),
    "fchown": ("EIO", "EPERM"),
    "fsync": ("EIO", "ENOSPC", "EINTR"),
    "mmap": ("ENOMEM", "EACCES"),
    "mprotect": ("ENOMEM",),
    "clone3": ("EAGAIN", "ENOMEM"),
    "eventfd2": ("EMFILE", "ENOMEM"),
    "getrandom": ("EINTR",),
}

CALL = re.compile(r"^(\d+) +(\w+)\(")
FONT_LIBRARY = "libfontconfig"
# What the program does first of all; what precedes it is the system's loader, which reports its failures itself.
FIRST_OF_THE_PROGRAM = re.compile(r"^\d+ +fcntl\(1, F_GETFD\)")


@dataclass(frozen=True)
class Moment:
    """Before a call of the program's first thread is carried out. Each thread counts its own calls of each name, from 1."""
    call: str
    number: int
    looks_for_fonts: bool = False  # known where the functions that make the call are looked at

    def __str__(self):
        return f"{self.call} number {self.number}"

    def failing(self, error):
        """The command that becomes the program, whose call then fails."""
        return tracing("--seccomp-bpf", f"--inject={self.call}:error={error}:when={self.number}", call=self.call)

    def killing(self):
        """The same for one that is killed then. Where strace is woken by a filter, it can send no signal."""
        return tracing(f"--inject={self.call}:signal=KILL:when={self.number}", call=self.call)


def tracing(*options, call, log=os.devnull):
    """strace with these options for the calls of these names. It ends as the program does."""
    return ("strace", "-f", "-qqq", "-e", f"trace={call}", "-e", "signal=none", *options, "-o", str(log))


def moments_of(run, names=tuple(ERRORS)):
    """The moments of a whole run in their order. `run` is given a command that becomes the program, and waits for its end."""
    return [moment for moment, _ in _calls_of(run, names)]


def moments_by_place(run, names=tuple(ERRORS)):
    """The same in lists, each of moments in which the same chain of functions makes the same call. To find the places takes
    minutes."""
    places = {}
    for moment, functions in _calls_of(run, names, "--stack-traces"):
        looks_for_fonts = any(FONT_LIBRARY in function for function in functions)
        places.setdefault((moment.call, functions), []).append(replace(moment, looks_for_fonts=looks_for_fonts))
    return list(places.values())


def _calls_of(run, names, *options):
    """Each moment with the lines on the functions that make the call, innermost first; none without stack traces."""
    with tempfile.TemporaryDirectory() as folder:
        log = Path(folder, "calls")
        run(tracing("--seccomp-bpf", *options, call=",".join((*names, "fcntl")), log=log))
        lines = log.read_text(errors="replace").splitlines()
    calls = []
    first_thread, counts, has_started, functions = None, Counter(), False, []
    for line in lines:
        has_started = has_started or FIRST_OF_THE_PROGRAM.match(line) is not None
        call = CALL.match(line)
        if call:
            first_thread, functions = first_thread or call[1], []
            if call[1] == first_thread and call[2] in names:
                counts[call[2]] += 1
                if has_started:
                    calls.append((Moment(call[2], counts[call[2]]), functions))
        else:
            functions.append(line)
    return [(moment, tuple(functions)) for moment, functions in calls]
