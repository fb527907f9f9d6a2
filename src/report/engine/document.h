// A composed document: pages of positioned items, plain data in twips. Once composed it is only read.
//
//   Document ── Pages ── range of Items          preview, printer and PDF paint the same items
//            ├─ Texts, Styles, Pictures, Names   what the items point to
//            ├─ Contents                         two levels, each leading to a place on a page
//            └─ Structure                        what the items are to those who can't see them
#pragma once

#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "report/engine/picture.h"
#include "report/engine/structure.h"
#include "report/engine/text_flow.h"
#include "report/engine/units.h"

namespace tarvis {

using Color = std::uint32_t;  // 0xRRGGBB
inline constexpr Color Black = 0x000000;
inline constexpr Color White = 0xFFFFFF;

enum class ItemKind : std::uint8_t { Text, Box, Line, Picture, Tick };

struct TextStyle {
  float Size = 8.5F;  // points
  bool Bold = false;
  bool operator==(const TextStyle&) const = default;
};

// A piece of text in one style; those that are alike are held once.
struct TextPiece {
  std::string_view Text;  // UTF-8 in normal form C, without line ends; lives as long as the document
  std::uint16_t Style = 0;
  TextFlow Flow = TextFlow::Plain;
  bool BlankFollows = false;  // blanks or a line end separate it from the next line of its text
  float Advance = 0;          // natural width in twips
};

// One thing to paint. `Box` is in twips from the top left corner of the paper.
struct Item {
  ItemKind Kind = ItemKind::Text;
  // Box: border in units of 15 twips (0 none), centred on the edge. Line: weight in the same units.
  std::uint8_t Weight = 0;
  bool Filled = false;  // Box: painted with Fill before its border
  bool Ticked = false;  // Tick: whether the box holds a tick
  // Name of the control that made it, an index of Names; items of one control and band share it.
  std::uint16_t Control = 0;
  // Box: cut at the head or foot of a page, where its frame stays open.
  bool OpenTop = false;
  bool OpenBottom = false;
  // Text: index of Texts. Picture: index of Pictures. Else unused.
  std::uint32_t Source = 0;
  // Counts the bands of the document: items with the same number belong to one band (one table row).
  std::uint32_t Band = 0;
  Color Fill = White;
  // Text: left edge, top of the line, printed width, line pitch. A printed width below the piece's advance
  // means that the text is condensed to it, to half its advance at most, and clipped beyond.
  // Line: from (Left, Top) to (Right, Bottom). Picture: the place that the picture fills.
  Rect Box;
};

struct Page {
  std::uint32_t FirstItem = 0;
  std::uint32_t ItemCount = 0;
};

// An entry of the contents; a child follows its parent in the list.
struct ContentsEntry {
  std::string Text;
  int Level = 0;     // 0 or 1
  int Page = 0;      // index of Pages
  float Top = 0;     // twips from the top of the paper
  float Height = 0;  // of the band that it belongs to
};

struct PageSetup {
  float Width = 11906;  // A4, in twips
  float Height = 16838;
  float Left = 1440;
  float Right = 0;
  float Top = 720;
  float Bottom = 720;
};

class Document {
 public:
  Document() = default;
  Document(Document&&) = default;
  Document& operator=(Document&&) = default;

  PageSetup Setup;
  int CodePage = 0;   // of the texts, by which fonts were chosen when they were measured; 0 if it isn't known
  std::string Title;  // caption of the report shown
  std::vector<Page> Pages;
  std::vector<Item> Items;
  std::vector<TextPiece> Texts;
  std::vector<TextStyle> Styles;
  std::vector<PicturePtr> Pictures;
  std::vector<std::string_view> Names;  // control names; static storage or Storage
  std::vector<ContentsEntry> Contents;
  // Items that show how many pages there are, which is known last; indexes in the order of Items.
  std::vector<std::uint32_t> PageTotals;
  DocumentStructure Structure;

  // Owns the characters that Texts and Names point to; blocks never move.
  std::deque<std::string> Storage;
};

// Those of PageTotals that are on a page.
std::span<const std::uint32_t> PageTotalsOf(const Document& document, const Page& page);

// The index of that style in Styles, where it is added if it isn't there yet.
std::uint16_t StyleIndex(Document& document, const TextStyle& style);

// The document as text, one item a line: page, kind, control, rectangle in whole or half twips, text, style.
// This is the form of the stored goldens.
std::string Dump(const Document& document);

}  // namespace tarvis
