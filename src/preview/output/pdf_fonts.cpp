#include "preview/output/pdf_fonts.h"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>
#include <map>
#include <qpdf/QPDFTokenizer.hh>
#include <set>

#include "preview/output/pdf_box_font.h"
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

// A page for the glyphs of each font, after an empty one. Boxes need none of the toolkit's fonts.
void DrawFonts(QPdfWriter& writer, QPainter& painter, const PdfGlyphs& glyphs, ReportFont& font) {
  for (const PdfFont& used : glyphs.Fonts()) {
    writer.newPage();
    if (used.ShowsBoxes) continue;
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

// A font with its program embedded.
struct Program {
  QPDFObjectHandle Font;              // not initialized if there is none
  std::vector<std::uint16_t> Glyphs;  // of the program: what each code shows
};

bool IsEmbedded(QPDFObjectHandle font) {
  QPDFObjectHandle descriptor = font.getKey("/DescendantFonts").getArrayItem(0).getKey("/FontDescriptor");
  return descriptor.hasKey("/FontFile2") || descriptor.hasKey("/FontFile3");
}

// There is none if the toolkit may not embed the face, or shows its glyphs in another way.
Program ReadProgram(QPDFPageObjectHelper page, const PdfFont& used) {
  const QList<quint32> glyphs = DistinctGlyphs(used);
  CodeReader reader;
  page.filterContents(&reader);
  const std::map<std::string, QPDFObjectHandle> fonts =
      page.getAttribute("/Resources", false).getKey("/Font").getDictAsMap();
  Program program;
  if (fonts.size() != 1 || reader.Codes.size() != static_cast<std::size_t>(glyphs.size())) return program;
  if (!IsEmbedded(fonts.begin()->second)) return program;
  program.Font = fonts.begin()->second;
  std::map<std::uint32_t, std::uint16_t> codes;
  for (qsizetype index = 0; index < glyphs.size(); ++index)
    codes[glyphs[index]] = reader.Codes[static_cast<std::size_t>(index)];
  for (const std::uint32_t glyph : used.Glyphs) program.Glyphs.push_back(codes.at(glyph));
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

// Which glyph of the program each code shows.
QPDFObjectHandle GlyphMap(QPDF& pdf, const Program& program) {
  std::string map(2, '\0');
  bool isIdentity = true;
  for (std::size_t index = 0; index < program.Glyphs.size(); ++index) {
    const std::uint16_t glyph = program.Glyphs[index];
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
  descendant.replaceKey("/CIDToGIDMap", GlyphMap(pdf, program));
  font.replaceKey("/BaseFont", name);
  font.replaceKey("/DescendantFonts", QPDFObjectHandle::newArray({pdf.makeIndirectObject(descendant)}));
  font.replaceKey("/ToUnicode", pdf.newStream(ToUnicodeMap(1, used.Texts)));
  return pdf.makeIndirectObject(font);
}

// The font that is to hold a program of boxes.
constexpr const char* BoxFontDictionary =
    "<< /Type /Font /Subtype /Type0 /BaseFont /Box /Encoding /Identity-H /DescendantFonts [ << /Type /Font "
    "/Subtype /CIDFontType2 /BaseFont /Box /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) "
    "/Supplement 0 >> /FontDescriptor << /Type /FontDescriptor /FontName /Box /Flags 4 /ItalicAngle 0 "
    "/StemV 80 >> >> ] >>";

void Describe(QPDFObjectHandle descriptor, const QPainterPath& box) {
  const auto inThousandths = [](double units) {
    return QPDFObjectHandle::newInteger(std::llround(units * 1000 / BoxFontUnits));
  };
  const QRectF area = box.controlPointRect();
  descriptor.replaceKey(
      "/FontBBox", QPDFObjectHandle::newArray({inThousandths(area.left()), inThousandths(-area.bottom()),
                                               inThousandths(area.right()), inThousandths(-area.top())}));
  for (const char* key : {"/Ascent", "/CapHeight"}) descriptor.replaceKey(key, inThousandths(-area.top()));
  descriptor.replaceKey("/Descent", inThousandths(-area.bottom()));
}

// Boxes with the advances of the glyphs in whose places they are shown: the box of the face that is meant to
// show boxes, that of the report's own one in place of others.
Program BoxProgram(QPDF& pdf, const PdfFont& used, ReportFont& font) {
  const std::uint16_t face = used.ShowsBoxes ? used.Face : std::uint16_t{0};
  const QPainterPath box = font.AsInItsFile(face, BoxFontUnits).pathForGlyph(0);
  std::vector<float> advances;
  Program program;
  for (const float advance : used.AdvancesEm) {
    const auto known = std::ranges::find(advances, advance);
    program.Glyphs.push_back(static_cast<std::uint16_t>(known - advances.begin() + 1));
    if (known == advances.end()) advances.push_back(advance);
  }
  const std::string bytes = BoxFont(box, advances);
  QPDFObjectHandle file = pdf.newStream(bytes);
  file.getDict().replaceKey("/Length1", QPDFObjectHandle::newInteger(static_cast<long long>(bytes.size())));
  program.Font = QPDFObjectHandle::parse(BoxFontDictionary);
  QPDFObjectHandle descriptor =
      program.Font.getKey("/DescendantFonts").getArrayItem(0).getKey("/FontDescriptor");
  Describe(descriptor, box);
  descriptor.replaceKey("/FontFile2", file);
  return program;
}

}  // namespace

QPDFObjectHandle MakeFonts(QPDF& pdf, const PdfGlyphs& glyphs, ReportFont& font) {
  HelperFilePainter drawn;
  DrawFonts(drawn.Writer(), drawn.Painter(), glyphs, font);
  HelperFile file(drawn.Finish());
  const std::vector<QPDFPageObjectHelper> pages = file.Pages();
  QPDFObjectHandle fonts = QPDFObjectHandle::newDictionary();
  for (std::size_t number = 0; number < glyphs.Fonts().size(); ++number) {
    const PdfFont& used = glyphs.Fonts()[number];
    Program program = used.ShowsBoxes ? Program() : ReadProgram(pages.at(number + 1), used);
    if (!program.Font.isInitialized()) program = BoxProgram(pdf, used, font);
    fonts.replaceKey("/F" + std::to_string(number), MakeFont(pdf, used, program, number));
  }
  return fonts;
}

QPDFObjectHandle MakeBoxFont(QPDF& pdf, ReportFont& font) {
  constexpr std::size_t Number = 0xFFFF;  // no font of the pages has it
  const FontGlyph& box = font.Drawn(0, 0);
  const PdfFont used{0, {0}, {std::u32string(1, U'\uFFFD')}, {box.AdvanceEm}, false, true};
  return MakeFont(pdf, used, BoxProgram(pdf, used, font), Number);
}

}  // namespace tarvis
