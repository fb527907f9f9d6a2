"""Lines of text as Pango lays them out and draws them, to be compared with ours. Calls its library by ctypes."""
import ctypes
import ctypes.util
from ctypes import byref, c_char_p, c_double, c_int, c_void_p

SCALE = 1024  # units to the pixel


class Rectangle(ctypes.Structure):
    _fields_ = [(name, c_int) for name in ("x", "y", "width", "height")]


def _library(name, functions):
    path = ctypes.util.find_library(name)
    if path is None:
        raise SystemExit(f"the library {name} is not installed")
    library = ctypes.CDLL(path)
    for function, result in functions.items():
        getattr(library, function).restype = result
    return library


CAIRO = _library("cairo", dict.fromkeys(
    ("cairo_image_surface_create", "cairo_image_surface_create_from_png", "cairo_create", "cairo_font_options_create"), c_void_p))
PANGO = _library("pango-1.0", dict.fromkeys(("pango_font_description_from_string", "pango_attr_list_new",
                                            "pango_attr_font_features_new", "pango_layout_get_context"), c_void_p))
PANGO_CAIRO = _library("pangocairo-1.0", {"pango_cairo_create_layout": c_void_p})


def pointer(value):
    return c_void_p(value)


class Surface:
    """A picture to draw on, white at first; or one that is read from a file."""

    def __init__(self, width=1, height=1, path=None):
        if path is None:
            self.handle = pointer(CAIRO.cairo_image_surface_create(1, c_int(width), c_int(height)))
        else:
            self.handle = pointer(CAIRO.cairo_image_surface_create_from_png(str(path).encode()))
        self.context = pointer(CAIRO.cairo_create(self.handle))
        if path is None:
            CAIRO.cairo_set_source_rgb(self.context, c_double(1), c_double(1), c_double(1))
            CAIRO.cairo_paint(self.context)
            CAIRO.cairo_set_source_rgb(self.context, c_double(0), c_double(0), c_double(0))

    def draw_part(self, picture, left, top, width, height, x, y):
        """A part of another picture, at x, y."""
        CAIRO.cairo_save(self.context)
        CAIRO.cairo_set_source_surface(self.context, picture.handle, c_double(x - left), c_double(y - top))
        CAIRO.cairo_rectangle(self.context, *(c_double(value) for value in (x, y, width, height)))
        CAIRO.cairo_fill(self.context)
        CAIRO.cairo_restore(self.context)

    def save(self, path):
        CAIRO.cairo_surface_write_to_png(self.handle, str(path).encode())


class Line:
    """One line, without hinting and kerning, as reports are set."""

    def __init__(self, text, families, pixels, bold, surface):
        self.text, self.pixels, self.surface = text, pixels, surface
        self.layout = pointer(PANGO_CAIRO.pango_cairo_create_layout(surface.context))
        self._set_fonts(families, bold)
        data = text.encode()
        PANGO.pango_layout_set_text(self.layout, c_char_p(data), c_int(len(data)))

    def _set_fonts(self, families, bold):
        context = pointer(PANGO.pango_layout_get_context(self.layout))
        options = pointer(CAIRO.cairo_font_options_create())
        CAIRO.cairo_font_options_set_hint_style(options, c_int(1))
        CAIRO.cairo_font_options_set_hint_metrics(options, c_int(1))
        PANGO_CAIRO.pango_cairo_context_set_font_options(context, options)
        PANGO.pango_context_set_round_glyph_positions(context, c_int(0))
        description = pointer(PANGO.pango_font_description_from_string(",".join(families).encode() + (b", Bold" if bold else b",")))
        PANGO.pango_font_description_set_absolute_size(description, c_double(self.pixels * SCALE))
        PANGO.pango_layout_set_font_description(self.layout, description)
        attributes = pointer(PANGO.pango_attr_list_new())
        PANGO.pango_attr_list_insert(attributes, pointer(PANGO.pango_attr_font_features_new(b"kern=0")))
        PANGO.pango_layout_set_attributes(self.layout, attributes)
        PANGO.pango_layout_context_changed(self.layout)

    def lefts(self):
        """The left edge of each character in em."""
        edges, offset = [], 0
        for character in self.text:
            place = Rectangle()
            PANGO.pango_layout_index_to_pos(self.layout, c_int(offset), byref(place))
            edges.append(min(place.x, place.x + place.width) / SCALE / self.pixels)
            offset += len(character.encode())
        return edges

    def draw(self, x, y):
        """With its left upper corner there."""
        CAIRO.cairo_move_to(self.surface.context, c_double(x), c_double(y))
        PANGO_CAIRO.pango_cairo_show_layout(self.surface.context, self.layout)
