// Makes the elements of a PDF's structure.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <tuple>
#include <vector>

namespace tarvis {

// An element that holds other ones. A copy is the same element.
struct StructureNode {
  QPDFObjectHandle Object;
  QPDFObjectHandle Kids;  // an array
};

// To which cells a header belongs.
enum class HeaderScope { None, Column, Row };

class StructureElements {
 public:
  explicit StructureElements(QPDF& pdf) : pdf_(pdf) {}

  // An element that is to hold other ones; `type` is one of the format's own.
  StructureNode AddNode(StructureNode& parent, const char* type);
  // An element that is to hold content of pages.
  QPDFObjectHandle AddLeaf(StructureNode& parent, const char* type);
  QPDFObjectHandle AddLeaf(QPDFObjectHandle parent, const char* type);

  // `area` is where it shows, in points from the lower left corner of its page.
  static void DescribeFigure(QPDFObjectHandle figure, const std::string& text,
                             const std::vector<double>& area);
  void DescribeCell(QPDFObjectHandle cell, HeaderScope scope, int columns, int lines);
  // Content of `page` with this number belongs to `leaf`. It shows below what already belongs to it.
  static void AddContent(QPDFObjectHandle leaf, const QPDFObjectHandle& page, int number);

 private:
  QPDFObjectHandle NewElement(const QPDFObjectHandle& parent, const char* type);
  QPDFObjectHandle Name(const char* name);

  QPDF& pdf_;
  std::map<std::string, QPDFObjectHandle> names_;  // each once, as there are very many elements
  std::map<std::tuple<HeaderScope, int, int>, QPDFObjectHandle> cellAttributes_;
};

}  // namespace tarvis
