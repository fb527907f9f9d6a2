#include "preview/output/pdf_structure.h"

#include <algorithm>
#include <array>
#include <map>
#include <unordered_map>

#include "preview/paint/page_items.h"

namespace tarvis {
namespace {

// The words that are also copied for a tick.
constexpr const char* Ticked = "selected";
constexpr const char* NotTicked = "not selected";

// The lowest level of headings that the format knows.
constexpr int LowestLevel = 6;

const char* HeadingOfLevel(int level) {
  constexpr std::array<const char*, LowestLevel> Types{"/H1", "/H2", "/H3", "/H4", "/H5", "/H6"};
  return Types[static_cast<std::size_t>(std::clamp(level, 1, LowestLevel) - 1)];
}

HeaderScope ScopeOf(PartRole role) {
  if (role == PartRole::ColumnHeader) return HeaderScope::Column;
  return role == PartRole::RowHeader ? HeaderScope::Row : HeaderScope::None;
}

// The elements of one copy of the document.
class CopyOfStructure {
 public:
  CopyOfStructure(StructureElements& elements, const PdfTagPlan& plan, const PdfSheets& sheets,
                  ElementId root)
      : elements_(elements),
        plan_(plan),
        document_(plan.Source()),
        structure_(document_.Structure),
        sheets_(sheets),
        runs_(structure_.Runs.size(), NoElement),
        hasHeading_(structure_.Runs.size(), false),
        tables_(structure_.Tables.size(), NoElement) {
    runs_.front() = root;
  }

  // Pages come in the order of the document.
  void AddPage(StructureSheet& sheet, const std::vector<PdfMark>& marks) {
    sheet_ = &sheet;
    marks_ = &marks;
    std::unordered_map<std::uint32_t, std::vector<int>> marksOfBands;
    for (std::size_t number = 0; number < marks.size(); ++number)
      marksOfBands[marks[number].Band].push_back(static_cast<int>(number));
    sheet.Parents.assign(marks.size(), NoElement);
    std::unordered_map<std::uint32_t, BandElements> bands;
    std::uint32_t last = 0;
    for (const Item& item : ItemsOf(document_, static_cast<std::size_t>(sheet.Page))) {
      if (item.Band == last || !plan_.IsRead(item.Band)) continue;
      last = item.Band;
      AddBand(last, marksOfBands[last], bands[last]);
    }
    bands_ = std::move(bands);
    sheet.EndOfElements = elements_.Count();
  }

 private:
  // The element of each part of a band; NoElement where it has none yet.
  using BandElements = std::vector<ElementId>;

  // A band that was cut goes on where it was on the page before.
  void AddBand(std::uint32_t band, const std::vector<int>& marks, BandElements& elements) {
    const BandLayout& layout = structure_.LayoutOf(band);
    const std::span<const BandPart> parts = structure_.PartsOf(layout);
    const auto before = bands_.find(band);
    if (before != bands_.end()) {
      elements = before->second;
    } else {
      elements.assign(parts.size(), NoElement);
      if (layout.Table != NoTable) AddRows(layout, elements);
    }
    for (std::size_t part = 0; part < parts.size(); ++part) {
      for (const int mark : marks) {
        if ((*marks_)[static_cast<std::size_t>(mark)].Control == parts[part].Control)
          AddMark(mark, layout, part, elements);
      }
    }
  }

  void AddRows(const BandLayout& layout, BandElements& elements) {
    const std::span<const BandPart> parts = structure_.PartsOf(layout);
    for (const TableLine& line : LinesOf(layout)) {
      const ElementId row = elements_.Add(TableOf(layout), "/TR");
      for (const TableCell& cell : line) {
        const HeaderScope scope = ScopeOf(cell.Part->Role);
        const ElementId element = elements_.Add(row, scope == HeaderScope::None ? "/TD" : "/TH");
        elements_.DescribeCell(element, scope, cell.Columns, cell.Lines);
        elements[static_cast<std::size_t>(cell.Part - parts.data())] = element;
      }
    }
  }

  const std::vector<TableLine>& LinesOf(const BandLayout& layout) {
    const auto [known, isNew] = lines_.try_emplace(&layout);
    if (isNew) known->second = TableLinesOf(structure_, layout);
    return known->second;
  }

