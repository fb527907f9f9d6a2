#include "preview/document_builder.h"

#include <algorithm>

#include "preview/paint/text_run.h"

namespace tarvis {

DocumentBuilder::DocumentBuilder(const std::string& title) {
  document_->Title = title;
  for (const char* name : {"first", "second", "third", "fourth", "fifth", "sixth", "seventh", "eighth"}) {
    document_->Names.emplace_back(name);
  }
}

DocumentBuilder& DocumentBuilder::Paper(float width, float height) {
  document_->Setup.Width = width;
  document_->Setup.Height = height;
  return *this;
}

DocumentBuilder& DocumentBuilder::CodePage(int number) {
  document_->CodePage = number;
  return *this;
}

DocumentBuilder& DocumentBuilder::Page() {
  document_->Pages.push_back({static_cast<std::uint32_t>(document_->Items.size()), 0});
  return *this;
}

Item& DocumentBuilder::Add(ItemKind kind, const Rect& box) {
  if (document_->Pages.empty()) Page();
  Item item;
  item.Kind = kind;
  item.Box = box;
  item.Band = band_;
  item.Control = control_;
  document_->Items.push_back(item);
  ++document_->Pages.back().ItemCount;
  return document_->Items.back();
}

std::uint32_t DocumentBuilder::Piece(const std::string& text, float size, bool bold) {
  const TextStyle style{size, bold};
  auto known = std::find(document_->Styles.begin(), document_->Styles.end(), style);
  const auto number = static_cast<std::uint16_t>(known - document_->Styles.begin());
  if (known == document_->Styles.end()) document_->Styles.push_back(style);
  const auto [place, isNew] =
      pieces_.try_emplace({text, number}, static_cast<std::uint32_t>(document_->Texts.size()));
  if (isNew) {
    document_->Storage.push_back(text);
    ReportFont& font = ReportFont::OfThisThread(document_->CodePage);
    const TextFlow flow = FlowOf(text);
    const float advance = flow == TextFlow::Plain
                              ? CharacterEdges(text, size, bold, font).back()
                              : ShapedAdvance(text, bold, flow, font) * size * TwipsPerPoint;
    document_->Texts.push_back(
        {.Text = document_->Storage.back(), .Style = number, .Flow = flow, .Advance = advance});
  }
  return place->second;
}

void DocumentBuilder::Cell(std::size_t column, const std::vector<std::string>& lines, const Rect& box) {
  control_ = static_cast<std::uint16_t>(column);
  Item& frame = Add(ItemKind::Box, box);
  frame.Weight = 1;
  frame.Filled = true;
  float top = box.Top + 46;
  for (const std::string& line : lines) {
    const std::uint32_t piece = Piece(line, 8.5F, false);
    const float width = std::min(document_->Texts[piece].Advance, box.Width);
    if (!line.empty()) Add(ItemKind::Text, {box.Left + 30, top, width, 190}).Source = piece;
    top += 190;
  }
}

DocumentBuilder& DocumentBuilder::Row(const std::vector<std::string>& cells, float top, float height,
                                      float cellWidth) {
  ++band_;
  for (std::size_t index = 0; index < cells.size(); ++index) {
    Cell(index, {cells[index]}, {1440 + static_cast<float>(index) * cellWidth, top, cellWidth, height});
  }
  return *this;
}

DocumentBuilder& DocumentBuilder::RowFromRight(const std::vector<std::string>& cells, float top) {
  ++band_;
  for (std::size_t index = cells.size(); index-- > 0;) {
    Cell(index, {cells[index]}, {1440 + static_cast<float>(index) * 1700, top, 1700, 283});
  }
  return *this;
}

DocumentBuilder& DocumentBuilder::WrappedRow(const std::vector<std::string>& first,
                                             const std::vector<std::string>& second,
                                             const std::vector<std::string>& third, float top) {
  ++band_;
  Cell(0, first, {1440, top, 1700, 475});
  Cell(1, second, {3140, top, 1700, 475});
  Cell(2, third, {4840, top, 1700, 475});
  return *this;
}

DocumentBuilder& DocumentBuilder::Lines(const std::vector<std::string>& lines, float left, float top) {
  ++band_;
  control_ = 0;
  for (const std::string& line : lines) {
    const std::uint32_t piece = Piece(line, 8.5F, false);
    Add(ItemKind::Text, {left, top, document_->Texts[piece].Advance, 190}).Source = piece;
    top += 190;
  }
  return *this;
}

DocumentBuilder& DocumentBuilder::Text(const std::string& text, float left, float top, float size,
                                       bool bold) {
  ++band_;
  control_ = 0;
  const std::uint32_t piece = Piece(text, size, bold);
  Add(ItemKind::Text, {left, top, document_->Texts[piece].Advance, size * 22.34F}).Source = piece;
  return *this;
}

DocumentBuilder& DocumentBuilder::NarrowText(const std::string& text, float left, float top, float width) {
  ++band_;
  control_ = 0;
  const std::uint32_t piece = Piece(text, 8.5F, false);
  Add(ItemKind::Text, {left, top, width, 190}).Source = piece;
  return *this;
}

DocumentBuilder& DocumentBuilder::Box(const Rect& box, Color fill, std::uint8_t weight) {
  Item& item = Add(ItemKind::Box, box);
  item.Filled = true;
  item.Fill = fill;
  item.Weight = weight;
  return *this;
}

DocumentBuilder& DocumentBuilder::Line(const Rect& line, std::uint8_t weight) {
  Add(ItemKind::Line, line).Weight = weight;
  return *this;
}

DocumentBuilder& DocumentBuilder::Tick(const Rect& box, bool ticked) {
  ++control_;
  Add(ItemKind::Tick, box).Ticked = ticked;
  return *this;
}

DocumentBuilder& DocumentBuilder::Picture(PicturePtr picture, const Rect& box) {
  document_->Pictures.push_back(std::move(picture));
  Add(ItemKind::Picture, box).Source = static_cast<std::uint32_t>(document_->Pictures.size() - 1);
  return *this;
}

DocumentBuilder& DocumentBuilder::Entry(const std::string& text, int level, int page, float top) {
  document_->Contents.push_back({text, level, page, top, 630});
  return *this;
}

DocumentBuilder& DocumentBuilder::TablePages(int count) {
  for (int page = 0; page < count; ++page) {
    Page();
    for (int row = 0; row < 48; ++row) {
      const std::string number = std::to_string(page * 48 + row);
      Row({"Pn" + number, "Speed Loop Gain " + number, std::to_string(page * 7 + row * 13) + ".5", "Hz",
           "40.0"},
          720 + static_cast<float>(row) * 293);
    }
    Text("Page " + std::to_string(page + 1) + " / " + std::to_string(count), 8810, 15773);
  }
  return *this;
}

// All bands are paragraphs of one report.
std::shared_ptr<const Document> DocumentBuilder::Build() {
  DocumentStructure& structure = document_->Structure;
  structure = {};
  structure.Runs.push_back({"built", 0});
  BandLayout layout;
  layout.Section = "band";
  layout.PartCount = static_cast<std::uint32_t>(document_->Names.size());
  structure.Layouts.push_back(layout);
  for (std::uint16_t control = 0; control < layout.PartCount; ++control)
    structure.Parts.push_back({control, control, PartRole::Paragraph});
  structure.Bands.assign(band_ + 1, 0);
  return document_;
}

}  // namespace tarvis
