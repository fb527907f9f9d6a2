"""Reads the program's windows as assistive tools do: by role, name and state, through the accessibility bus."""
import re

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

RENAMED_ROLES = {"push button": "button"}  # how releases of the accessibility library name one role: older, newer


class Widget:
    """One thing on the screen; it may be gone at the next call, and then it has no name, text or children."""

    def __init__(self, accessible):
        self._accessible = accessible

    def _ask(self, question, otherwise):
        try:
            return question(self._accessible)
        except GLib.Error:
            return otherwise

    @property
    def name(self):
        return self._ask(lambda a: a.get_name(), "") or ""

    @property
    def role(self):
        name = self._ask(lambda a: a.get_role_name(), "") or ""
        return RENAMED_ROLES.get(name, name)

    @property
    def text(self):
        """The text of a text box."""
        return self._ask(lambda a: Atspi.Text.get_text(a, 0, -1), "") or ""

    @property
    def caret(self):
        return self._ask(Atspi.Text.get_caret_offset, -1)

    def move_caret(self, offset):
        self._ask(lambda a: Atspi.Text.set_caret_offset(a, offset), False)

    def line_at(self, offset):
        return self._unit_at(offset, Atspi.TextBoundaryType.LINE_START)

    def cell_at(self, offset):
        """Of the pages of a document, whose cells are what assistive tools call sentences."""
        return self._unit_at(offset, Atspi.TextBoundaryType.SENTENCE_START)

    def _unit_at(self, offset, kind):
        return self._ask(lambda a: Atspi.Text.get_text_at_offset(a, offset, kind).content, "") or ""

    def place_of(self, offset):
        """Of a character: left, top, width and height on the screen."""
        place = self._ask(lambda a: Atspi.Text.get_character_extents(a, offset, Atspi.CoordType.SCREEN), None)
        return (place.x, place.y, place.width, place.height) if place else None

    def offset_at(self, x, y):
        return self._ask(lambda a: Atspi.Text.get_offset_at_point(a, x, y, Atspi.CoordType.SCREEN), -1)

    def has(self, state):
        """`state` is a word such as "checked", "focused", "enabled", "showing"."""
        kind = getattr(Atspi.StateType, state.upper())
        return self._ask(lambda a: a.get_state_set().contains(kind), False)

    def press(self):
        """Does what its first action is: a button is pressed."""
        self._ask(lambda a: Atspi.Action.do_action(a, 0), False)

    def children(self):
        count = self._ask(lambda a: a.get_child_count(), 0)
        for i in range(count):
            child = self._ask(lambda a, i=i: a.get_child_at_index(i), None)
            if child is not None:
                yield Widget(child)

    def all(self):
        """This one and everything inside, outermost first."""
        yield self
        for child in self.children():
            yield from child.all()

    def find(self, role=None, name=None):
        """The first that shows and has this role and name; None if there is none."""
        for widget in self.all():
            if (role is None or widget.role == role) and (name is None or widget.name == name) and widget.has("showing"):
                return widget
        return None


class Announcements:
    """What programs announce of some kinds, as long as it is the context; `said` and the others let it arrive."""

    def __init__(self, *kinds):
        self._kinds = kinds
        self._heard = []  # kind, role and name of the source, at the time
        self._listener = Atspi.EventListener.new(self._note)

    def _note(self, event):
        source = Widget(event.source)
        self._heard.append((event.type, source.role, source.name))

    def __enter__(self):
        for kind in self._kinds:
            self._listener.register(kind)
        return self

    def __exit__(self, *_):
        for kind in self._kinds:
            self._listener.deregister(kind)

    def of(self, kind):
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass
        return [entry for entry in self._heard if entry[0].startswith(kind)]

    def said(self, pattern):
        """Whether something has got a name like this."""
        return any(re.search(pattern, name) for _, _, name in self.of("object:property-change:accessible-name"))

    def sources(self, kind):
        """Role and name of all that announced this kind."""
        return {(role, name) for _, role, name in self.of(kind)}


class AccessibleProgram:
    """The program with this process number, once it is on the bus."""

    def __init__(self, pid):
        self._pid = pid

    def windows(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application is not None and self._is_it(application):
                return [window for window in Widget(application).children() if window.has("showing")]
        return []

    def _is_it(self, application):
        try:
            return application.get_process_id() == self._pid
        except GLib.Error:  # another program that ends at this moment
            return False

    def window(self, title):
        return next((window for window in self.windows() if window.name == title), None)
