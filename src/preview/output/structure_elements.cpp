#include "preview/output/structure_elements.h"

namespace tarvis {
namespace {

void AppendKid(QPDFObjectHandle leaf, const QPDFObjectHandle& kid) {
  QPDFObjectHandle kids = leaf.getKey("/K");
  if (kids.isNull()) {
    leaf.replaceKey("/K", kid);
  } else if (kids.isArray()) {
    kids.appendItem(kid);
  } else {
    leaf.replaceKey("/K", QPDFObjectHandle::newArray({kids, kid}));
  }
}

}  // namespace

QPDFObjectHandle StructureElements::Name(const char* name) {
  QPDFObjectHandle& known = names_[name];
  if (!known.isInitialized()) known = QPDFObjectHandle::newName(name);
  return known;
}

QPDFObjectHandle StructureElements::NewElement(const QPDFObjectHandle& parent, const char* type) {
  QPDFObjectHandle element = QPDFObjectHandle::newDictionary();
  element.replaceKey("/S", Name(type));
  element.replaceKey("/P", parent);
  return pdf_.makeIndirectObject(element);
}

StructureNode StructureElements::AddNode(StructureNode& parent, const char* type) {
  StructureNode node{NewElement(parent.Object, type), QPDFObjectHandle::newArray()};
  node.Object.replaceKey("/K", node.Kids);
  parent.Kids.appendItem(node.Object);
  return node;
}

QPDFObjectHandle StructureElements::AddLeaf(StructureNode& parent, const char* type) {
  QPDFObjectHandle leaf = NewElement(parent.Object, type);
  parent.Kids.appendItem(leaf);
  return leaf;
}

QPDFObjectHandle StructureElements::AddLeaf(QPDFObjectHandle parent, const char* type) {
  QPDFObjectHandle leaf = NewElement(parent, type);
  AppendKid(parent, leaf);
  return leaf;
}

void StructureElements::DescribeFigure(QPDFObjectHandle figure, const std::string& text,
                                       const std::vector<double>& area) {
  figure.replaceKey("/Alt", QPDFObjectHandle::newUnicodeString(text));
  QPDFObjectHandle attributes = QPDFObjectHandle::parse("<< /O /Layout /Placement /Block >>");
  QPDFObjectHandle box = QPDFObjectHandle::newArray();
  for (const double edge : area) box.appendItem(QPDFObjectHandle::newReal(edge, 2));
  attributes.replaceKey("/BBox", box);
  figure.replaceKey("/A", attributes);
}

void StructureElements::DescribeCell(QPDFObjectHandle cell, HeaderScope scope, int columns, int lines) {
  if (scope == HeaderScope::None && columns == 1 && lines == 1) return;
  QPDFObjectHandle& attributes = cellAttributes_[{scope, columns, lines}];
  if (!attributes.isInitialized()) {
    attributes = pdf_.makeIndirectObject(QPDFObjectHandle::parse("<< /O /Table >>"));
    if (scope != HeaderScope::None)
      attributes.replaceKey("/Scope", Name(scope == HeaderScope::Column ? "/Column" : "/Row"));
    if (columns > 1) attributes.replaceKey("/ColSpan", QPDFObjectHandle::newInteger(columns));
    if (lines > 1) attributes.replaceKey("/RowSpan", QPDFObjectHandle::newInteger(lines));
  }
  cell.replaceKey("/A", attributes);
}

// The page of an element holds for content that names none of its own.
void StructureElements::AddContent(QPDFObjectHandle leaf, const QPDFObjectHandle& page, int number) {
  QPDFObjectHandle content = QPDFObjectHandle::newInteger(number);
  QPDFObjectHandle first = leaf.getKey("/Pg");
  if (first.isNull()) {
    leaf.replaceKey("/Pg", page);
  } else if (first.getObjGen() != page.getObjGen()) {
    QPDFObjectHandle reference = QPDFObjectHandle::parse("<< /Type /MCR >>");
    reference.replaceKey("/Pg", page);
    reference.replaceKey("/MCID", content);
    content = reference;
  }
  AppendKid(leaf, content);
}

}  // namespace tarvis
