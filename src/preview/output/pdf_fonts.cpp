#include "preview/output/pdf_fonts.h"

#include <QGlyphRun>
#include <algorithm>
#include <map>
#include <qpdf/QPDFTokenizer.hh>
#include <set>

#include "preview/output/pdf_helper_file.h"
#include "preview/output/pdf_to_unicode.h"

namespace tarvis {
namespace {

constexpr double FontPixels = 1000;

QList<quint32> DistinctGlyphs(const PdfFont& font) {
  QList<quint32> glyphs;
  std::set<std::uint32_t> seen;
  for (const std::uint32_t glyph : font.Glyphs) {
    if (seen.insert(glyph).second) glyphs.append(glyph);
  }
  return glyphs;
}

void DrawGlyphs(QPainter& painter, const QRawFont& face, const QList<quint32>& glyphs) {
  QGlyphRun run;
  run.setRawFont(face);
  run.setGlyphIndexes(glyphs);
  run.setPositions(QList<QPointF>(glyphs.size()));
  painter.drawGlyphRun({}, run);
}

// The first page shows the box of a missing character, each further one a font's glyphs.
void DrawFonts(QPdfWriter& writer, QPainter& painter, const PdfGlyphs& glyphs, ReportFont& font) {
  DrawGlyphs(painter, font.AsInItsFile(0, FontPixels), {0});
  for (const PdfFont& used : glyphs.Fonts()) {
    writer.newPage();
    DrawGlyphs(painter, font.AsInItsFile(used.Face, FontPixels), DistinctGlyphs(used));
  }
}

// The codes of all glyphs that a content stream shows, in order.
class CodeReader : public QPDFObjectHandle::TokenFilter {
 public:
  std::vector<std::uint16_t> Codes;

  void handleToken(const QPDFTokenizer::Token& token) override {
    if (token.getType() == QPDFTokenizer::tt_string) text_ = token.getValue();
    if (token.getType() != QPDFTokenizer::tt_word || token.getValue() != "Tj") return;
    for (std::size_t index = 0; index + 1 < text_.size(); index += 2) {
      Codes.push_back(static_cast<std::uint16_t>(static_cast<unsigned char>(text_[index]) << 8U |
                                                 static_cast<unsigned char>(text_[index + 1])));
    }
  }

