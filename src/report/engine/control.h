// Controls of a report: what a layout declares and what the handlers of its events change.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "report/engine/document.h"
#include "report/engine/picture.h"
#include "report/engine/units.h"

namespace tarvis {

class ActiveReport;

class CheckBox;
class Field;
class Image;
class Label;
class Line;
class Shape;
class SubReport;

// A control as what it is.
using AnyControl = std::variant<const Field*, const Label*, const Image*, const Line*, const Shape*,
                                const CheckBox*, const SubReport*>;

class Control;

// What a control is to those who have the document read to them. Mostly its section says it.
struct Reading {
  std::optional<PartRole> As = std::nullopt;  // none: as its section says
  const Control* Within = nullptr;            // the cell of the same section in which it shows
  // Lines are read one after the other, the controls of a line in layout order. Each line of a section that
  // is a row of a table is a row.
  std::uint8_t Line = 0;
  std::uint8_t Columns = 1;  // of a table, that it takes at least
  bool SpansLines = false;   // is beside all lines that follow
};

// Name and geometry in twips, relative to the section (lines: the rectangle spanned by the end points).
// All members may be set at run time; they last until set again, but growth and geometry set in
// BeforePrint last for that one printing.
class Control {
 public:
  Control(const char* name, const Rect& place)
      : Name(name), Left(place.Left), Top(place.Top), Width(place.Width), Height(place.Height) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] virtual AnyControl Self() const = 0;
  // Whether anything of it would be seen.
  [[nodiscard]] virtual bool PrintsAnything() const { return true; }

  const char* const Name;  // static storage
  float Left;
  float Top;
  float Width;
  float Height;
  bool Visible = true;
  Reading Reads;

  float Bottom() const { return Top + Height; }
};

enum class Align : std::uint8_t { Left, Centre, Right };

// Look of a field or label. A border weighs one unit (15 twips).
struct CellStyle {
  float Size = 8.5F;  // points
  bool Bold = false;
  Align Alignment = Align::Left;
  bool Border = false;
  bool Filled = false;
  Color Fill = White;
  bool RunsOn = false;    // a line wider than its box runs on to the right instead of being condensed
  bool RoomOnly = false;  // takes its room but paints neither fill nor text
  // A box that reaches past the paper wraps its text at the paper's edge; only for sections that can't grow.
  bool WithinPaper = false;
};

// The engine's own text, written when pages are closed.
enum class Summary : std::uint8_t { None, PageNumber, PageCount };

class TextControl : public Control {
 public:
  TextControl(const char* name, const Rect& place, const CellStyle& style, const char* text)
      : Control(name, place), Style(style), Text(text) {}

  bool PrintsAnything() const override {
    return !Style.RoomOnly && (!Text.empty() || Style.Border || Style.Filled);
  }

  CellStyle Style;
  std::string Text;  // UTF-8; CR LF breaks lines. A label's Caption is this text
  // Text on one line whose baseline this one has, in place of one by its own box; none for its own.
  const TextControl* SharesBaselineOf = nullptr;
};

class Field : public TextControl {
 public:
  Field(const char* name, const Rect& place, const CellStyle& style, const char* text)
      : TextControl(name, place, style, text) {}

  AnyControl Self() const override { return this; }

  tarvis::Summary Summary = Summary::None;
};

class Label : public TextControl {
 public:
  Label(const char* name, const Rect& place, const CellStyle& style, const char* text)
      : TextControl(name, place, style, text) {}

  AnyControl Self() const override { return this; }

  const std::string& Caption() const { return Text; }
  void SetCaption(std::string caption) { Text = std::move(caption); }
};

// How a picture is placed in its box.
enum class Fit : std::uint8_t { Fill, KeepCentred, KeepTopRight };

class Image : public Control {
 public:
  Image(const char* name, const Rect& place, Fit fit) : Control(name, place), Placement(fit) {}

  AnyControl Self() const override { return this; }
  bool PrintsAnything() const override { return Picture != nullptr; }

  PicturePtr Picture;         // empty paints nothing
  std::string AlternateText;  // UTF-8, read in place of the picture; empty for decoration
  Fit Placement;
};

class Line : public Control {
 public:
  Line(const char* name, const Rect& place, int weight) : Control(name, place), Weight(weight) {}

  AnyControl Self() const override { return this; }

  int Weight;  // units of 15 twips
};

class Shape : public Control {
 public:
  Shape(const char* name, const Rect& place, std::optional<Color> fill) : Control(name, place), Fill(fill) {}

  AnyControl Self() const override { return this; }

  int Weight = 1;             // of the border, units of 15 twips; 0 none
  std::optional<Color> Fill;  // none: transparent
};

class CheckBox : public Control {
 public:
  CheckBox(const char* name, const Rect& place) : Control(name, place) {}

  AnyControl Self() const override { return this; }

  bool Value = false;
};

// Runs a whole report inside its section. Assigning a new object replaces the old one.
class SubReport : public Control {
 public:
  SubReport(const char* name, const Rect& place) : Control(name, place) {}

  AnyControl Self() const override { return this; }
  bool PrintsAnything() const override { return false; }

  std::shared_ptr<ActiveReport> object;
};

}  // namespace tarvis
