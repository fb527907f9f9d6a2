#include "report/engine/structure_recorder.h"

#include <algorithm>

namespace tarvis {
namespace {

PartRole UsualRole(const Section& section) {
  switch (section.Role) {
    case BandRole::HeaderRow:
      return PartRole::ColumnHeader;
    case BandRole::Row:
      return PartRole::Cell;
    case BandRole::Text:
      return PartRole::Paragraph;
    case BandRole::PageHeader:
    case BandRole::PageFooter:
      break;
  }
  return PartRole::None;
}

struct UsualRoleOf {
  const Section& Of;

  PartRole operator()(const TextControl* text) const {
    return text->Style.RoomOnly ? PartRole::None : UsualRole(Of);
  }
  PartRole operator()(const Image* /*image*/) const { return PartRole::Picture; }
  PartRole operator()(const CheckBox* /*box*/) const { return PartRole::Tick; }
  PartRole operator()(const Line* /*line*/) const { return PartRole::None; }
  PartRole operator()(const Shape* /*shape*/) const { return PartRole::None; }
  PartRole operator()(const SubReport* /*subReport*/) const { return PartRole::None; }
};

PartRole RoleOf(const Section& section, const Control& control) {
  if (UsualRole(section) == PartRole::None) return PartRole::None;
  return control.Reads.As ? *control.Reads.As : std::visit(UsualRoleOf{section}, control.Self());
}

}  // namespace

StructureRecorder::StructureRecorder(DocumentStructure& structure, TextCache& names)
    : structure_(structure), names_(names) {
  structure_.Bands.push_back(0);
}

std::uint32_t StructureRecorder::BeginRun(const char* report, std::uint32_t parent) {
  structure_.Runs.push_back({report, parent});
  tables_.push_back(NoTable);
  return static_cast<std::uint32_t>(structure_.Runs.size() - 1);
}

void StructureRecorder::AddBand(const Section& section, const std::vector<std::uint16_t>& shown,
                                const BandOrigin& origin) {
  KnownSection& known = sections_[&section];
  if (known.Run != origin.Run) known = {origin.Run, NoTable, {}};
  auto layout = std::ranges::find_if(known.Layouts, [&](const KnownLayout& other) {
    return other.IsRepeated == origin.IsRepeated && other.Shown == shown;
  });
  if (layout == known.Layouts.end())
    layout =
        known.Layouts.insert(layout, {NewLayout(section, shown, origin, known), origin.IsRepeated, shown});
  structure_.Bands.push_back(layout->Layout);
}

std::uint32_t StructureRecorder::NewLayout(const Section& section, const std::vector<std::uint16_t>& shown,
                                           const BandOrigin& origin, KnownSection& known) {
  BandLayout layout;
  layout.Section = section.Name;
  layout.Run = origin.Run;
  layout.Role = section.Role;
  layout.IsRepeated = origin.IsRepeated;
  layout.FirstPart = static_cast<std::uint32_t>(structure_.Parts.size());
  AddParts(section, shown);
  layout.PartCount = static_cast<std::uint32_t>(structure_.Parts.size()) - layout.FirstPart;
  if (IsRow(layout) && layout.PartCount > 0) {
    if (known.Table == NoTable) known.Table = TableOf(section.Role, origin.Run);
    layout.Table = known.Table;
    std::uint16_t& columns = structure_.Tables[layout.Table].Columns;
    columns = std::max(columns, static_cast<std::uint16_t>(ColumnsOf(structure_.PartsOf(layout))));
  }
  structure_.Layouts.push_back(layout);
  return static_cast<std::uint32_t>(structure_.Layouts.size() - 1);
}

void StructureRecorder::AddParts(const Section& section, const std::vector<std::uint16_t>& shown) {
  const auto first = static_cast<std::ptrdiff_t>(structure_.Parts.size());
  for (const std::uint16_t index : shown) {
    const Control& control = *section.Controls()[index];
    BandPart part;
    part.Role = RoleOf(section, control);
    if (part.Role == PartRole::None) continue;
    const Reading& reads = control.Reads;
    part.Control = names_.Name(control.Name);
    part.Within = reads.Within == nullptr ? part.Control : names_.Name(reads.Within->Name);
    part.Line = reads.Line;
    part.Columns = reads.Columns;
    part.SpansLines = reads.SpansLines;
    structure_.Parts.push_back(part);
  }
  std::stable_sort(structure_.Parts.begin() + first, structure_.Parts.end(),
                   [](const BandPart& a, const BandPart& b) { return a.Line < b.Line; });
}

// A header row begins a table; rows belong to the table that their report began last.
std::uint32_t StructureRecorder::TableOf(BandRole role, std::uint32_t run) {
  std::uint32_t& table = tables_[run];
  if (role == BandRole::HeaderRow || table == NoTable) {
    table = static_cast<std::uint32_t>(structure_.Tables.size());
    structure_.Tables.emplace_back();
  }
  return table;
}

}  // namespace tarvis
