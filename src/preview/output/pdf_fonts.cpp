#include "preview/output/pdf_fonts.h"

#include <QGlyphRun>
#include <algorithm>
#include <qpdf/QPDFTokenizer.hh>
#include <stdexcept>

#include "preview/output/pdf_helper_file.h"
#include "preview/output/pdf_numbers.h"

namespace tarvis {
namespace {

constexpr double FontPixels = 1000;

void DrawGlyphs(QPainter& painter, const PdfGlyphs& glyphs, ReportFont& font) {
  for (const auto& [number, face] : glyphs.Faces()) {
    QGlyphRun run;
    run.setRawFont(font.FaceAt(number, FontPixels));
    run.setGlyphIndexes(QList<quint32>(face.Glyphs.begin(), face.Glyphs.end()));
    run.setPositions(QList<QPointF>(static_cast<qsizetype>(face.Glyphs.size())));
    painter.drawGlyphRun({}, run);
  }
}

// Name of the font and code of each glyph that a content stream shows, in order.
struct ShownGlyph {
  std::string Font;
  std::uint16_t Code;
};

class GlyphReader : public QPDFObjectHandle::TokenFilter {
 public:
  std::vector<ShownGlyph> Glyphs;

  void handleToken(const QPDFTokenizer::Token& token) override {
    if (token.getType() == QPDFTokenizer::tt_name) name_ = token.getValue();
    if (token.getType() == QPDFTokenizer::tt_string) text_ = token.getValue();
    if (token.getType() != QPDFTokenizer::tt_word) return;
    if (token.getValue() == "Tf") font_ = name_;
    if (token.getValue() != "Tj") return;
    for (std::size_t index = 0; index + 1 < text_.size(); index += 2) {
      Glyphs.push_back({font_, static_cast<std::uint16_t>(static_cast<unsigned char>(text_[index]) << 8U |
                                                          static_cast<unsigned char>(text_[index + 1]))});
    }
  }

 private:
  std::string name_;
  std::string text_;
  std::string font_;
};

std::string ToUnicode(const PdfFace& face) {
  std::string map =
      "/CIDInit /ProcSet findresource begin 12 dict begin begincmap\n"
      "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
      "/CMapName /Adobe-Identity-UCS def /CMapType 2 def\n"
      "1 begincodespacerange <0000> <FFFF> endcodespacerange\n";
  constexpr std::size_t BlockSize = 100;  // the format's limit
  for (std::size_t first = 0; first < face.Characters.size(); first += BlockSize) {
    const std::size_t end = std::min(first + BlockSize, face.Characters.size());
    map += std::to_string(end - first) + " beginbfchar\n";
    for (std::size_t index = first; index < end; ++index) {
      map += '<';
      AppendHex(map, static_cast<std::uint16_t>(index + 1));
      map += "> <";
      for (const QChar unit : QString::fromUcs4(&face.Characters[index], 1)) AppendHex(map, unit.unicode());
      map += ">\n";
    }
    map += "endbfchar\n";
  }
  return map + "endcmap CMapName currentdict /CMap defineresource pop end end\n";
}

// Exact design widths; rounded ones would add up along a line.
QPDFObjectHandle Widths(const PdfFace& face) {
  QPDFObjectHandle widths = QPDFObjectHandle::newArray();
  for (const float advance : face.AdvancesEm) {
    widths.appendItem(QPDFObjectHandle::newReal(static_cast<double>(advance) * 1000, 3));
  }
  QPDFObjectHandle table = QPDFObjectHandle::newArray();
  table.appendItem(QPDFObjectHandle::newInteger(1));
  table.appendItem(widths);
  return table;
}

// The name of a subset starts with six capitals of its own.
void NameAsSubset(QPDFObjectHandle font, std::uint16_t number) {
  std::string tag = "/TARVIS";
  for (std::size_t place = tag.size() - 1; number > 0; --place, number /= 26) {
    tag[place] = static_cast<char>('A' + number % 26);
  }
  QPDFObjectHandle descendant = font.getKey("/DescendantFonts").getArrayItem(0);
  const QPDFObjectHandle name =
      QPDFObjectHandle::newName(tag + "+" + font.getKey("/BaseFont").getName().substr(1));
  font.replaceKey("/BaseFont", name);
  descendant.replaceKey("/BaseFont", name);
  descendant.getKey("/FontDescriptor").replaceKey("/FontName", name);
}

QPDFObjectHandle TakeFont(QPDF& pdf, const QPDFObjectHandle& foreign, const PdfFace& face,
                          std::uint16_t number) {
  QPDFObjectHandle font = pdf.copyForeignObject(foreign);
  NameAsSubset(font, number);
  font.replaceKey("/ToUnicode", pdf.newStream(ToUnicode(face)));
  font.getKey("/DescendantFonts").getArrayItem(0).replaceKey("/W", Widths(face));
  return font;
}

QPDFObjectHandle TakeFonts(QPDF& pdf, QPDFPageObjectHelper page, const PdfGlyphs& glyphs) {
  GlyphReader reader;
  page.filterContents(&reader);
  QPDFObjectHandle foreign = page.getAttribute("/Resources", false).getKey("/Font");
  QPDFObjectHandle fonts = QPDFObjectHandle::newDictionary();
  std::size_t next = 0;
  for (const auto& [number, face] : glyphs.Faces()) {
    const std::size_t first = next;
    for (std::size_t index = 0; index < face.Glyphs.size(); ++index, ++next) {
      if (next >= reader.Glyphs.size() || reader.Glyphs[next].Code != index + 1 ||
          reader.Glyphs[next].Font != reader.Glyphs[first].Font) {
        throw std::runtime_error("A font of the document can't be embedded.");
      }
    }
    fonts.replaceKey("/F" + std::to_string(number),
                     TakeFont(pdf, foreign.getKey(reader.Glyphs[first].Font), face, number));
  }
  return fonts;
}

}  // namespace

QPDFObjectHandle MakeFonts(QPDF& pdf, const PdfGlyphs& glyphs, ReportFont& font) {
  HelperFile file(
      PaintHelperFile([&](QPdfWriter&, QPainter& painter) { DrawGlyphs(painter, glyphs, font); }));
  return TakeFonts(pdf, file.Pages().at(0), glyphs);
}

}  // namespace tarvis
