#include "preview/output/pdf_structure.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "preview/output/structure_elements.h"
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

// A sheet of the file.
struct Sheet {
  int Page = 0;  // of the document
  QPDFObjectHandle Object;
  QPDFObjectHandle Elements;  // an array: the element of each piece of its content
};

// The elements of one copy of the document.
class CopyOfStructure {
 public:
  CopyOfStructure(StructureElements& elements, const PdfTagPlan& plan, const PdfSheets& sheets,
                  StructureNode root)
      : elements_(elements),
        plan_(plan),
        document_(plan.Source()),
        structure_(document_.Structure),
        sheets_(sheets),
        runs_(structure_.Runs.size()),
        hasHeading_(structure_.Runs.size(), false),
        tables_(structure_.Tables.size()) {
    runs_.front() = std::move(root);
  }

  // Pages come in the order of the document.
  void AddPage(Sheet& sheet, const std::vector<PdfMark>& marks) {
    sheet_ = &sheet;
    marks_ = &marks;
    std::unordered_map<std::uint32_t, std::vector<int>> marksOfBands;
    for (std::size_t number = 0; number < marks.size(); ++number)
      marksOfBands[marks[number].Band].push_back(static_cast<int>(number));
    found_.assign(marks.size(), QPDFObjectHandle());
    std::unordered_map<std::uint32_t, BandElements> bands;
    std::uint32_t last = 0;
    for (const Item& item : ItemsOf(document_, static_cast<std::size_t>(sheet.Page))) {
      if (item.Band == last || !plan_.IsRead(item.Band)) continue;
      last = item.Band;
      AddBand(last, marksOfBands[last], bands[last]);
    }
    bands_ = std::move(bands);
    for (const QPDFObjectHandle& element : found_) sheet.Elements.appendItem(element);
  }

 private:
  // The element of each part of a band; not initialized where it has none yet.
  using BandElements = std::vector<QPDFObjectHandle>;

