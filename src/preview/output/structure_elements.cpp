#include "preview/output/structure_elements.h"

#include <qpdf/QPDFObjectHandle.hh>

namespace tarvis {
namespace {

void AppendReference(std::string& out, int number) {
  out += std::to_string(number);
  out += " 0 R";
}

std::string QuotedText(const std::string& text) {
  return QPDFObjectHandle::newUnicodeString(text).unparse();
}

}  // namespace

ElementId StructureElements::Add(ElementId parent, const char* type) {
  const ElementId element = Count();
  elements_.push_back({type, parent});
  if (parent != NoElement) AddKid(parent, {element});
  return element;
}

void StructureElements::AddKid(ElementId parent, const Kid& kid) {
  const auto place = static_cast<std::uint32_t>(kids_.size());
  kids_.push_back(kid);
  Element& element = elements_[parent];
  if (element.FirstKid == None) {
    element.FirstKid = place;
  } else {
    kids_[element.LastKid].Next = place;
  }
  element.LastKid = place;
}

void StructureElements::AddContent(ElementId element, std::uint32_t sheet, int number) {
  if (elements_[element].Sheet == None) elements_[element].Sheet = sheet;
  AddKid(element, {static_cast<std::uint32_t>(number), sheet});
}

// Each element has at most one, but for cells, which have the same ones again and again.
void StructureElements::AddEntry(ElementId element, const std::string& entry) {
  const auto [known, isNew] = known_.try_emplace(entry, static_cast<std::uint32_t>(more_.size()));
  if (isNew) more_.push_back(entry);
  elements_[element].More = known->second;
}

void StructureElements::DescribeFigure(ElementId figure, const std::string& text,
                                       const std::vector<double>& area) {
  std::string entry = "/Alt" + QuotedText(text) + "/A<</O/Layout/Placement/Block/BBox[";
  for (const double edge : area) entry += QPDFObjectHandle::newReal(edge, 2).unparse() + " ";
  entry.back() = ']';
  AddEntry(figure, entry + ">>");
}

void StructureElements::DescribeCell(ElementId cell, HeaderScope scope, int columns, int lines) {
  if (scope == HeaderScope::None && columns == 1 && lines == 1) return;
  std::string entry = "/A<</O/Table";
  if (scope != HeaderScope::None) entry += scope == HeaderScope::Column ? "/Scope/Column" : "/Scope/Row";
  if (columns > 1) entry += "/ColSpan " + std::to_string(columns);
  if (lines > 1) entry += "/RowSpan " + std::to_string(lines);
  AddEntry(cell, entry + ">>");
}

void StructureElements::SayInstead(ElementId element, const char* text) {
  AddEntry(element, "/ActualText" + QuotedText(text));
}

// What changes from element to element comes last: so they compress best.
void StructureElements::Write(std::string& out, ElementId element, const StructureNumbers& numbers) const {
  const Element& written = elements_[element];
  out += "<</S";
  out += written.Type;
  if (written.More != None) out += more_[written.More];
  if (written.Sheet != None) {
    out += "/Pg ";
    AppendReference(out, numbers.Pages[written.Sheet]);
  }
  out += "/P ";
  AppendReference(out, written.Parent == NoElement ? numbers.Root
                                                   : numbers.FirstElement + static_cast<int>(written.Parent));
  if (written.FirstKid != None) {
    const bool isList = written.FirstKid != written.LastKid;
    out += isList ? "/K[" : "/K ";
    for (std::uint32_t kid = written.FirstKid; kid != None; kid = kids_[kid].Next) {
      WriteKid(out, written, kids_[kid], numbers);
      if (kids_[kid].Next != None) out += ' ';
    }
    if (isList) out += ']';
  }
  out += ">>";
}

void StructureElements::WriteKid(std::string& out, const Element& element, const Kid& kid,
                                 const StructureNumbers& numbers) const {
  if (kid.Sheet == None) return AppendReference(out, numbers.FirstElement + static_cast<int>(kid.Number));
  if (kid.Sheet == element.Sheet) {
    out += std::to_string(kid.Number);
    return;
  }
  out += "<</Type/MCR/Pg ";
  AppendReference(out, numbers.Pages[kid.Sheet]);
  out += "/MCID " + std::to_string(kid.Number) + ">>";
}

}  // namespace tarvis
