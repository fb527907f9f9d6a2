// A PDF as an archive: what it says about itself, about its colours and its language.
#include <gtest/gtest.h>

#include <QColorSpace>
#include <QRegularExpression>
#include <QTimeZone>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

#include "preview/document_builder.h"
#include "preview/never_cancelled.h"
#include "preview/output/pdf_export.h"
#include "preview/output/pdf_picture_glyphs.h"
#include "preview/output/pdf_to_unicode.h"
#include "preview/output/srgb_profile.h"
#include "preview/sample_picture.h"

namespace tarvis {
namespace {

// A few words painted as text.
class WordsPicture : public SamplePicture {
 public:
  explicit WordsPicture(QString words, const char* family = "Liberation Sans")
      : words_(std::move(words)), family_(QString::fromLatin1(family)) {}
  void Paint(QPainter& painter, const QRectF& target) const override {
    painter.setFont(QFont(family_, 12));
    painter.drawText(target, words_);
  }

 private:
  QString words_;
  QString family_;
};

std::string BytesOf(QPDFObjectHandle stream) {
  const std::shared_ptr<Buffer> bytes = stream.getStreamData();
  return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// Which glyph each code of a font shows, two bytes a code, where that isn't the glyph of the same number.
std::vector<std::string> GlyphMapsOf(QPDF& pdf) {
  std::vector<std::string> maps;
  for (QPDFObjectHandle object : pdf.getAllObjects()) {
    if (!object.isDictionaryOfType("/Font", "/CIDFontType2")) continue;
    QPDFObjectHandle map = object.getKey("/CIDToGIDMap");
    maps.push_back(map.isStream() ? BytesOf(map) : std::string());
  }
  return maps;
}

// A document in memory, read by the library that takes PDFs apart.
class PdfArchive : public testing::Test {
 protected:
  void Make(const Document& document, const PdfInfo& info = {}) {
    bytes_ = MakePdf(document, PdfSheets::AllOf(document), info, GoOn);
    pdf_.processMemoryFile("test", bytes_.data(), bytes_.size());
  }
  void Make(const PdfInfo& info = {}) { Make(*DocumentBuilder().TablePages(1).Build(), info); }
  // The packet that readers find without reading the format.
  QString Xmp() const {
    const QString file = QString::fromUtf8(bytes_.data(), static_cast<qsizetype>(bytes_.size()));
    return file.section(QStringLiteral("<?xpacket begin="), 1)
        .section(QStringLiteral("<?xpacket end="), 0, 0);
  }
  // What an element of the packet holds, without the lists around it.
  QString Property(const char* name) const {
    const QString tag = QString::fromLatin1(name);
    QString content =
        Xmp().section(QStringLiteral("<%1>").arg(tag), 1).section(QStringLiteral("</%1>").arg(tag), 0, 0);
    content.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    for (const auto& [entity, text] :
         {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
      content.replace(QLatin1String(entity), QLatin1String(text));
    return content;
  }
  QString Entry(const char* key) {
    return QString::fromStdString(pdf_.getTrailer().getKey("/Info").getKey(key).getUTF8Value());
  }

  std::string bytes_;
  QPDF pdf_;
};

TEST_F(PdfArchive, SaysWhichPartOfTheStandardItKeepsTo) {
  Make();
  EXPECT_EQ(Property("pdfaid:part"), QStringLiteral("2"));
  EXPECT_EQ(Property("pdfaid:conformance"), QStringLiteral("U"));
  EXPECT_EQ(bytes_.substr(0, 8), "%PDF-1.7");
}

TEST_F(PdfArchive, SaysSoTooIfACharacterOfAPageHasNoGlyph) {
  Make(*DocumentBuilder().Page().Text("A\xEE\x80\x80", 1440, 720).Build());
  EXPECT_EQ(Property("pdfaid:part"), QStringLiteral("2"));
  const std::vector<std::string> maps = GlyphMapsOf(pdf_);
  EXPECT_EQ(maps.size(), 2U) << "of the letter and of the box";
  for (const std::string& map : maps) {
    for (std::size_t code = 1; 2 * code < map.size(); ++code)
      EXPECT_NE(map.substr(2 * code, 2), std::string(2, '\0')) << "the first glyph stands for no character";
  }
}

TEST_F(PdfArchive, SaysSoTooIfACharacterOfAPictureHasNoGlyph) {
  Make(*DocumentBuilder()
            .Page()
            .Picture(std::make_shared<WordsPicture>(QStringLiteral("A\uE000B")), {1440, 2000, 3000, 2000})
            .Build());
  EXPECT_EQ(Property("pdfaid:part"), QStringLiteral("2"));
  QPDFObjectHandle form =
      QPDFObjectHandle(pdf_.getAllPages().at(0)).getKey("/Resources").getKey("/XObject").getKey("/P0");
  EXPECT_TRUE(form.getDict().getKey("/Resources").getKey("/Font").hasKey("/Box"));
  const std::string content = BytesOf(form);
  EXPECT_EQ(content.find("<0000>"), std::string::npos) << content;
  EXPECT_EQ(CountOf(content, "Tj"), 3) << content;
  EXPECT_EQ(CountOf(content, "/Box"), 1) << content;
}

TEST_F(PdfArchive, HoldsTheDataIfTheyAreGiven) {
  const std::string data("File-Spec,3\r\nName,\x82\r\n");
  Make({QStringLiteral("Title"), {}, {}, {{"Sim.tmp", data}, {"Sim1.tmp", "b"}}});
  EXPECT_EQ(Property("pdfaid:part"), QStringLiteral("3"));
  EXPECT_EQ(Property("pdfaid:conformance"), QStringLiteral("U"));
  QPDFObjectHandle associated = pdf_.getRoot().getKey("/AF");
  ASSERT_EQ(associated.getArrayNItems(), 2);
  QPDFObjectHandle file = associated.getArrayItem(0);
  EXPECT_EQ(file.getKey("/UF").getUTF8Value(), "Sim.tmp");
  EXPECT_EQ(file.getKey("/AFRelationship").getName(), "/Data");
  QPDFObjectHandle stream = file.getKey("/EF").getKey("/F");
  EXPECT_EQ(stream.getDict().getKey("/Subtype").getName(), "/text/plain");
  const std::shared_ptr<Buffer> bytes = stream.getStreamData();
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()), data);
}

TEST_F(PdfArchive, SaysTheSameInBothFormsOfItsMetadata) {
  Make({QStringLiteral("Gains <1> & \"2\" 漢字"), QStringLiteral("Korvane & Co"),
        QDateTime({2026, 3, 5}, {10, 20, 30}, QTimeZone(3600))});
  EXPECT_EQ(Property("dc:title"), QStringLiteral("Gains <1> & \"2\" 漢字"));
  EXPECT_EQ(Property("dc:title"), Entry("/Title"));
  EXPECT_EQ(Property("dc:creator"), Entry("/Author"));
  EXPECT_EQ(Property("xmp:CreatorTool"), Entry("/Creator"));
  EXPECT_EQ(Property("pdf:Producer"), Entry("/Producer"));
  EXPECT_TRUE(Entry("/Producer").startsWith(QStringLiteral("Tarvis 0.")));
  EXPECT_EQ(Property("xmp:CreateDate"), QStringLiteral("2026-03-05T09:20:30Z"));
  EXPECT_EQ(Entry("/CreationDate"), QStringLiteral("D:20260305092030Z"));
  EXPECT_EQ(Property("xmp:ModifyDate"), Property("xmp:CreateDate"));
}

TEST_F(PdfArchive, ATitleWithControlCharactersIsTheSameInBothForms) {
  Make({QStringLiteral("A\x01") + QChar(u'\uFFFE') + QStringLiteral("B"), {}, {}});
  EXPECT_EQ(Entry("/Title"), QStringLiteral("A  B"));
  EXPECT_EQ(Property("dc:title"), Entry("/Title"));
}

TEST_F(PdfArchive, EveryStreamEndsWithALineEndBeforeItsKeyword) {
  Make(*DocumentBuilder()
            .TablePages(3)
            .Text("漢字", 1440, 400)
            .Picture(std::make_shared<ColourfulPicture>(), {1440, 2000, 3000, 2000})
            .Build());
  const QByteArray file(bytes_.data(), static_cast<qsizetype>(bytes_.size()));
  EXPECT_GT(file.count("endstream"), 10);
  EXPECT_EQ(file.count("\nendstream"), file.count("endstream"));
}

TEST_F(PdfArchive, ItsColoursAreThoseOfScreens) {
  Make();
  QPDFObjectHandle intents = pdf_.getRoot().getKey("/OutputIntents");
  ASSERT_EQ(intents.getArrayNItems(), 1);
  QPDFObjectHandle profile = intents.getArrayItem(0).getKey("/DestOutputProfile");
  EXPECT_EQ(profile.getDict().getKey("/N").getIntValue(), 3);
  const std::shared_ptr<Buffer> bytes = profile.getStreamData();
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()), SrgbProfile());
}

TEST(SrgbProfile, IsReadAsSrgbByOthers) {
  const std::string profile = SrgbProfile();
  const QColorSpace read = QColorSpace::fromIccProfile(QByteArray::fromStdString(profile));
  ASSERT_TRUE(read.isValid());
  EXPECT_EQ(read.primaries(), QColorSpace::Primaries::SRgb);
  const QColorTransform toScreen = read.transformationToColorSpace(QColorSpace(QColorSpace::SRgb));
  for (const QRgb color : {0xFF000000U, 0xFFFFFFFFU, 0xFFE0E0E0U, 0xFF0058A8U, 0xFFFF0000U, 0xFF010203U}) {
    const QRgb shown = toScreen.map(color);
    EXPECT_NEAR(qRed(shown), qRed(color), 1);
    EXPECT_NEAR(qGreen(shown), qGreen(color), 1);
    EXPECT_NEAR(qBlue(shown), qBlue(color), 1);
  }
}

TEST_F(PdfArchive, ShowsItsTitleInTheTitleBar) {
  Make();
  EXPECT_TRUE(pdf_.getRoot().getKey("/ViewerPreferences").getKey("/DisplayDocTitle").getBoolValue());
}

struct Language {
  int CodePage;
  const char* Tag;
};

class LanguageOfPdf : public testing::TestWithParam<Language> {};

TEST_P(LanguageOfPdf, IsThatOfTheCodePage) {
  const auto document = DocumentBuilder().CodePage(GetParam().CodePage).Page().Text("A", 1440, 720).Build();
  const std::string bytes = MakePdf(*document, PdfSheets::AllOf(*document), {}, GoOn);
  QPDF pdf;
  pdf.processMemoryFile("test", bytes.data(), bytes.size());
  EXPECT_EQ(pdf.getRoot().getKey("/Lang").getUTF8Value(), GetParam().Tag);
}

INSTANTIATE_TEST_SUITE_P(CodePages, LanguageOfPdf,
                         testing::Values(Language{0, "en"}, Language{1252, "en"}, Language{932, "ja"},
                                         Language{936, "zh-CN"}, Language{950, "zh-TW"},
                                         Language{1256, "ar"}),
                         [](const auto& sample) { return std::to_string(sample.param.CodePage); });

// The map of each font, of pages and pictures, as text.
std::vector<std::string> MapsOf(QPDF& pdf) {
  std::vector<std::string> maps;
  for (QPDFObjectHandle object : pdf.getAllObjects()) {
    if (!object.isDictionaryOfType("/Font", "/Type0")) continue;
    const std::shared_ptr<Buffer> bytes = object.getKey("/ToUnicode").getStreamData();
    maps.emplace_back(reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize());
  }
  return maps;
}

TEST_F(PdfArchive, EveryGlyphHasATextThatArchivesTake) {
  Make(*DocumentBuilder()
            .Page()
            .Text(std::string("A\xEF\xBB\xBF\xEF\xBF\xBE") + "B", 1440, 400)
            .Picture(std::make_shared<WordsPicture>(QStringLiteral("Torque [%]")), {1440, 2000, 3000, 2000})
            .Build());
  const std::vector<std::string> maps = MapsOf(pdf_);
  EXPECT_GE(maps.size(), 2U);  // of the page and of the picture
  for (const std::string& map : maps) {
    for (const char* text : {"> <0000>", "> <FEFF>", "> <FFFE>", "> <>"})
      EXPECT_EQ(map.find(text), std::string::npos) << map;
  }
}

// The content of a picture whose text has two characters of private use that its font has on each release.
std::string PictureOfPrivateUse(bool isTagged) {
  const auto words = std::make_shared<WordsPicture>(QStringLiteral("A\uF001B\uF001"), "DejaVu Sans");
  const auto document = DocumentBuilder().Page().Picture(words, {1440, 2000, 3000, 2000}).Build();
  PdfInfo info;
  info.IsTagged = isTagged;
  const std::string bytes = MakePdf(*document, PdfSheets::AllOf(*document), info, GoOn);
  QPDF pdf;
  pdf.processMemoryFile("test", bytes.data(), bytes.size());
  QPDFObjectHandle page(pdf.getAllPages().at(0));
  return BytesOf(page.getKey("/Resources").getKey("/XObject").getKey("/P0"));
}

TEST(PictureGlyphs, SayWhatTheyAreInATaggedPdfIfTheyAreOfPrivateUse) {
  const std::string content = PictureOfPrivateUse(true);
  EXPECT_EQ(CountOf(content, "Tj"), 4) << content;
  EXPECT_EQ(CountOf(content, "/ActualText<FEFFF001>"), 2) << content;
  EXPECT_EQ(CountOf(content, "EMC"), 2) << content;
}

TEST(PictureGlyphs, SayNothingMoreInAPdfThatIsNotTagged) {
  const std::string content = PictureOfPrivateUse(false);
  EXPECT_EQ(CountOf(content, "Tj"), 4) << content;
  EXPECT_EQ(CountOf(content, "/ActualText"), 0) << content;
}

TEST(PictureGlyphs, OnlyThoseOfPrivateUseAreNamed) {
  const std::vector<std::u32string> letters{U"", U"A", U"\uE000", U"B"}, signs{U"", U"\U00100001"};
  const TextsByFont texts{{"/F5", letters}, {"/F6", signs}};
  EXPECT_EQ(
      WithPrivateNamed("BT\n/F5 12 Tf 1 0 0 1 0 0 Tm\n0 0 Td <0001> Tj\n5 0 Td <0002> Tj\n5 0 Td <0003> "
                       "Tj\nET\n/F6 9 Tf\n<0001> Tj\n<0002> Tj\nET\n",
                       texts),
      "BT\n/F5 12 Tf 1 0 0 1 0 0 Tm\n0 0 Td <0001> Tj\n5 0 Td /Span<</ActualText<FEFFE000>>>BDC\n<0002> "
      "Tj\nEMC\n\n5 0 Td <0003> Tj\nET\n/F6 9 Tf\n/Span<</ActualText<FEFFDBC0DC01>>>BDC\n<0001> "
      "Tj\nEMC\n\n<0002> Tj\nET\n");
}

TEST(PictureGlyphs, WhatIsShownOnceMoreToLookBoldIsNamedOnce) {
  const std::vector<std::u32string> letters{U"", U"\uE000"};
  const TextsByFont texts{{"/F5", letters}};
  const std::string again = "/Span << /ActualText <> >> BDC\n<0001> Tj\nEMC\n";
  const std::string named = WithPrivateNamed("/F5 12 Tf\n<0001> Tj\n" + again + "<0001> Tj\n", texts);
  EXPECT_EQ(CountOf(named, "<FEFFE000>"), 2) << named;
  EXPECT_EQ(CountOf(named, again), 1) << named;
}

std::string CompletedMap(std::string_view map, std::size_t count) {
  return ToUnicodeMap(0, CompletedTexts(map, count));
}

TEST(CompletedMap, GivesGlyphsWithoutATextTheReplacementCharacter) {
  const std::string map = CompletedMap(
      "2 beginbfrange\n<0000> <0000> <0000>\n<0001> <0002> [<0041> <00660069> ]\n<0004> <0005> "
      "<0061>\nendbfrange\n",
      7);
  EXPECT_NE(map.find("7 beginbfchar\n<0000> <FFFD>\n<0001> <0041>\n<0002> <00660069>\n<0003> <FFFD>\n"
                     "<0004> <0061>\n<0005> <0062>\n<0006> <FFFD>\nendbfchar"),
            std::string::npos)
      << map;
}

TEST(CompletedMap, LosesNoTextWhereMoreGlyphsAreThereThanCounted) {
  const std::string map = CompletedMap("1 beginbfrange\n<0000> <0002> <0041>\nendbfrange\n", 0);
  EXPECT_NE(map.find("<0000> <0041>\n<0001> <0042>\n<0002> <0043>\n"), std::string::npos) << map;
}

}  // namespace
}  // namespace tarvis
