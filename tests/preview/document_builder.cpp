#include "preview/document_builder.h"

#include <algorithm>

#include "preview/text_run.h"

namespace tarvis {

DocumentBuilder::DocumentBuilder(const std::string& title) {
  document_->Title = title;
  for (const char* name : {"first", "second", "third", "fourth", "fifth", "sixth", "seventh", "eighth"}) {
    document_->Names.push_back(name);
  }
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
  const TextStyle style{size, bold, Black};
  auto known = std::find(document_->Styles.begin(), document_->Styles.end(), style);
  const auto number = static_cast<std::uint16_t>(known - document_->Styles.begin());
  if (known == document_->Styles.end()) document_->Styles.push_back(style);
  const auto [place, isNew] =
      pieces_.try_emplace({text, number}, static_cast<std::uint32_t>(document_->Texts.size()));
  if (isNew) {
    document_->Storage.push_back(text);
    const float advance = CharacterEdges(text, size, bold, ReportFont::OfThisThread()).back();
    document_->Texts.push_back({document_->Storage.back(), number, advance});
  }
  return place->second;
}

DocumentBuilder& DocumentBuilder::Row(const std::vector<std::string>& cells, float top, float height,
                                      float cellWidth) {
  ++band_;
  for (std::size_t index = 0; index < cells.size(); ++index) {
    control_ = static_cast<std::uint16_t>(index);
    const float left = 1440 + static_cast<float>(index) * cellWidth;
    Item& box = Add(ItemKind::Box, {left, top, cellWidth, height});
    box.Weight = 1;
    box.Filled = true;
    if (cells[index].empty()) continue;
    const std::uint32_t piece = Piece(cells[index], 8.5F, false);
    const float width = std::min(document_->Texts[piece].Advance, cellWidth);
    Add(ItemKind::Text, {left + 30, top + 46, width, 190}).Source = piece;
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

std::shared_ptr<const Document> DocumentBuilder::Build() {
  return document_;
}

}  // namespace tarvis
