// The elements of a PDF's structure, and their text in the file. They are plain data, since there are more
// than cells in a document: as objects of the PDF library they would take most of the time of a PDF.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarvis {

// Elements count from 0 in the order in which they are added.
using ElementId = std::uint32_t;
inline constexpr ElementId NoElement = 0xFFFFFFFF;

// To which cells a header belongs.
enum class HeaderScope { None, Column, Row };

// Numbers of objects in the file.
struct StructureNumbers {
  int Root = 0;            // what holds the first element
  int FirstElement = 0;    // the others follow it
  std::vector<int> Pages;  // by sheet
};

class StructureElements {
 public:
  // The newest one among those that `parent` holds; NoElement for the root. `type` is one of the format's
  // own, in static storage.
  ElementId Add(ElementId parent, const char* type);
  // Content of that sheet with this number belongs to the element, as what is read last of it up to now.
  void AddContent(ElementId element, std::uint32_t sheet, int number);
  std::uint32_t Count() const { return static_cast<std::uint32_t>(elements_.size()); }

  // `area` is where it shows, in points from the lower left corner of its page.
  void DescribeFigure(ElementId figure, const std::string& text, const std::vector<double>& area);
  void DescribeCell(ElementId cell, HeaderScope scope, int columns, int lines);
  // What is read in place of its content.
  void SayInstead(ElementId element, const char* text);

  void Write(std::string& out, ElementId element, const StructureNumbers& numbers) const;

 private:
  static constexpr std::uint32_t None = 0xFFFFFFFF;

  // An element, or content.
  struct Kid {
    std::uint32_t Number = 0;
    std::uint32_t Sheet = None;  // of content
    std::uint32_t Next = None;   // index of kids_
  };
  struct Element {
    const char* Type = nullptr;
    ElementId Parent = NoElement;
    std::uint32_t FirstKid = None;  // index of kids_
    std::uint32_t LastKid = None;
    std::uint32_t Sheet = None;  // of the first content; holds for content that names none of its own
    std::uint32_t More = None;   // index of more_
  };

  void AddKid(ElementId parent, const Kid& kid);
  void AddEntry(ElementId element, const std::string& entry);
  void WriteKid(std::string& out, const Element& element, const Kid& kid,
                const StructureNumbers& numbers) const;

  std::vector<Element> elements_;
  std::vector<Kid> kids_;
  std::vector<std::string> more_;  // further entries, as they are written
  std::map<std::string, std::uint32_t> known_;
};

}  // namespace tarvis
