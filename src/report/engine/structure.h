// What the texts and pictures of a document are to those who can't see its pages: headings, tables,
// paragraphs, figures. The composer records it beside the items, as plain data of four bytes a band.
//
//   Item.Band ──> Bands ──> Layouts ──> Runs      which printing of which report
//                              ├──> Tables
//                              └──> Parts         what each control of the section is
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tarvis {

// What a section is. Page headers and footers are not read.
enum class BandRole : std::uint8_t { PageHeader, PageFooter, Text, HeaderRow, Row };

// What a control is. `None` is not read.
enum class PartRole : std::uint8_t {
  None,
  Paragraph,
  Heading,
  Subheading,
  ColumnHeader,
  RowHeader,
  Cell,
  Picture,  // read by its text among `Figures`; not read if there is none
  Tick
};

struct BandPart {
  std::uint16_t Control = 0;  // index of Document::Names
  std::uint16_t Within = 0;   // the cell in which it shows; its own control if it shows by itself
  PartRole Role = PartRole::None;
  std::uint8_t Line = 0;     // of the lines of its band
  std::uint8_t Columns = 1;  // of the table, that it takes at least
  bool SpansLines = false;   // it is beside all lines of its band that follow
};

inline constexpr std::uint32_t NoTable = 0xFFFFFFFF;

// A section as it printed with some of its controls; bands that printed alike share it.
struct BandLayout {
  const char* Section = nullptr;  // static storage
  std::uint32_t Run = 0;          // index of Runs
  std::uint32_t Table = NoTable;  // index of Tables; of rows only
  std::uint32_t FirstPart = 0;    // parts in the order in which they are read
  std::uint32_t PartCount = 0;
  BandRole Role = BandRole::Text;
  bool IsRepeated = false;  // printed again at the head of a page
};

struct TableShape {
  std::uint16_t Columns = 0;
};

// One run of a report, from its start to its end.
struct RunRecord {
  const char* Name = nullptr;  // static storage
  std::uint32_t Parent = 0;    // the run around it; the outermost one is its own parent
};

struct FigureText {
  std::uint32_t Band = 0;
  std::uint16_t Control = 0;
  std::string Text;  // UTF-8
};

struct DocumentStructure {
  std::vector<std::uint32_t> Bands;  // index of Layouts, by Item::Band; the first one is of no band
  std::vector<BandLayout> Layouts;
  std::vector<BandPart> Parts;
  std::vector<TableShape> Tables;
  std::vector<RunRecord> Runs;
  std::vector<FigureText> Figures;  // by band

  const BandLayout& LayoutOf(std::uint32_t band) const { return Layouts[Bands[band]]; }
  std::span<const BandPart> PartsOf(const BandLayout& layout) const {
    return std::span(Parts).subspan(layout.FirstPart, layout.PartCount);
  }
  // The text of a picture; nullptr for one that is decoration.
  const std::string* FigureTextOf(std::uint32_t band, std::uint16_t control) const;
};

inline bool IsRow(const BandLayout& layout) {
  return layout.Role == BandRole::HeaderRow || layout.Role == BandRole::Row;
}

struct TableCell {
  const BandPart* Part = nullptr;
  int Columns = 0;
  int Lines = 1;
};
using TableLine = std::vector<TableCell>;

// The rows of a table that a band of this layout prints, each as wide as the table: the last cell of a line
// that has too few takes the columns that are left, or the last one that isn't beside other lines.
[[nodiscard]] std::vector<TableLine> TableLinesOf(const DocumentStructure& structure,
                                                  const BandLayout& layout);
// The columns that the widest line needs.
[[nodiscard]] int ColumnsOf(std::span<const BandPart> parts);

}  // namespace tarvis
