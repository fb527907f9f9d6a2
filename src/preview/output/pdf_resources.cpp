#include "preview/output/pdf_resources.h"

#include <QBuffer>
#include <QGlyphRun>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFTokenizer.hh>
#include <stdexcept>

#include "pictures/paintable_picture.h"
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

// Makes a file in memory: `paint` gets its writer and painter.
template <typename Paint>
QByteArray PaintHelperFile(Paint paint) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(static_cast<int>(TwipsPerInch));
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.setRenderHint(QPainter::LosslessImageRendering);
  paint(writer, painter);
  painter.end();
  return bytes;
}

class HelperFile {
 public:
  explicit HelperFile(const QByteArray& bytes) : bytes_(bytes) {
    file_.processMemoryFile("helper", bytes_.constData(), static_cast<std::size_t>(bytes_.size()));
    file_.setImmediateCopyFrom(true);  // it no longer exists when the PDF is written
  }
  std::vector<QPDFPageObjectHelper> Pages() { return QPDFPageDocumentHelper(file_).getAllPages(); }

 private:
  QByteArray bytes_;
  QPDF file_;
};

// A page for each picture, after an empty one. Text of pictures has fonts of its own in this file: the fonts
// of the pages are recognized by glyphs and widths that pictures don't share.
void PaintPictures(const PdfPictures& pictures, QPdfWriter& writer, QPainter& painter) {
  for (const PdfPicture& picture : pictures.All()) {
    const QSizeF points(std::floor(static_cast<double>(picture.Width) / TwipsPerPoint) + 1,
                        PdfPictureHeight(picture.Height));
    writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.newPage();
    const auto* paintable = dynamic_cast<const PaintablePicture*>(picture.Source);
    if (paintable == nullptr) continue;
    painter.save();
    paintable->Paint(painter,
                     QRectF(0, 0, static_cast<double>(picture.Width), static_cast<double>(picture.Height)));
    painter.restore();
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

QPDFObjectHandle TakeFonts(QPDF& pdf, QPDFPageObjectHelper& page, const PdfGlyphs& glyphs) {
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

// A helper page as a form. Its content is taken as it is compressed.
QPDFObjectHandle TakeForm(QPDF& pdf, QPDFPageObjectHelper& page) {
  QPDFObjectHandle form = pdf.copyForeignObject(page.getObjectHandle().getKey("/Contents"));
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", page.getMediaBox().shallowCopy());
  dictionary.replaceKey("/Resources", pdf.copyForeignObject(page.getAttribute("/Resources", false)));
  return form;
}

}  // namespace

QPDFObjectHandle MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, const PdfPictures& pictures,
                               ReportFont& font) {
  HelperFile glyphFile(
      PaintHelperFile([&](QPdfWriter&, QPainter& painter) { DrawGlyphs(painter, glyphs, font); }));
  HelperFile pictureFile(PaintHelperFile(
      [&](QPdfWriter& writer, QPainter& painter) { PaintPictures(pictures, writer, painter); }));
  std::vector<QPDFPageObjectHelper> glyphPages = glyphFile.Pages();
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/Font", TakeFonts(pdf, glyphPages.at(0), glyphs));
  QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
  std::vector<QPDFPageObjectHelper> pages = pictureFile.Pages();
  for (std::size_t number = 0; number < pictures.All().size(); ++number) {
    forms.replaceKey("/P" + std::to_string(number), TakeForm(pdf, pages.at(number + 1)));
  }
  resources.replaceKey("/XObject", forms);
  return pdf.makeIndirectObject(resources);
}

}  // namespace tarvis