  // A band that was cut goes on where it was on the page before.
  void AddBand(std::uint32_t band, const std::vector<int>& marks, BandElements& elements) {
    const BandLayout& layout = structure_.LayoutOf(band);
    const std::span<const BandPart> parts = structure_.PartsOf(layout);
    const auto before = bands_.find(band);
    if (before != bands_.end()) {
      elements = before->second;
    } else {
      elements.resize(parts.size());
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
      StructureNode row = elements_.AddNode(TableOf(layout), "/TR");
      for (const TableCell& cell : line) {
        const HeaderScope scope = ScopeOf(cell.Part->Role);
        QPDFObjectHandle element = elements_.AddLeaf(row, scope == HeaderScope::None ? "/TD" : "/TH");
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
    QPDFObjectHandle element;
    if (isInside) {
      element = AddInside(CellOf(layout, shown, elements), mark, shown.Role);
    } else {
      if (!elements[part].isInitialized()) elements[part] = AddText(layout, mark, shown.Role);
      element = elements[part];
    }
    StructureElements::AddContent(element, sheet_->Object, number);
    found_[static_cast<std::size_t>(number)] = element;
  }

  QPDFObjectHandle CellOf(const BandLayout& layout, const BandPart& shown,
                          const BandElements& elements) const {
    const std::span<const BandPart> parts = structure_.PartsOf(layout);
    const auto cell = std::ranges::find(parts, shown.Within, &BandPart::Control);
    return elements[static_cast<std::size_t>(cell - parts.begin())];
  }

  QPDFObjectHandle AddInside(const QPDFObjectHandle& cell, const PdfMark& mark, PartRole role) {
    QPDFObjectHandle element = elements_.AddLeaf(cell, role == PartRole::Picture ? "/Figure" : "/Span");
    Describe(element, mark, role);
    return element;
  }

  QPDFObjectHandle AddText(const BandLayout& layout, const PdfMark& mark, PartRole role) {
    StructureNode& parent = RunOf(layout.Run);
    if (role == PartRole::Tick) return AddInside(elements_.AddLeaf(parent, "/P"), mark, role);
    QPDFObjectHandle element = elements_.AddLeaf(parent, TypeOf(layout.Run, role));
    Describe(element, mark, role);
    return element;
  }

  void Describe(QPDFObjectHandle element, const PdfMark& mark, PartRole role) const {
    if (role == PartRole::Tick)
      element.replaceKey("/ActualText",
                         QPDFObjectHandle::newUnicodeString(mark.IsTicked ? Ticked : NotTicked));
    if (role == PartRole::Picture)
      StructureElements::DescribeFigure(element, *structure_.FigureTextOf(mark.Band, mark.Control),
                                        AreaOf(mark.Box));
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
  StructureNode& RunOf(std::uint32_t run) {
    StructureNode& node = runs_[run];
    if (node.Object.isInitialized()) return node;
    const std::uint32_t parent = structure_.Runs[run].Parent;
    node = elements_.AddNode(RunOf(parent), parent == 0 ? "/Part" : "/Sect");
    return node;
  }

  StructureNode& TableOf(const BandLayout& layout) {
    StructureNode& table = tables_[layout.Table];
    if (!table.Object.isInitialized()) table = elements_.AddNode(RunOf(layout.Run), "/Table");
    return table;
  }

  StructureElements& elements_;
  const PdfTagPlan& plan_;
  const Document& document_;
  const DocumentStructure& structure_;
  const PdfSheets& sheets_;
  std::vector<StructureNode> runs_;
  std::vector<bool> hasHeading_;  // by run
  std::vector<StructureNode> tables_;
  std::unordered_map<const BandLayout*, std::vector<TableLine>> lines_;
  std::unordered_map<std::uint32_t, BandElements> bands_;  // of the page before
  Sheet* sheet_ = nullptr;
  const std::vector<PdfMark>* marks_ = nullptr;
  std::vector<QPDFObjectHandle> found_;  // of each mark
};

// The sheets of each copy of the document, by page: the second sheet of a page belongs to the second copy.
std::vector<std::vector<Sheet*>> CopiesOf(std::vector<Sheet>& sheets) {
  std::vector<std::vector<Sheet*>> copies;
  std::map<int, std::size_t> counts;
  for (Sheet& sheet : sheets) {
    const std::size_t copy = counts[sheet.Page]++;
    if (copy == copies.size()) copies.emplace_back();
    copies[copy].push_back(&sheet);
  }
  for (std::vector<Sheet*>& copy : copies) std::ranges::sort(copy, {}, &Sheet::Page);
  return copies;
}

std::vector<Sheet> SheetsOf(QPDF& pdf, const PdfSheets& sheets) {
  std::vector<Sheet> all;
  for (const QPDFObjectHandle& page : pdf.getAllPages())
    all.push_back({sheets.Pages[all.size()], page, QPDFObjectHandle::newArray()});
  return all;
}

// From the content of each page to the elements that it belongs to.
QPDFObjectHandle ParentTree(QPDF& pdf, std::vector<Sheet>& sheets) {
  QPDFObjectHandle numbers = QPDFObjectHandle::newArray();
  for (std::size_t index = 0; index < sheets.size(); ++index) {
    const QPDFObjectHandle number = QPDFObjectHandle::newInteger(static_cast<long long>(index));
    numbers.appendItem(number);
    numbers.appendItem(pdf.makeIndirectObject(sheets[index].Elements));
    sheets[index].Object.replaceKey("/StructParents", number);
    sheets[index].Object.replaceKey("/Tabs", QPDFObjectHandle::newName("/S"));
  }
  QPDFObjectHandle tree = QPDFObjectHandle::newDictionary();
  tree.replaceKey("/Nums", numbers);
  return pdf.makeIndirectObject(tree);
}

}  // namespace

void AddStructure(QPDF& pdf, const PdfTagPlan& plan, const PdfSheets& sheets, const PdfMarks& marks) {
  std::vector<Sheet> all = SheetsOf(pdf, sheets);
  StructureElements elements(pdf);
  StructureNode tree{pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /StructTreeRoot >>")),
                     QPDFObjectHandle::newArray()};
  StructureNode root = elements.AddNode(tree, "/Document");
  for (const std::vector<Sheet*>& copy : CopiesOf(all)) {
    CopyOfStructure structure(elements, plan, sheets, root);
    for (Sheet* sheet : copy) structure.AddPage(*sheet, marks.at(sheet->Page));
  }
  tree.Object.replaceKey("/K", tree.Kids);
  tree.Object.replaceKey("/ParentTree", ParentTree(pdf, all));
  tree.Object.replaceKey("/ParentTreeNextKey",
                         QPDFObjectHandle::newInteger(static_cast<long long>(all.size())));
  pdf.getRoot().replaceKey("/StructTreeRoot", tree.Object);
  pdf.getRoot().replaceKey("/MarkInfo", QPDFObjectHandle::parse("<< /Marked true >>"));
}

}  // namespace tarvis
