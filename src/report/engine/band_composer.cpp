#include "report/engine/band_composer.h"

#include <algorithm>
#include <cassert>
#include <limits>

#include "report/engine/line_room.h"

namespace tarvis {
namespace {

// A bordered cell sets its text this far in from the side that it is aligned to, where there is room.
constexpr float CellInset = 30;
// Text is lowered by half of the spare height, but by no more than this.
constexpr float DeepestAnchor = 46;

// Geometry as it was before growth and BeforePrint, put back when the band is finished or given up.
class GeometryKeeper {
 public:
  explicit GeometryKeeper(const Section& section) : section_(section) {
    places_.reserve(section.Controls().size());
    for (const auto& control : section.Controls()) {
      places_.push_back({control->Left, control->Top, control->Width, control->Height});
    }
  }
  ~GeometryKeeper() {
    for (std::size_t index = 0; index < places_.size(); ++index) {
      Control& control = *section_.Controls()[index];
      control.Left = places_[index].Left;
      control.Top = places_[index].Top;
      control.Width = places_[index].Width;
      control.Height = places_[index].Height;
    }
  }
  GeometryKeeper(const GeometryKeeper&) = delete;
  GeometryKeeper& operator=(const GeometryKeeper&) = delete;

 private:
  const Section& section_;
  std::vector<Rect> places_;
};

// Labels, and fields of sections that can't grow, keep text on one line if their box has room for one only.
bool Wraps(const TextControl& text, Growth growth) {
  const bool oneLineOnly = text.Height < 2 * LinePitch(text.Style.Size) - FitTolerance;
  return growth == Growth::ToItsText || !oneLineOnly;
}

// How far the lines of a cell are set in, all by the same: `spare` is what its widest line leaves of the box.
float InsetOf(const TextControl& text, float spare) {
  return text.Style.Border ? std::clamp(spare, 0.0F, CellInset) : 0;
}

// The left edge of a line `advance` wide in a box `width` wide.
float AlignedLeft(const TextControl& text, float width, float advance, float inset) {
  if (text.Style.Alignment == Align::Centre) return text.Left + (width - advance) / 2;
  if (text.Style.Alignment == Align::Right) return text.Left + width - advance - inset;
  return text.Left + inset;
}

// A line too high for its box hangs upwards from the box's bottom.
float OneLineTop(const TextControl& text) {
  const float spare = text.Height - LinePitch(text.Style.Size);
  return text.Top + (spare < 0 ? spare : std::min(spare / 2, DeepestAnchor));
}

float TopOfOneLine(const TextControl& text) {
  const TextControl* const other = text.SharesBaselineOf;
  if (other == nullptr) return OneLineTop(text);
  const float ascent = static_cast<float>(AscentEm) * TwipsPerPoint;
  return OneLineTop(*other) + ascent * (other->Style.Size - text.Style.Size);
}

std::uint8_t WeightOf(int weight) {
  assert(weight >= 0 && weight <= std::numeric_limits<std::uint8_t>::max());
  return static_cast<std::uint8_t>(weight);
}

void CallEvent(const std::function<void()>& handler) {
  if (handler) handler();
}

}  // namespace

BandComposer::BandComposer(Document& document, const TextMeasurer& measurer)
    : document_(document), cache_(document, measurer), structure_(document.Structure, cache_) {}

Printing BandComposer::Compose(const BandOrigin& origin, ActiveReport& report, Section& section, float left,
                               Band& band, const std::function<void()>& beforeAfterPrint) {
  report.LayoutAction = 0;
  CallEvent(section.Format);
  if (report.Unloaded()) return Printing::Dropped;
  if (section.Kind == SectionKind::Detail && report.LayoutAction == 5) return Printing::Skipped;
  const GeometryKeeper keeper(section);
  if (section.FitsControls) Grow(section);
  CallEvent(section.BeforePrint);
  if (report.Unloaded()) return Printing::Dropped;
  band.IsHeader = section.Kind == SectionKind::GroupHeader;
  band.Height = FinalHeight(section);
  EmitControls(section, left, band);
  structure_.AddBand(section, shown_, origin);
  CallEvent(beforeAfterPrint);
  CallEvent(section.AfterPrint);
  return Printing::Done;
}

void BandComposer::Grow(Section& section) {
  for (const auto& control : section.Controls()) {
    if (!control->Visible) continue;
    const AnyControl self = control->Self();
    const auto* const* field = std::get_if<const Field*>(&self);
    if (field == nullptr) continue;
    const TextControl& text = **field;
    if (text.Text.empty()) continue;
    const std::size_t lines = cache_.Lines(text.Text, StyleOf(text), text.Width).size();
    const float needed = static_cast<float>(lines) * LinePitch(text.Style.Size);
    if (needed > control->Height + FitTolerance) control->Height = needed;
  }
}

float BandComposer::FinalHeight(const Section& section) {
  if (!section.FitsControls || section.HoldsSubReport()) return section.Height;
  float lowest = 0;
  for (const auto& control : section.Controls()) {
    const bool counts = control->Visible && !std::holds_alternative<const Line*>(control->Self());
    if (counts) lowest = std::max(lowest, control->Bottom());
  }
  return lowest;
}

void BandComposer::EmitControls(const Section& section, float left, Band& band) {
  ++bandNumber_;
  pageCountItems_.clear();
  shown_.clear();
  band.Items.reserve(2 * section.Controls().size());  // a cell is a box and mostly one line
  for (std::size_t index = 0; index < section.Controls().size(); ++index) {
    const std::unique_ptr<Control>& control = section.Controls()[index];
    // What begins at or below the band's bottom is a leftover of the design; what begins above it prints
    // whole.
    if (!control->Visible || (control->Top >= band.Height && control->Top > 0)) continue;
    shown_.push_back(static_cast<std::uint16_t>(index));
    Item model;
    model.Control = cache_.Name(control->Name);
    model.Band = bandNumber_;
    model.Box = {control->Left + left, control->Top, control->Width, control->Height};
    const Output output{section, left, model, band};
    std::visit([&](const auto* self) { Emit(*self, output); }, control->Self());
  }
}

void BandComposer::Emit(const Field& field, const Output& output) {
  // The page number is printed in place of the page total until that is known.
  const std::string& content = field.Summary == Summary::None ? field.Text : pageNumber_;
  EmitText(field, content, output.Section.FitsControls ? Growth::ToItsText : Growth::Never, output);
  const bool printsText = !content.empty() && !field.Style.RoomOnly;
  if (printsText && field.Summary == Summary::PageCount)
    pageCountItems_.push_back(output.Band.Items.size() - 1);
}

void BandComposer::Emit(const Label& label, const Output& output) {
  EmitText(label, label.Text, Growth::Never, output);
}

void BandComposer::Emit(const Line& line, const Output& output) {
  Item item = output.Model;
  item.Kind = ItemKind::Line;
  item.Weight = WeightOf(line.Weight);
  output.Band.Items.push_back(item);
}

void BandComposer::Emit(const Shape& shape, const Output& output) {
  Item item = output.Model;
  item.Kind = ItemKind::Box;
  item.Weight = WeightOf(shape.Weight);
  item.Filled = shape.Fill.has_value();
  item.Fill = shape.Fill.value_or(White);
  output.Band.Items.push_back(item);
}

void BandComposer::Emit(const CheckBox& box, const Output& output) {
  Item item = output.Model;
  item.Kind = ItemKind::Tick;
  item.Ticked = box.Value;
  output.Band.Items.push_back(item);
}

void BandComposer::EmitText(const TextControl& text, const std::string& content, Growth growth,
                            const Output& output) {
  if (text.Style.RoomOnly) return;
  if (text.Style.Border || text.Style.Filled) {
    Item box = output.Model;
    box.Kind = ItemKind::Box;
    box.Weight = text.Style.Border ? 1 : 0;
    box.Filled = text.Style.Filled;
    box.Fill = text.Style.Fill;
    output.Band.Items.push_back(box);
  }
  if (content.empty()) return;
  if (Wraps(text, growth)) {
    EmitLines(text, content, output);
  } else {
    EmitOneLine(text, content, output);
  }
}

// Text below the bottom of the box is clipped there.
void BandComposer::EmitLines(const TextControl& text, const std::string& content, const Output& output) {
  Item model = output.Model;
  const float width = WrapWidth(text, output.Left);
  const auto lines = cache_.Lines(content, StyleOf(text), width);
  const float pitch = LinePitch(text.Style.Size);
  const float inset = InsetOf(text, width - WidestOf(lines));
  const float spare = text.Height - pitch * static_cast<float>(lines.size());
  float top = text.Top + std::clamp(spare / 2, 0.0F, DeepestAnchor);
  for (const std::uint32_t piece : lines) {
    const float room = text.Bottom() - top;
    if (room <= FitTolerance) return;
    const float advance = document_.Texts[piece].Advance;
    const bool isTooWide = advance > width + FitTolerance;
    model.Box.Left = output.Left + (isTooWide ? text.Left : AlignedLeft(text, width, advance, inset));
    model.Box.Top = top;
    model.Box.Width = isTooWide ? width : advance;
    model.Box.Height = room + FitTolerance < pitch ? room : pitch;
    EmitPiece(piece, model, output.Band);
    top += pitch;
  }
}

// Text wider than its box runs on into the free room next to it; what then doesn't fit is condensed.
void BandComposer::EmitOneLine(const TextControl& text, const std::string& content, const Output& output) {
  Item model = output.Model;
  const std::uint32_t piece = cache_.OneLine(content, StyleOf(text));
  const float advance = document_.Texts[piece].Advance;
  Rect& line = model.Box;
  line = {text.Left, TopOfOneLine(text), advance, LinePitch(text.Style.Size)};
  if (text.Style.RunsOn || advance <= text.Width + FitTolerance) {
    line.Left = AlignedLeft(text, text.Width, advance, InsetOf(text, text.Width - advance));
  } else {
    const LineRoom room =
        RoomOfLine(text, output.Section, line, output.Band, output.Left, document_.Setup.Width - output.Left);
    if (advance > room.Width() + FitTolerance) line.Width = room.Width();
    line.Left = text.Style.Alignment == Align::Right ? room.Right - line.Width : room.Left;
  }
  line.Left += output.Left;
  EmitPiece(piece, model, output.Band);
}

void BandComposer::EmitPiece(std::uint32_t piece, Item& model, Band& band) const {
  if (document_.Texts[piece].Text.empty()) return;
  model.Source = piece;
  band.Items.push_back(model);
}

float BandComposer::WrapWidth(const TextControl& text, float left) const {
  const float toTheEdge = document_.Setup.Width - left - text.Left - FitTolerance;
  return text.Style.WithinPaper && toTheEdge > 0 ? std::min(text.Width, toTheEdge) : text.Width;
}

float BandComposer::WidestOf(std::span<const std::uint32_t> pieces) const {
  float widest = 0;
  for (const std::uint32_t piece : pieces) widest = std::max(widest, document_.Texts[piece].Advance);
  return widest;
}

void BandComposer::Emit(const Image& image, const Output& output) {
  if (!image.Picture) return;
  Item item = output.Model;
  item.Kind = ItemKind::Picture;
  auto& pictures = document_.Pictures;
  auto found = std::find(pictures.begin(), pictures.end(), image.Picture);
  if (found == pictures.end()) found = pictures.insert(pictures.end(), image.Picture);
  item.Source = static_cast<std::uint32_t>(found - pictures.begin());
  if (image.Placement != Fit::Fill) {
    const float scale = std::min(item.Box.Width / image.Picture->NaturalWidth(),
                                 item.Box.Height / image.Picture->NaturalHeight());
    const float spareWidth = item.Box.Width - image.Picture->NaturalWidth() * scale;
    const float spareHeight = item.Box.Height - image.Picture->NaturalHeight() * scale;
    const bool atTopRight = image.Placement == Fit::KeepTopRight;
    item.Box.Left += atTopRight ? spareWidth : spareWidth / 2;
    item.Box.Top += atTopRight ? 0 : spareHeight / 2;
    item.Box.Width -= spareWidth;
    item.Box.Height -= spareHeight;
  }
  output.Band.Items.push_back(item);
  if (image.AlternateText.empty()) return;
  document_.Structure.Figures.push_back({bandNumber_, item.Control, image.AlternateText});
}

void BandComposer::PatchText(Item& item, const std::string& text) {
  const std::uint32_t piece = cache_.OneLine(text, document_.Texts[item.Source].Style);
  item.Source = piece;
  item.Box.Width = document_.Texts[piece].Advance;
}

}  // namespace tarvis
