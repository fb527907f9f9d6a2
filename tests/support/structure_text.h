// What a document says of its structure, as text that a reviewer can read: each band once, in the order of
// the pages.
#pragma once

#include <map>
#include <set>
#include <string>

#include "report/engine/document.h"

namespace tarvis {

class StructureText {
 public:
  explicit StructureText(const Document& document) : document_(document), structure_(document.Structure) {
    for (const Item& item : document.Items) AddItem(item);
  }

  std::string Write() {
    std::set<std::uint32_t> written;
    for (const Item& item : document_.Items) {
      if (written.insert(item.Band).second) WriteBand(item.Band);
    }
    return text_;
  }

 private:
  using Control = std::pair<std::uint32_t, std::uint16_t>;  // of a band

  static const char* NameOf(PartRole role) {
    static const std::map<PartRole, const char*> Names{
        {PartRole::Paragraph, "text"},         {PartRole::Heading, "heading"},
        {PartRole::Subheading, "subheading"},  {PartRole::ColumnHeader, "column"},
        {PartRole::RowHeader, "row's header"}, {PartRole::Cell, "cell"},
        {PartRole::Picture, "picture"},        {PartRole::Tick, "tick"}};
    return Names.at(role);
  }

  void AddItem(const Item& item) {
    std::string& said = said_[{item.Band, item.Control}];
    if (item.Kind == ItemKind::Tick) said += item.Ticked ? "selected" : "not selected";
    if (item.Kind == ItemKind::Picture) {
      const std::string* text = structure_.FigureTextOf(item.Band, item.Control);
      if (text != nullptr) said += *text;
    }
    if (item.Kind != ItemKind::Text) return;
    if (!said.empty()) said += " / ";
    said += document_.Texts[item.Source].Text;
  }

  void WriteBand(std::uint32_t band) {
    const BandLayout& layout = structure_.LayoutOf(band);
    const RunRecord& run = structure_.Runs[layout.Run];
    text_ += std::string(run.Name) + "." + layout.Section + (layout.IsRepeated ? " again" : "");
    if (layout.Table != NoTable) text_ += " in table " + std::to_string(layout.Table);
    text_ += "\n";
    if (layout.Table != NoTable) return WriteLines(band, layout);
    for (const BandPart& part : structure_.PartsOf(layout)) {
      const std::string& said = said_[{band, part.Control}];
      if (!said.empty()) text_ += std::string("  ") + NameOf(part.Role) + " '" + said + "'\n";
    }
  }

  void WriteLines(std::uint32_t band, const BandLayout& layout) {
    for (const TableLine& line : TableLinesOf(structure_, layout)) {
      text_ += " ";
      for (const TableCell& cell : line) {
        text_ += std::string(" ") + NameOf(cell.Part->Role);
        if (cell.Columns > 1) text_ += " of " + std::to_string(cell.Columns) + " columns";
        if (cell.Lines > 1) text_ += " of " + std::to_string(cell.Lines) + " rows";
        text_ += " '" + said_[{band, cell.Part->Control}] + InnerOf(band, layout, *cell.Part) + "'";
      }
      text_ += "\n";
    }
  }

  std::string InnerOf(std::uint32_t band, const BandLayout& layout, const BandPart& cell) {
    std::string inner;
    for (const BandPart& part : structure_.PartsOf(layout)) {
      if (part.Within != cell.Control || part.Control == cell.Control) continue;
      const std::string& said = said_[{band, part.Control}];
      if (!said.empty()) inner += std::string(" [") + NameOf(part.Role) + " " + said + "]";
    }
    return inner;
  }

  const Document& document_;
  const DocumentStructure& structure_;
  std::map<Control, std::string> said_;
  std::string text_;
};

inline std::string StructureOf(const Document& document) {
  return StructureText(document).Write();
}

}  // namespace tarvis
