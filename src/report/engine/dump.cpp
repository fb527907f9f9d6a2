// A document as text, as goldens hold it.
#include <array>
#include <cmath>
#include <cstdio>
#include <string>

#include "report/engine/document.h"

namespace tarvis {
namespace {

// Whole twips as they are, fractions with one place.
std::string Number(float value) {
  std::array<char, 32> text{};
  const bool whole = value == std::trunc(value);
  std::snprintf(text.data(), text.size(), whole ? "%.0f" : "%.1f", value);
  return text.data();
}

std::string HexColor(Color color) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%06X", static_cast<unsigned>(color));
  return text.data();
}

std::string Place(const Rect& box) {
  return Number(box.Left) + "," + Number(box.Top) + " " + Number(box.Width) + "x" + Number(box.Height);
}

std::string Describe(const Document& document, const Item& item) {
  switch (item.Kind) {
    case ItemKind::Text: {
      const TextPiece& piece = document.Texts[item.Source];
      const TextStyle& style = document.Styles[piece.Style];
      std::string look = " " + Number(style.Size) + (style.Bold ? " bold" : "");
      if (item.Box.Width + 0.5F < piece.Advance) look += " condensed from " + Number(piece.Advance);
      return "text " + Place(item.Box) + look + " '" + std::string(piece.Text) + "'";
    }
    case ItemKind::Box:
      return "box " + Place(item.Box) + (item.Weight > 0 ? " border " + std::to_string(item.Weight) : "") +
             (item.Filled ? " fill " + HexColor(item.Fill) : "") + (item.OpenTop ? " open at the top" : "") +
             (item.OpenBottom ? " open at the bottom" : "");
    case ItemKind::Line:
      return "line " + Place(item.Box) + " weight " + std::to_string(item.Weight);
    case ItemKind::Picture:
      return "picture " + Place(item.Box);
    case ItemKind::Tick:
      return "tick " + Place(item.Box) + (item.Ticked ? " on" : " off");
  }
  return {};
}

}  // namespace

std::string Dump(const Document& document) {
  std::string dump;
  for (std::size_t page = 0; page < document.Pages.size(); ++page) {
    dump += "page " + std::to_string(page + 1) + "\n";
    const Page& range = document.Pages[page];
    for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
      const Item& item = document.Items[index];
      dump += "  " + std::string(document.Names[item.Control]) + " " + Describe(document, item) + "\n";
    }
  }
  for (const ContentsEntry& entry : document.Contents) {
    dump += "contents " + std::string(static_cast<std::size_t>(entry.Level) * 2, ' ') + "'" + entry.Text +
            "' page " + std::to_string(entry.Page + 1) + " at " + Number(entry.Top) + " high " +
            Number(entry.Height) + "\n";
  }
  return dump;
}

}  // namespace tarvis
