#include "preview/paint/report_font.h"

#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QPainterPath>
#include <QTextLayout>

#include "pictures/font_families.h"
#include "report/engine/text_measurer.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

QFont AtFullSize(const QStringList& families, bool bold) {
  QFont font;
  font.setFamilies(families);
  font.setPixelSize(2048);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(false);
  return font;
}

QString BaseFamily() {
  static const bool isInstalled = QFontDatabase::families().contains(QLatin1String(FontFamily));
  static const QString family = QLatin1String(isInstalled ? FontFamily : SubstituteFamily);
  return family;
}

// The toolkit silently takes any other font for one whose file can't be read, and the pages would look
// different on every try.
QRawFont BaseFace(bool bold) {
  const QString family = BaseFamily();
  const QRawFont face = QRawFont::fromFont(AtFullSize({family}, bold));
  if (face.familyName() != family && QFontDatabase::families().contains(family)) {
    throw RunTimeFailure("a font can't be loaded", {.File = family.toStdString(), .Line = 0, .Key = {}});
  }
  return face;
}

bool IsCombining(char32_t character) {
  const QChar::Category category = QChar::category(character);
  return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

bool IsInvisible(char32_t character) {
  const QChar::Category category = QChar::category(character);
  return category == QChar::Other_Control || category == QChar::Other_Format;
}

// Whether a font has no outlines at all, as fonts of coloured signs: it says that it has TrueType outlines,
// but not where.
bool ConsistsOfPictures(const QRawFont& face) {
  const QByteArray profile = face.fontTable("maxp");
  return profile.startsWith(QByteArray("\0\1\0\0", 4)) && face.fontTable("loca").isEmpty();
}

// False for glyphs that are pictures: they can't be painted in every size on every device. A blank has
// nothing to outline.
bool HasOutline(const QRawFont& face, std::uint32_t glyph) {
  if (!face.pathForGlyph(glyph).isEmpty()) return true;
  return face.boundingRect(glyph).isEmpty() && !ConsistsOfPictures(face);
}

QRawFont AtDesignUnits(QRawFont font) {
  font.setPixelSize(font.unitsPerEm());
  return font;
}

}  // namespace

ReportFont& ReportFont::OfThisThread(int codePage) {
  thread_local std::map<int, ReportFont> fonts;
  return fonts.try_emplace(codePage, codePage).first->second;
}

ReportFont::ReportFont(int codePage) : codePage_(codePage) {
  for (const bool bold : {false, true}) faces_.push_back(AtDesignUnits(BaseFace(bold)));
  for (const bool bold : {false, true}) {
    for (char32_t character = 0; character < 128; ++character)
      ascii_[bold][character] = Look(character, bold);
  }
}

const FontGlyph& ReportFont::Find(char32_t character, bool bold) {
  if (character < 128) return ascii_[bold][character];
  const auto known = others_[bold].find(character);
  if (known != others_[bold].end()) return known->second;
  return others_[bold].emplace(character, Look(character, bold)).first->second;
}

const QRawFont& ReportFont::FaceAt(std::uint16_t face, double pixels) {
  const auto [place, isNew] = sized_.try_emplace({face, pixels}, faces_[face]);
  if (isNew) place->second.setPixelSize(pixels);
  return place->second;
}

FontGlyph ReportFont::Look(char32_t character, bool bold) {
  if (character == U'\t') character = U' ';
  FontGlyph found;
  found.Face = bold ? 1 : 0;
  found.Inks = !IsInvisible(character);
  if (!found.Inks) return found;
  const QString text = QString::fromUcs4(&character, 1);
  const QList<quint32> glyphs = faces_[found.Face].glyphIndexesForString(text);
  found.Glyph = glyphs.isEmpty() ? 0 : glyphs.front();
  if (found.Glyph == 0 && !LookInFamilies(character, bold, found)) LookInFallback(character, bold, found);
  if (!IsCombining(character)) found.AdvanceEm = DesignAdvance(found.Face, found.Glyph);
  return found;
}

