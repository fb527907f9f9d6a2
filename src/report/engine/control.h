// Controls of a report: what a layout declares and what the handlers of its events change.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "report/engine/document.h"
#include "report/engine/picture.h"
#include "report/engine/units.h"

namespace tarvis {

class ActiveReport;

enum class ControlKind : std::uint8_t { Field, Label, Image, Line, Shape, SubReport, CheckBox };

// Name and geometry in twips, relative to the section (lines: the rectangle spanned by the end points).
// All members may be set at run time; they last until set again, but growth and geometry set in
// BeforePrint last for that one printing.
class Control {
 public:
  Control(ControlKind kind, const char* name, const Rect& place)
      : Kind(kind), Name(name), Left(place.Left), Top(place.Top), Width(place.Width), Height(place.Height) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const ControlKind Kind;
  const char* const Name;  // static storage
  float Left;
  float Top;
  float Width;
  float Height;
  bool Visible = true;

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
  TextControl(ControlKind kind, const char* name, const Rect& place, const CellStyle& style, const char* text)
      : Control(kind, name, place), Style(style), Text(text) {}

  CellStyle Style;
  std::string Text;  // UTF-8; CR LF breaks lines. A label's Caption is this text
  // Text on one line whose baseline this one has, in place of one by its own box; none for its own.
  const TextControl* SharesBaselineOf = nullptr;
};

class Field : public TextControl {
 public:
  Field(const char* name, const Rect& place, const CellStyle& style, const char* text)
      : TextControl(ControlKind::Field, name, place, style, text) {}

  tarvis::Summary Summary = Summary::None;
};

class Label : public TextControl {
 public:
  Label(const char* name, const Rect& place, const CellStyle& style, const char* text)
      : TextControl(ControlKind::Label, name, place, style, text) {}

  const std::string& Caption() const { return Text; }
  void SetCaption(std::string caption) { Text = std::move(caption); }
};

// How a picture stands in its box.
enum class Fit : std::uint8_t { Fill, KeepCentred, KeepTopRight };

class Image : public Control {
 public:
  Image(const char* name, const Rect& place, Fit fit)
      : Control(ControlKind::Image, name, place), Placement(fit) {}

  PicturePtr Picture;  // empty paints nothing
  Fit Placement;
};

class Line : public Control {
 public:
  Line(const char* name, const Rect& place, int weight)
      : Control(ControlKind::Line, name, place), Weight(weight) {}

  int Weight;  // units of 15 twips
};

class Shape : public Control {
 public:
  Shape(const char* name, const Rect& place, bool filled, Color fill)
      : Control(ControlKind::Shape, name, place), Filled(filled), Fill(fill) {}

  int Weight = 1;  // of the border, units of 15 twips; 0 none
  bool Filled;
  Color Fill;
};

class CheckBox : public Control {
 public:
  CheckBox(const char* name, const Rect& place) : Control(ControlKind::CheckBox, name, place) {}

  bool Value = false;
};

// Runs a whole report inside its section. Assigning a new object replaces the old one.
class SubReport : public Control {
 public:
  SubReport(const char* name, const Rect& place) : Control(ControlKind::SubReport, name, place) {}

  std::shared_ptr<ActiveReport> object;
};

}  // namespace tarvis
