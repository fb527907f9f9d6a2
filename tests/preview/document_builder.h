// Small composed documents made by hand, as the composer would leave them.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "report/engine/document.h"

namespace tarvis {

class DocumentBuilder {
 public:
  explicit DocumentBuilder(const std::string& title = "Parameter List");

  // A4 unless set otherwise.
  DocumentBuilder& Paper(float width, float height);
  // Of the texts that follow, for their fonts.
  DocumentBuilder& CodePage(int number);
  DocumentBuilder& Page();
  // A table row: bordered cells of equal width, one text each. A new band.
  DocumentBuilder& Row(const std::vector<std::string>& cells, float top, float height = 283,
                       float cellWidth = 1700);
  // The same, the rightmost cell first in layout order.
  DocumentBuilder& RowFromRight(const std::vector<std::string>& cells, float top);
  // A row of three cells with several lines each.
  DocumentBuilder& WrappedRow(const std::vector<std::string>& first, const std::vector<std::string>& second,
                              const std::vector<std::string>& third, float top);
  // Lines of one control in a new band.
  DocumentBuilder& Lines(const std::vector<std::string>& lines, float left, float top);
  // Text on its own in a new band, in its natural width.
  DocumentBuilder& Text(const std::string& text, float left, float top, float size = 8.5F, bool bold = false);
  // The same, printed `width` wide.
  DocumentBuilder& NarrowText(const std::string& text, float left, float top, float width);
  DocumentBuilder& Box(const Rect& box, Color fill, std::uint8_t weight = 1);
  DocumentBuilder& Line(const Rect& line, std::uint8_t weight = 1);
  DocumentBuilder& Tick(const Rect& box, bool ticked);
  DocumentBuilder& Picture(PicturePtr picture, const Rect& box);
  DocumentBuilder& Entry(const std::string& text, int level, int page, float top);
  // `count` pages of a parameter table, 48 rows of 5 cells each.
  DocumentBuilder& TablePages(int count);

  std::shared_ptr<const Document> Build();
  const Document& Peek() const { return *document_; }

 private:
  void Cell(std::size_t column, const std::vector<std::string>& lines, const Rect& box);
  Item& Add(ItemKind kind, const Rect& box);
  std::uint32_t Piece(const std::string& text, float size, bool bold);

  std::shared_ptr<Document> document_ = std::make_shared<Document>();
  std::map<std::pair<std::string, std::uint16_t>, std::uint32_t> pieces_;
  std::uint32_t band_ = 0;
  std::uint16_t control_ = 0;
};

}  // namespace tarvis
