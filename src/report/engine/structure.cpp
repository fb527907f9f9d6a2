#include "report/engine/structure.h"

#include <algorithm>

namespace tarvis {
namespace {

bool IsCell(const BandPart& part) {
  return part.Within == part.Control;
}

bool SpansLines(const TableCell& cell) {
  return cell.Part->SpansLines;
}

// The cells of each line that has any; parts come line by line. A cell that is beside lines that follow needs
// one that it is beside, so a line that has only such cells is one with the next.
std::vector<TableLine> CellsByLine(std::span<const BandPart> parts) {
  std::vector<TableLine> lines;
  int line = -1;
  for (const BandPart& part : parts) {
    if (!IsCell(part)) continue;
    const bool isOpen = !lines.empty() && std::ranges::all_of(lines.back(), SpansLines);
    if (part.Line != line && !isOpen) lines.emplace_back();
    line = part.Line;
    lines.back().push_back({.Part = &part, .Columns = part.Columns});
  }
  return lines;
}

int Width(const TableLine& line) {
  int columns = 0;
  for (const TableCell& cell : line) columns += cell.Columns;
  return columns;
}

// The columns of each line that cells of the lines above it take.
std::vector<int> TakenFromAbove(const std::vector<TableLine>& lines) {
  std::vector<int> taken;
  int columns = 0;
  for (const TableLine& line : lines) {
    taken.push_back(columns);
    for (const TableCell& cell : line) {
      if (cell.Part->SpansLines) columns += cell.Columns;
    }
  }
  return taken;
}

// The cell that takes the columns that are left. One that is beside lines below must not, since it would take
// them from these, too.
TableCell& WidenedCell(TableLine& line) {
  const auto last = std::ranges::find_if_not(line.rbegin(), line.rend(), SpansLines);
  return last == line.rend() ? line.back() : *last;
}

}  // namespace

const std::string* DocumentStructure::FigureTextOf(std::uint32_t band, std::uint16_t control) const {
  auto figure = std::ranges::lower_bound(Figures, band, {}, &FigureText::Band);
  for (; figure != Figures.end() && figure->Band == band; ++figure) {
    if (figure->Control == control) return &figure->Text;
  }
  return nullptr;
}

int ColumnsOf(std::span<const BandPart> parts) {
  const std::vector<TableLine> lines = CellsByLine(parts);
  const std::vector<int> taken = TakenFromAbove(lines);
  int widest = 0;
  for (std::size_t line = 0; line < lines.size(); ++line)
    widest = std::max(widest, taken[line] + Width(lines[line]));
  return widest;
}

std::vector<TableLine> TableLinesOf(const DocumentStructure& structure, const BandLayout& layout) {
  std::vector<TableLine> lines = CellsByLine(structure.PartsOf(layout));
  const std::vector<int> taken = TakenFromAbove(lines);
  const int columns = structure.Tables[layout.Table].Columns;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    WidenedCell(lines[line]).Columns += columns - taken[line] - Width(lines[line]);
    for (TableCell& cell : lines[line]) {
      if (cell.Part->SpansLines) cell.Lines = static_cast<int>(lines.size() - line);
    }
  }
  return lines;
}

}  // namespace tarvis
