#include "preview/output/pdf_picture_glyphs.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "preview/output/pdf_actual_text.h"

namespace tarvis {
namespace {

// The toolkit writes a text of four hexadecimal digits for each glyph, after the choice of a font.
constexpr std::string_view EndOfGlyph = "> Tj";
constexpr std::size_t DigitsOfCode = 4;
constexpr std::string_view FontChoice = " Tf";
constexpr std::uint16_t BoxOfToolkit = 0;  // a character that no font has

// Goes from glyph to glyph.
class GlyphReader {
 public:
  explicit GlyphReader(std::string_view content) : rest_(content) {}

  bool Next() {
    const std::size_t end = rest_.find(EndOfGlyph);
    if (end == rest_.npos || end <= DigitsOfCode || rest_[end - DigitsOfCode - 1] != '<') return false;
    Before = rest_.substr(0, end - DigitsOfCode - 1);
    Glyph = rest_.substr(Before.size(), DigitsOfCode + 1 + EndOfGlyph.size());
    const char* const digits = Glyph.data() + 1;
    std::from_chars(digits, digits + DigitsOfCode, Code, 16);
    const std::size_t choice = Before.rfind(FontChoice);
    if (choice != Before.npos) {
      const std::size_t name = Before.rfind('/', choice);
      Font = Before.substr(name, choice - name);
    }
    rest_.remove_prefix(Before.size() + Glyph.size());
    return true;
  }
  // What is after the last glyph.
  std::string_view Rest() const { return rest_; }

  std::string_view Before;  // since the glyph before
  std::string_view Glyph;
  std::string_view Font;  // with its size, as it was chosen
  std::uint16_t Code = 0;

 private:
  std::string_view rest_;
};

// Empty if it isn't known.
std::u32string_view TextOf(const GlyphReader& glyph, const TextsByFont& texts) {
  const auto font = texts.find(glyph.Font.substr(0, glyph.Font.find(' ')));
  if (font == texts.end() || glyph.Code >= font->second.size()) return {};
  return font->second[glyph.Code];
}

}  // namespace

bool HasBoxes(std::string_view content) {
  GlyphReader glyph(content);
  while (glyph.Next()) {
    if (glyph.Code == BoxOfToolkit) return true;
  }
  return false;
}

std::string WithBoxes(std::string_view content) {
  std::string changed;
  GlyphReader glyph(content);
  while (glyph.Next()) {
    changed += glyph.Before;
    if (glyph.Code != BoxOfToolkit) {
      changed += glyph.Glyph;
      continue;
    }
    const std::string_view size = glyph.Font.substr(std::min(glyph.Font.find(' '), glyph.Font.size()));
    changed.append("/Box").append(size).append(" Tf <0001> Tj ");
    changed.append(glyph.Font).append(FontChoice);
  }
  return changed.append(glyph.Rest());
}

// The toolkit shows letters twice that it makes bold, the second time as marked content that isn't read.
std::string WithPrivateNamed(std::string_view content, const TextsByFont& texts) {
  std::string changed;
  bool isMarked = false;
  GlyphReader glyph(content);
  while (glyph.Next()) {
    changed += glyph.Before;
    const std::size_t begin = glyph.Before.rfind(" BDC"), end = glyph.Before.rfind("EMC");
    if (begin != glyph.Before.npos || end != glyph.Before.npos)
      isMarked = begin != glyph.Before.npos && (end == glyph.Before.npos || end < begin);
    const std::u32string_view text = TextOf(glyph, texts);
    if (isMarked || !HasPrivate(text)) {
      changed += glyph.Glyph;
      continue;
    }
    AppendActualText(changed, text);
    changed.append(glyph.Glyph).append("\n").append(EndOfActualText);
  }
  return changed.append(glyph.Rest());
}

}  // namespace tarvis
