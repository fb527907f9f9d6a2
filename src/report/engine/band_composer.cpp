#include "report/engine/band_composer.h"

#include <algorithm>

namespace tarvis {
namespace {

// A bordered cell sets its text this far in from the side that it is aligned to, where there is room.
constexpr float CellInset = 30;
// Text is lowered by half of the spare height, but by no more than this.
constexpr float DeepestAnchor = 46;

const std::string NoText;

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
bool Wraps(const TextControl& text, const Section& section) {
  const bool oneLineOnly = text.Height < 2 * LinePitch(text.Style.Size) - FitTolerance;
  const bool canGrow = text.Kind == ControlKind::Field && section.CanGrow;
  return canGrow || !oneLineOnly;
}

float AlignedLeft(const TextControl& text, float advance) {
  const float spare = text.Width - advance;
  const float inset = text.Style.Border ? std::clamp(spare, 0.0F, CellInset) : 0;
  switch (text.Style.Alignment) {
    case Align::Centre:
      return text.Left + spare / 2;
    case Align::Right:
      return text.Left + spare - inset;
    case Align::Left:
      break;
  }
  return text.Left + inset;
}

void CallEvent(const std::function<void()>& handler) {
  if (handler) handler();
}

}  // namespace

BandComposer::BandComposer(Document& document, const TextMeasurer& measurer)
    : document_(document), cache_(document, measurer) {}

Printing BandComposer::Compose(ActiveReport& report, Section& section, float left, Band& band,
                               const std::function<void()>& beforeAfterPrint) {
  report.LayoutAction = 0;
  CallEvent(section.Format);
  if (report.Unloaded()) return Printing::Dropped;
  if (section.Kind == SectionKind::Detail && report.LayoutAction == 5) return Printing::Skipped;
  const GeometryKeeper keeper(section);
  if (section.CanGrow) Grow(section);
  CallEvent(section.BeforePrint);
  if (report.Unloaded()) return Printing::Dropped;
  band.IsHeader = section.Kind == SectionKind::GroupHeader;
  band.Height = FinalHeight(section);
  EmitControls(section, left, band);
  CallEvent(beforeAfterPrint);
  CallEvent(section.AfterPrint);
  return Printing::Done;
}

void BandComposer::Grow(Section& section) {
  for (const auto& control : section.Controls()) {
    if (control->Kind != ControlKind::Field || !control->Visible) continue;
    auto& field = static_cast<Field&>(*control);
    if (field.Text.empty()) continue;
    const std::size_t lines = cache_.Lines(field.Text, StyleOf(field), field.Width).size();
    const float needed = static_cast<float>(lines) * LinePitch(field.Style.Size);
    if (needed > field.Height + FitTolerance) field.Height = needed;
  }
}

float BandComposer::FinalHeight(const Section& section) const {
  if ((!section.CanGrow && !section.CanShrink) || section.HoldsSubReport()) return section.Height;
  float lowest = 0;
  for (const auto& control : section.Controls()) {
    if (control->Visible && control->Kind != ControlKind::Line) lowest = std::max(lowest, control->Bottom());
  }
  if (!section.CanShrink) return std::max(section.Height, lowest);
  if (!section.CanGrow) return std::min(section.Height, lowest);
  return lowest;
}

void BandComposer::EmitControls(const Section& section, float left, Band& band) {
  ++bandNumber_;
  pageCountItems_.clear();
  for (const auto& control : section.Controls()) {
    // What begins at or below the band's bottom is a leftover of the design; what begins above it prints
    // whole.
    if (!control->Visible || (control->Top >= band.Height && control->Top > 0)) continue;
    Item model;
    model.Control = cache_.Name(control->Name);
    model.Band = bandNumber_;
    model.Box = {control->Left + left, control->Top, control->Width, control->Height};
    switch (control->Kind) {
      case ControlKind::Field:
      case ControlKind::Label:
        EmitText(static_cast<const TextControl&>(*control),
                 Wraps(static_cast<const TextControl&>(*control), section), left, band);
        break;
      case ControlKind::Image:
        EmitImage(static_cast<const Image&>(*control), model, band);
        break;
      case ControlKind::Line:
        model.Kind = ItemKind::Line;
        model.Weight = static_cast<std::uint8_t>(static_cast<const Line&>(*control).Weight);
        band.Items.push_back(model);
        break;
      case ControlKind::Shape: {
        const auto& shape = static_cast<const Shape&>(*control);
        model.Kind = ItemKind::Box;
        model.Weight = static_cast<std::uint8_t>(shape.Weight);
        model.Filled = shape.Filled;
        model.Fill = shape.Fill;
        band.Items.push_back(model);
        break;
      }
      case ControlKind::CheckBox:
        model.Kind = ItemKind::Tick;
        model.Ticked = static_cast<const CheckBox&>(*control).Value;
        band.Items.push_back(model);
        break;
      case ControlKind::SubReport:
        break;
    }
  }
}

const std::string& BandComposer::TextOf(const TextControl& text) const {
  if (text.Kind != ControlKind::Field) return text.Text;
  switch (static_cast<const Field&>(text).Summary) {
    case Summary::PageNumber:
    case Summary::PageCount:  // the number stands in until the total is known
      return pageNumber_;
    case Summary::None:
      break;
  }
  return text.Text;
}

void BandComposer::EmitText(const TextControl& text, bool wraps, float left, Band& band) {
  if (text.Style.RoomOnly) return;
  Item model;
  model.Control = cache_.Name(text.Name);
  model.Band = bandNumber_;
  model.Box = {text.Left + left, text.Top, text.Width, text.Height};
  if (text.Style.Border || text.Style.Filled) {
    model.Kind = ItemKind::Box;
    model.Weight = text.Style.Border ? 1 : 0;
    model.Filled = text.Style.Filled;
    model.Fill = text.Style.Fill;
    band.Items.push_back(model);
  }
  const std::string& content = TextOf(text);
  if (content.empty()) return;
  model = {.Kind = ItemKind::Text, .Control = model.Control, .Band = bandNumber_, .Box = {left, 0, 0, 0}};
  const float pitch = LinePitch(text.Style.Size);
  if (!wraps) {
    const std::uint32_t piece = cache_.OneLine(content, StyleOf(text));
    const float spare = text.Height - pitch;
    EmitLine(text, piece, text.Top + (spare < 0 ? spare : std::min(spare / 2, DeepestAnchor)), model, band);
  } else {
    const auto lines = cache_.Lines(content, StyleOf(text), text.Width);
    const float spare = text.Height - pitch * static_cast<float>(lines.size());
    float top = text.Top + std::clamp(spare / 2, 0.0F, DeepestAnchor);
    for (const std::uint32_t piece : lines) {
      EmitLine(text, piece, top, model, band);
      top += pitch;
    }
  }
  if (text.Kind == ControlKind::Field && static_cast<const Field&>(text).Summary == Summary::PageCount) {
    pageCountItems_.push_back(band.Items.size() - 1);
  }
}

void BandComposer::EmitLine(const TextControl& text, std::uint32_t piece, float top, const Item& model,
                            Band& band) const {
  const TextPiece& printed = document_.Texts[piece];
  if (printed.Text.empty()) return;
  const bool condensed = !text.Style.RunsOn && printed.Advance > text.Width + FitTolerance;
  Item item = model;
  item.Source = piece;
  item.Box.Left += condensed ? text.Left : AlignedLeft(text, printed.Advance);
  item.Box.Top = top;
  item.Box.Width = condensed ? text.Width : printed.Advance;
  item.Box.Height = LinePitch(text.Style.Size);
  band.Items.push_back(item);
}

void BandComposer::EmitImage(const Image& image, const Item& model, Band& band) {
  if (!image.Picture) return;
  Item item = model;
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
  band.Items.push_back(item);
}

void BandComposer::PatchText(Item& item, const std::string& text) {
  const std::uint32_t piece = cache_.OneLine(text, document_.Texts[item.Source].Style);
  item.Source = piece;
  item.Box.Width = document_.Texts[piece].Advance;
}

}  // namespace tarvis
