"""The bells that an X server rings, with their times."""
import ctypes

CORE_KEYBOARD = 0x100
BELL_NOTIFY = 1 << 8  # the mask of the keyboard extension's bell events


class KeyboardEvent(ctypes.Structure):
    """What the events of the keyboard extension begin with."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("time", ctypes.c_ulong), ("xkb_type", ctypes.c_int),
                ("padding", ctypes.c_long * 24)]


class BellWatch:
    """Notes the bells of a display from now on."""

    def __init__(self, display):
        self._x = ctypes.CDLL("libX11.so.6")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(display.encode()))
        assert self._display.value, f"no display {display}"
        event_base = ctypes.c_int()
        major, minor = ctypes.c_int(1), ctypes.c_int(0)
        known = self._x.XkbQueryExtension(self._display, None, ctypes.byref(event_base), None,
                                          ctypes.byref(major), ctypes.byref(minor))
        assert known, "the server has no keyboard extension"
        self._event = event_base.value
        self._x.XkbSelectEvents(self._display, CORE_KEYBOARD, BELL_NOTIFY, BELL_NOTIFY)
        self._x.XSync(self._display, 0)
        self._times = []

    def times(self):
        """When each bell rang, in milliseconds of the server's clock."""
        while self._x.XPending(self._display) > 0:
            event = KeyboardEvent()
            self._x.XNextEvent(self._display, ctypes.byref(event))
            if event.type == self._event:
                self._times.append(event.time)
        return list(self._times)

    def close(self):
        self._x.XCloseDisplay(self._display)