  void AddMark(int number, const BandLayout& layout, std::size_t part, BandElements& elements) {
    const PdfMark& mark = (*marks_)[static_cast<std::size_t>(number)];
    const BandPart& shown = structure_.PartsOf(layout)[part];
    const bool isInside =
        layout.Table != NoTable && (shown.Role == PartRole::Picture || shown.Role == PartRole::Tick);
    ElementId element = NoElement;
    if (isInside) {
      element = AddInside(CellOf(layout, shown, elements), mark, shown.Role);
    } else {
      if (elements[part] == NoElement) elements[part] = AddText(layout, mark, shown.Role);
      element = elements[part];
    }
    elements_.AddContent(element, sheet_->Index, number);
    sheet_->Parents[static_cast<std::size_t>(number)] = element;
  }

  ElementId CellOf(const BandLayout& layout, const BandPart& shown, const BandElements& elements) const {
    const std::span<const BandPart> parts = structure_.PartsOf(layout);
    const auto cell = std::ranges::find(parts, shown.Within, &BandPart::Control);
    return elements[static_cast<std::size_t>(cell - parts.begin())];
  }

  ElementId AddInside(ElementId cell, const PdfMark& mark, PartRole role) {
    const ElementId element = elements_.Add(cell, role == PartRole::Picture ? "/Figure" : "/Span");
    Describe(element, mark, role);
    return element;
  }

  ElementId AddText(const BandLayout& layout, const PdfMark& mark, PartRole role) {
    const ElementId parent = RunOf(layout.Run);
    if (role == PartRole::Tick) return AddInside(elements_.Add(parent, "/P"), mark, role);
    const ElementId element = elements_.Add(parent, TypeOf(layout.Run, role));
    Describe(element, mark, role);
    return element;
  }

  void Describe(ElementId element, const PdfMark& mark, PartRole role) {
    if (role == PartRole::Tick) elements_.SayInstead(element, mark.IsTicked ? Ticked : NotTicked);
    if (role == PartRole::Picture)
      elements_.DescribeFigure(element, *structure_.FigureTextOf(mark.Band, mark.Control), AreaOf(mark.Box));
  }

  std::vector<double> AreaOf(const Rect& box) const {
    const double scale = sheets_.Scale / TwipsPerPoint;
    const double height = sheets_.Paper.height() / TwipsPerPoint;
    return {box.Left * scale, height - box.Bottom() * scale, box.Right() * scale, height - box.Top * scale};
  }

  const char* TypeOf(std::uint32_t run, PartRole role) {
    if (role == PartRole::Picture) return "/Figure";
    if (role == PartRole::Subheading) return HeadingOfLevel(LevelOf(run) + (hasHeading_[run] ? 1 : 0));
    if (role != PartRole::Heading) return "/P";
    hasHeading_[run] = true;
    return HeadingOfLevel(LevelOf(run));
  }

  // One below the headings of the reports around it, as far as they are in the file: no level is left out.
  int LevelOf(std::uint32_t run) const {
    int level = 1;
    while (structure_.Runs[run].Parent != run) {
      run = structure_.Runs[run].Parent;
      if (hasHeading_[run]) ++level;
    }
    return level;
  }

  // The outermost report is the document, those in it are its parts.
  ElementId RunOf(std::uint32_t run) {
    if (runs_[run] != NoElement) return runs_[run];
    const std::uint32_t parent = structure_.Runs[run].Parent;
    const ElementId around = RunOf(parent);
    runs_[run] = elements_.Add(around, parent == 0 ? "/Part" : "/Sect");
    return runs_[run];
  }

  ElementId TableOf(const BandLayout& layout) {
    ElementId& table = tables_[layout.Table];
    if (table == NoElement) table = elements_.Add(RunOf(layout.Run), "/Table");
    return table;
  }