// The first installed family of the code page that has the character. The toolkit would ask them in an order
// of its own.
bool ReportFont::LookInFamilies(char32_t character, bool bold, FontGlyph& found) {
  for (const QString& family : FamiliesOf(codePage_)) {
    if (!QFontDatabase::hasFamily(family)) continue;
    const QRawFont face = QRawFont::fromFont(AtFullSize({family}, bold));
    const QList<quint32> glyphs = face.glyphIndexesForString(QString::fromUcs4(&character, 1));
    if (glyphs.isEmpty() || glyphs.front() == 0 || !HasOutline(face, glyphs.front())) continue;
    found.Glyph = glyphs.front();
    found.Face = NumberOf(face);
    return true;
  }
  return false;
}

// The box of the first face remains if no font has the character.
bool ReportFont::LookInFallback(char32_t character, bool bold, FontGlyph& found) {
  QTextLayout layout(QString::fromUcs4(&character, 1), ForLayout(bold));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  const QList<QGlyphRun> runs = layout.glyphRuns();
  if (runs.isEmpty() || runs.front().glyphIndexes().isEmpty() || runs.front().glyphIndexes().front() == 0) {
    return false;
  }
  const std::uint16_t face = NumberOf(runs.front().rawFont());
  const std::uint32_t glyph = runs.front().glyphIndexes().front();
  if (!HasOutline(faces_[face], glyph)) return false;
  found.Glyph = glyph;
  found.Face = face;
  return true;
}

float ReportFont::DesignAdvance(std::uint16_t face, std::uint32_t glyph) const {
  const QList<QPointF> advances = faces_[face].advancesForGlyphIndexes({glyph}, QRawFont::UseDesignMetrics);
  return advances.isEmpty() ? 0 : static_cast<float>(advances.front().x() / faces_[face].unitsPerEm());
}

QFont ReportFont::ForLayout(bool bold) const {
  return AtFullSize(QStringList(BaseFamily()) + FamiliesOf(codePage_), bold);
}

const FontGlyph& ReportFont::Drawn(std::uint16_t face, std::uint32_t glyph) {
  const auto [place, isNew] = drawn_.try_emplace({face, glyph});
  FontGlyph& drawn = place->second;
  if (!isNew) return drawn;
  const bool isBox = glyph == 0 || !HasOutline(faces_[face], glyph);
  drawn.Glyph = isBox ? 0 : glyph;
  drawn.Face = isBox ? std::uint16_t{0} : face;
  drawn.AdvanceEm = DesignAdvance(drawn.Face, drawn.Glyph);
  return drawn;
}

bool ReportFont::IsThickened(std::uint16_t face) {
  const auto [place, isNew] = thickened_.try_emplace(face, false);
  if (!isNew || faces_[face].weight() <= QFont::Normal) return place->second;
  const QRawFont plain = QRawFont::fromFont(AtFullSize({faces_[face].familyName()}, false));
  place->second =
      faces_[face].weight() > plain.weight() && faces_[face].fontTable("head") == plain.fontTable("head");
  return place->second;
}

QRawFont ReportFont::AsInItsFile(std::uint16_t face, double pixels) {
  if (!IsThickened(face)) return FaceAt(face, pixels);
  QRawFont plain = QRawFont::fromFont(AtFullSize({faces_[face].familyName()}, false));
  plain.setPixelSize(pixels);
  return plain;
}

std::uint16_t ReportFont::NumberOf(const QRawFont& font) {
  for (std::size_t index = 0; index < faces_.size(); ++index) {
    const QRawFont& face = faces_[index];
    if (face.familyName() == font.familyName() && face.styleName() == font.styleName())
      return static_cast<std::uint16_t>(index);
  }
  faces_.push_back(AtDesignUnits(font));
  return static_cast<std::uint16_t>(faces_.size() - 1);
}

}  // namespace tarvis