 private:
  std::string text_;
};

// A font program as the toolkit has embedded it.
struct Program {
  QPDFObjectHandle Font;                         // not initialized if there is none
  std::map<std::uint32_t, std::uint16_t> Codes;  // in the program, by glyph
};

bool IsEmbedded(QPDFObjectHandle font) {
  QPDFObjectHandle descriptor = font.getKey("/DescendantFonts").getArrayItem(0).getKey("/FontDescriptor");
  return descriptor.hasKey("/FontFile2") || descriptor.hasKey("/FontFile3");
}

// There is none if the toolkit may not embed the face, or shows its glyphs in another way.
Program ReadProgram(QPDFPageObjectHelper page, const QList<quint32>& glyphs) {
  CodeReader reader;
  page.filterContents(&reader);
  const std::map<std::string, QPDFObjectHandle> fonts =
      page.getAttribute("/Resources", false).getKey("/Font").getDictAsMap();
  Program program;
  if (fonts.size() != 1 || reader.Codes.size() != static_cast<std::size_t>(glyphs.size())) return program;
  if (!IsEmbedded(fonts.begin()->second)) return program;
  program.Font = fonts.begin()->second;
  for (qsizetype index = 0; index < glyphs.size(); ++index)
    program.Codes[glyphs[index]] = reader.Codes[static_cast<std::size_t>(index)];
  return program;
}

// Exact design widths; rounded ones would add up along a line.
QPDFObjectHandle Widths(const PdfFont& font) {
  QPDFObjectHandle widths = QPDFObjectHandle::newArray();
  for (const float advance : font.AdvancesEm) {
    widths.appendItem(QPDFObjectHandle::newReal(advance * 1000.0, 3));
  }
  QPDFObjectHandle table = QPDFObjectHandle::newArray();
  table.appendItem(QPDFObjectHandle::newInteger(1));
  table.appendItem(widths);
  return table;
}

// Which glyph of the program each code shows. What the program doesn't have is its first glyph, the box.
QPDFObjectHandle GlyphMap(QPDF& pdf, const PdfFont& font, const Program& program) {
  std::string map(2, '\0');
  bool isIdentity = true;
  for (std::size_t index = 0; index < font.Glyphs.size(); ++index) {
    const auto found = program.Codes.find(font.Glyphs[index]);
    const std::uint16_t glyph = found == program.Codes.end() ? std::uint16_t{0} : found->second;
    isIdentity = isIdentity && glyph == index + 1;
    map += static_cast<char>(glyph >> 8U);
    map += static_cast<char>(glyph & 0xFFU);
  }
  return isIdentity ? QPDFObjectHandle::newName("/Identity") : pdf.newStream(map);
}

// One bit for each code: all that the map of the font knows, 0 among them.
QPDFObjectHandle CodeSet(QPDF& pdf, const PdfFont& font) {
  std::string bits(font.Glyphs.size() / 8 + 1, '\0');
  for (std::size_t code = 0; code <= font.Glyphs.size(); ++code)
    bits[code / 8] = static_cast<char>(static_cast<unsigned char>(bits[code / 8]) | 0x80U >> code % 8);
  return pdf.newStream(bits);
}

// The name of a subset starts with six capitals of its own.
std::string SubsetName(const std::string& name, std::size_t number) {
  std::string tag = "/TARVIS";
  for (std::size_t place = tag.size() - 1; number > 0; --place, number /= 26) {
    tag[place] = static_cast<char>('A' + number % 26);
  }
  return tag + "+" + name.substr(1);
}

// Programs may be shared, so what belongs to one font is written into objects of its own.
QPDFObjectHandle MakeFont(QPDF& pdf, const PdfFont& used, const Program& program, std::size_t number) {
  QPDFObjectHandle font =
      program.Font.isIndirect() ? pdf.copyForeignObject(program.Font).shallowCopy() : program.Font;
  QPDFObjectHandle descendant = font.getKey("/DescendantFonts").getArrayItem(0).shallowCopy();
  QPDFObjectHandle descriptor = descendant.getKey("/FontDescriptor").shallowCopy();
  const QPDFObjectHandle name =
      QPDFObjectHandle::newName(SubsetName(font.getKey("/BaseFont").getName(), number));
  descriptor.replaceKey("/FontName", name);
  descriptor.replaceKey("/CIDSet", CodeSet(pdf, used));
  descendant.replaceKey("/FontDescriptor", pdf.makeIndirectObject(descriptor));
  descendant.replaceKey("/BaseFont", name);
  descendant.replaceKey("/W", Widths(used));
  descendant.replaceKey("/CIDToGIDMap", GlyphMap(pdf, used, program));
  font.replaceKey("/BaseFont", name);
  font.replaceKey("/DescendantFonts", QPDFObjectHandle::newArray({pdf.makeIndirectObject(descendant)}));
  font.replaceKey("/ToUnicode", pdf.newStream(ToUnicodeMap(1, used.Texts)));
  return pdf.makeIndirectObject(font);
}

// Without any program: a viewer takes a font of its own, which it finds by name.
Program NamedFont() {
  Program program;
  program.Font = QPDFObjectHandle::parse(
      "<< /Type /Font /Subtype /Type0 /BaseFont /Arial /Encoding /Identity-H /DescendantFonts [ << /Type "
      "/Font "
      "/Subtype /CIDFontType2 /BaseFont /Arial /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) "
      "/Supplement 0 >> /FontDescriptor << /Type /FontDescriptor /FontName /Arial /Flags 4 /ItalicAngle 0 "
      "/FontBBox [0 -212 1000 905] /Ascent 905 /Descent -212 /CapHeight 716 /StemV 80 >> >> ] >>");
  return program;
}

bool ShowsBoxes(const PdfFont& font) {
  return std::find(font.Glyphs.begin(), font.Glyphs.end(), 0U) != font.Glyphs.end();
}

}  // namespace

PdfFonts MakeFonts(QPDF& pdf, const PdfGlyphs& glyphs, ReportFont& font) {
  HelperFile file(PaintHelperFile(
      [&](QPdfWriter& writer, QPainter& painter) { DrawFonts(writer, painter, glyphs, font); }));
  const std::vector<QPDFPageObjectHelper> pages = file.Pages();
  Program boxes = ReadProgram(pages.at(0), {0});
  if (!boxes.Font.isInitialized()) boxes = NamedFont();
  PdfFonts fonts{QPDFObjectHandle::newDictionary()};
  for (std::size_t number = 0; number < glyphs.Fonts().size(); ++number) {
    const PdfFont& used = glyphs.Fonts()[number];
    const Program program = ReadProgram(pages.at(number + 1), DistinctGlyphs(used));
    const bool isEmbedded = program.Font.isInitialized();
    fonts.HaveAllGlyphs = fonts.HaveAllGlyphs && isEmbedded && !ShowsBoxes(used);
    fonts.Dictionary.replaceKey("/F" + std::to_string(number),
                                MakeFont(pdf, used, isEmbedded ? program : boxes, number));
  }
  return fonts;
}

}  // namespace tarvis