  StructureElements& elements_;
  const PdfTagPlan& plan_;
  const Document& document_;
  const DocumentStructure& structure_;
  const PdfSheets& sheets_;
  std::vector<ElementId> runs_;
  std::vector<bool> hasHeading_;  // by run
  std::vector<ElementId> tables_;
  std::unordered_map<const BandLayout*, std::vector<TableLine>> lines_;
  std::unordered_map<std::uint32_t, BandElements> bands_;  // of the page before
  StructureSheet* sheet_ = nullptr;
  const std::vector<PdfMark>* marks_ = nullptr;
};

// The sheets of each copy of the document, by page: the second sheet of a page belongs to the second copy.
std::vector<std::vector<StructureSheet*>> CopiesOf(std::vector<StructureSheet>& sheets) {
  std::vector<std::vector<StructureSheet*>> copies;
  std::map<int, std::size_t> counts;
  for (StructureSheet& sheet : sheets) {
    const std::size_t copy = counts[sheet.Page]++;
    if (copy == copies.size()) copies.emplace_back();
    copies[copy].push_back(&sheet);
  }
  for (std::vector<StructureSheet*>& copy : copies) std::ranges::sort(copy, {}, &StructureSheet::Page);
  return copies;
}

std::string Reference(int number) {
  return std::to_string(number) + " 0 R";
}

}  // namespace

PdfStructure::PdfStructure(QPDF& pdf, const PdfTagPlan& plan, const PdfSheets& sheets, const PdfMarks& marks)
    : root_(pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /StructTreeRoot >>"))) {
  for (QPDFObjectHandle page : pdf.getAllPages()) {
    const auto index = static_cast<std::uint32_t>(sheets_.size());
    sheets_.push_back({index, sheets.Pages[index], page.getObjGen()});
    page.replaceKey("/StructParents", QPDFObjectHandle::newInteger(index));
    page.replaceKey("/Tabs", QPDFObjectHandle::newName("/S"));
  }
  const ElementId document = elements_.Add(NoElement, "/Document");
  for (const std::vector<StructureSheet*>& copy : CopiesOf(sheets_)) {
    CopyOfStructure structure(elements_, plan, sheets, document);
    for (StructureSheet* sheet : copy) {
      structure.AddPage(*sheet, marks.at(sheet->Page));
      inOrder_.push_back(sheet->Index);
    }
  }
  pdf.getRoot().replaceKey("/StructTreeRoot", root_);
  pdf.getRoot().replaceKey("/MarkInfo", QPDFObjectHandle::parse("<< /Marked true >>"));
}

// The elements of a page come together with the list of its content's parents, which names them again.
std::string PdfStructure::AddTo(std::string pdf, QPDFWriter& writer) const {
  AddedObjects objects(std::move(pdf), writer);
  StructureNumbers numbers;
  numbers.Root = writer.getRenumberedObjGen(root_.getObjGen()).getObj();
  for (const StructureSheet& sheet : sheets_)
    numbers.Pages.push_back(writer.getRenumberedObjGen(sheet.Object).getObj());
  numbers.FirstElement = objects.Reserve(static_cast<int>(elements_.Count()));
  const int firstList = objects.Reserve(static_cast<int>(sheets_.size()));
  ElementId next = 0;
  for (const std::uint32_t index : inOrder_) {
    const StructureSheet& sheet = sheets_[index];
    for (; next < sheet.EndOfElements; ++next)
      elements_.Write(objects.Begin(numbers.FirstElement + static_cast<int>(next)), next, numbers);
    std::string& list = objects.Begin(firstList + static_cast<int>(index));
    list += '[';
    for (const ElementId parent : sheet.Parents)
      list += Reference(numbers.FirstElement + static_cast<int>(parent)) + ' ';
    list += ']';
  }
  WriteRoot(objects, numbers, firstList);
  return objects.Finish();
}

void PdfStructure::WriteRoot(AddedObjects& objects, const StructureNumbers& numbers, int firstList) const {
  std::string lists;
  for (const StructureSheet& sheet : sheets_) {
    const int index = static_cast<int>(sheet.Index);
    lists += std::to_string(index) + ' ' + Reference(firstList + index) + ' ';
  }
  const int tree = objects.Reserve(1);
  objects.Begin(tree) += "<</Nums[" + lists + "]>>";
  objects.Begin(numbers.Root) += "<</Type/StructTreeRoot/K " + Reference(numbers.FirstElement) +
                                 "/ParentTree " + Reference(tree) + "/ParentTreeNextKey " +
                                 std::to_string(sheets_.size()) + ">>";
}

}  // namespace tarvis
