#include "preview/paint/document_text.h"

#include <algorithm>
#include <cassert>

namespace tarvis {
namespace {

// Tops of cells that belong to one row differ by less than this (twips).
constexpr float RowTolerance = 100;

struct Cell {
  std::uint16_t Control = 0;
  Rect Place;
  std::vector<std::uint32_t> Lines;  // items that are read: texts, and ticks, which are read as a word
};

Cell& CellOf(std::vector<Cell>& cells, const Item& item) {
  // A control's items follow each other, so the last cells are compared first.
  for (std::size_t index = cells.size(); index-- > 0;) {
    if (cells[index].Control == item.Control) return cells[index];
  }
  cells.push_back({item.Control, item.Box, {}});
  return cells.back();
}

void AddItem(std::vector<Cell>& cells, const Item& item, std::uint32_t index) {
  const bool isRead = item.Kind == ItemKind::Text || item.Kind == ItemKind::Tick;
  if (isRead) CellOf(cells, item).Lines.push_back(index);
  if (item.Kind == ItemKind::Box && item.Weight > 0) CellOf(cells, item).Place = item.Box;
}

// A frame around other cells is not a cell itself.
bool IsFrame(const Cell& cell, const std::vector<Cell>& cells) {
  if (!cell.Lines.empty()) return false;
  return std::any_of(cells.begin(), cells.end(), [&](const Cell& other) {
    const float x = other.Place.Left + other.Place.Width / 2;
    const float y = other.Place.Top + other.Place.Height / 2;
    return &other != &cell && x > cell.Place.Left && x < cell.Place.Right() && y > cell.Place.Top &&
           y < cell.Place.Bottom();
  });
}

// Sorts into rows; returns where each row starts.
std::vector<std::size_t> SortIntoRows(std::vector<Cell>& cells) {
  std::stable_sort(cells.begin(), cells.end(),
                   [](const Cell& a, const Cell& b) { return a.Place.Top < b.Place.Top; });
  std::vector<std::size_t> starts;
  for (std::size_t index = 0; index < cells.size(); ++index) {
    if (starts.empty() || cells[index].Place.Top - cells[starts.back()].Place.Top >= RowTolerance) {
      starts.push_back(index);
    }
  }
  starts.push_back(cells.size());
  for (std::size_t row = 0; row + 1 < starts.size(); ++row) {
    std::stable_sort(cells.begin() + static_cast<std::ptrdiff_t>(starts[row]),
                     cells.begin() + static_cast<std::ptrdiff_t>(starts[row + 1]),
                     [](const Cell& a, const Cell& b) { return a.Place.Left < b.Place.Left; });
  }
  return starts;
}

void ReadRow(const Cell* first, const Cell* end, PageText& text) {
  bool rowOpen = false;
  std::uint16_t empty = 0;
  for (const Cell* cell = first; cell != end; ++cell) {
    if (cell->Lines.empty()) ++empty;
    for (std::size_t line = 0; line < cell->Lines.size(); ++line) {
      const bool alone = end - first == 1;
      Join join = alone ? Join::Break : Join::Wrap;
      if (line == 0) join = rowOpen ? Join::Cell : Join::Line;
      text.Pieces.push_back({cell->Lines[line], line == 0 ? empty : std::uint16_t{0}, join, -1});
      rowOpen = true;
      empty = 0;
    }
  }
}

void ReadBand(std::vector<Cell>& cells, PageText& text) {
  std::vector<Cell> kept;
  for (const Cell& cell : cells) {
    if (!IsFrame(cell, cells)) kept.push_back(cell);
  }
  const std::vector<std::size_t> starts = SortIntoRows(kept);
  for (std::size_t row = 0; row + 1 < starts.size(); ++row) {
    ReadRow(kept.data() + starts[row], kept.data() + starts[row + 1], text);
  }
  cells.clear();
}

// Texts of a picture follow the band that contains it.
void ReadPicture(const Document& document, std::uint32_t index, PageText& text) {
  const PicturePtr& picture = document.Pictures[document.Items[index].Source];
  if (picture == nullptr) return;
  for (std::size_t number = 0; number < picture->Texts().size(); ++number)
    text.Pieces.push_back({index, 0, Join::Line, static_cast<std::int32_t>(number)});
}

}  // namespace

PageText ReadPage(const Document& document, std::size_t page) {
  PageText text;
  std::vector<Cell> cells;
  std::vector<std::uint32_t> pictures;
  const auto endBand = [&] {
    ReadBand(cells, text);
    for (const std::uint32_t picture : pictures) ReadPicture(document, picture, text);
    pictures.clear();
  };
  assert(page < document.Pages.size());
  const tarvis::Page& range = document.Pages[page];
  std::uint32_t band = 0;
  for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
    const Item& item = document.Items[index];
    if (item.Band != band) endBand();
    band = item.Band;
    AddItem(cells, item, index);
    if (item.Kind == ItemKind::Picture) pictures.push_back(index);
  }
  endBand();
  return text;
}

const PageText& DocumentText::Page(int page) {
  assert(page >= 0 && static_cast<std::size_t>(page) < pages_.size());
  Entry& entry = pages_[static_cast<std::size_t>(page)];
  if (!entry.Known) {
    entry.Text = ReadPage(document_, static_cast<std::size_t>(page));
    entry.Known = true;
  }
  return entry.Text;
}

}  // namespace tarvis
