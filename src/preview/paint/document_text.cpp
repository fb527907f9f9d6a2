#include "preview/paint/document_text.h"

#include <algorithm>
#include <cassert>
#include <span>

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

using Cells = std::span<const Cell*>;

// Sorts by an edge of the cells, which mostly are in order.
void SortBy(float Rect::*edge, Cells cells) {
  const auto edgeOf = [edge](const Cell* cell) { return cell->Place.*edge; };
  if (!std::ranges::is_sorted(cells, {}, edgeOf)) std::ranges::stable_sort(cells, {}, edgeOf);
}

// Sorts into rows; returns the cells of each.
std::vector<Cells> SortIntoRows(Cells cells) {
  SortBy(&Rect::Top, cells);
  std::vector<Cells> rows;
  while (!cells.empty()) {
    const float top = cells.front()->Place.Top;
    const auto end = std::ranges::find_if(
        cells, [top](const Cell* cell) { return cell->Place.Top - top >= RowTolerance; });
    const auto count = static_cast<std::size_t>(end - cells.begin());
    rows.push_back(cells.first(count));
    SortBy(&Rect::Left, rows.back());
    cells = cells.subspan(count);
  }
  return rows;
}

void ReadRow(Cells cells, PageText& text) {
  bool rowOpen = false;
  std::uint16_t empty = 0;
  for (const Cell* cell : cells) {
    if (cell->Lines.empty()) ++empty;
    for (std::size_t line = 0; line < cell->Lines.size(); ++line) {
      const bool alone = cells.size() == 1;
      Join join = alone ? Join::Break : Join::Wrap;
      if (line == 0) join = rowOpen ? Join::Cell : Join::Line;
      text.Pieces.push_back({cell->Lines[line], line == 0 ? empty : std::uint16_t{0}, join, -1});
      rowOpen = true;
      empty = 0;
    }
  }
}

void ReadBand(std::vector<Cell>& cells, PageText& text) {
  std::vector<const Cell*> kept;
  for (const Cell& cell : cells) {
    if (!IsFrame(cell, cells)) kept.push_back(&cell);
  }
  for (const Cells row : SortIntoRows(kept)) ReadRow(row, text);
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
