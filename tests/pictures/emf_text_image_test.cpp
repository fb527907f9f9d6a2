// Text and bitmaps of enhanced metafiles.
#include <gtest/gtest.h>

#include "metafile_writer.h"
#include "pixel_colors.h"

namespace tarvis {
namespace {

// The box around what isn't white.
QRect Ink(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if ((image.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) ink |= QRect(x, y, 1, 1);
  return ink;
}

EmfWriter TextEmf(int height = -40) {
  EmfWriter emf;
  emf.Set(18, 1).Font(height, "Arial");
  return emf;
}

TEST(EmfText, ExtendsDownOrUpFromItsPoint) {
  const QRect top = Ink(TextEmf().Text(10, 20, "H").Show());
  const QRect baseline = Ink(TextEmf().Set(22, 24).Text(10, 60, "H").Show());
  const QRect bottom = Ink(TextEmf().Set(22, 8).Text(10, 60, "H").Show());
  EXPECT_NEAR(top.top(), 27, 2);  // 40 high, 36.2 of it above the baseline, letters 28.6
  EXPECT_NEAR(baseline.bottom(), 59, 1);
  EXPECT_NEAR(bottom.bottom(), 51, 2);
}

TEST(EmfText, HeightAboveZeroIsThatOfTheCell) {
  const int em = Ink(TextEmf(-40).Text(10, 20, "H").Show()).height();
  const int cell = Ink(TextEmf(40).Text(10, 20, "H").Show()).height();
  EXPECT_NEAR(cell, em / 1.117, 1.5);
}

// The mean width of Latin text is 0.441 em in this font and 0.6 em in the other, by their design.
TEST(EmfText, AWidthThatIsTheMeanOfTheFontChangesNothing) {
  const auto widthOf = [](const char* face, int width) {
    EmfWriter emf;
    emf.Set(18, 1).Set(17, 8).Font(-1000, face, 0, 0, width).Pair(9, 10000, 10000).Pair(11, 100, 100);
    return Ink(emf.Text(100, 1000, "Velocity [rpm]").Show({1000, 1000})).width();
  };
  EXPECT_NEAR(widthOf("Arial", 441), widthOf("Arial", 0), 4);
  EXPECT_NEAR(widthOf("Courier New", 600), widthOf("Courier New", 0), 4);
  EXPECT_NEAR(widthOf("Arial", 220), widthOf("Arial", 0) / 2.0, 6);
}

TEST(EmfText, KnowsItsCharactersAndTheirPlaces) {
  const auto picture = Play(TextEmf(-20).Set(22, 24).Text(10, 60, "Ab c", {14, 12, 6, 10}).Bytes());
  ASSERT_EQ(picture->Texts().size(), 1u);
  const PictureText& text = picture->Texts()[0];
  EXPECT_EQ(text.Text, "Ab c");
  ASSERT_EQ(text.Edges.size(), 8u);
  EXPECT_NEAR(text.Edges[0].X, 0.10F, 1e-3);
  EXPECT_NEAR(text.Edges[1].X, 0.24F, 1e-3);
  EXPECT_NEAR(text.Edges[2].X, 0.24F, 1e-3);
  EXPECT_NEAR(text.Edges[7].X, 0.52F, 1e-3);
  EXPECT_NEAR(text.Edges[0].Y, 0.60F, 1e-3);
  EXPECT_NEAR(text.Up.Y, -0.181F, 5e-3);
  EXPECT_NEAR(text.Down.Y, 0.042F, 5e-3);
}

constexpr std::uint32_t GlyphIndexes = 0x10;

// Glyphs of ASCII have their code less 29 in these fonts.
std::string AsGlyphs(std::string text) {
  for (char& c : text) c = static_cast<char>(c - 29);
  return text;
}

TEST(EmfText, GlyphNumbersAreDrawnWhereTheFontOrItsTwinIsThere) {
  const EmfWriter letters = TextEmf(-20).Text(5, 20, "Time");
  const EmfWriter glyphs = TextEmf(-20).Text(5, 20, AsGlyphs("Time"), {}, GlyphIndexes);
  EXPECT_EQ(glyphs.Show(), letters.Show());
  EXPECT_EQ(Play(glyphs.Bytes())->Texts()[0].Text, "Time");
}

std::string ReasonOf(const std::string& bytes) {
  try {
    Play(bytes);
  } catch (const BadMetafile& failure) {
    return failure.what();
  }
  return "it loads";
}

constexpr const char* GlyphsOfArial = "its text consists of glyph numbers of the font \"Arial\"";

TEST(EmfText, GlyphNumbersOfAnotherFontRefuseThePictureWithItsName) {
  EmfWriter emf;
  emf.Pen(0, 3).Rectangle(5, 5, 90, 90).Font(-20, "Frutiger Next");
  EXPECT_EQ(ReasonOf(emf.Text(5, 20, AsGlyphs("Time"), {}, GlyphIndexes).Bytes()),
            "its text consists of glyph numbers of the font \"Frutiger Next\", which isn't installed");
}

TEST(EmfText, AnUnknownGlyphNumberOfAKnownFontIsRefusedByNumber) {
  const std::string unknown =
      "; what number 200 shows isn't known from the installed font \"Liberation Sans\"";
  EXPECT_EQ(ReasonOf(TextEmf(-20).Text(5, 20, AsGlyphs("Time") + '\xC8', {}, GlyphIndexes).Bytes()),
            GlyphsOfArial + unknown);
}

TEST(EmfText, AGlyphNumberThatAnInstalledFontHasNotIsRefusedByNumber) {
  EmfWriter emf = TextEmf().Font(-20, "Liberation Sans");
  const std::string reason = ReasonOf(emf.Text(5, 20, std::string(1, '\0'), {}, GlyphIndexes).Bytes());
  EXPECT_NE(reason.find("what number 0 shows isn't known"), std::string::npos) << reason;
}

TEST(EmfText, GlyphNumbersThatAreAsWideAsOtherLettersAreRefused) {
  EXPECT_EQ(ReasonOf(TextEmf(-20).Text(5, 20, AsGlyphs("iii"), {14, 14, 14}, GlyphIndexes).Bytes()),
            GlyphsOfArial +
                std::string(", but is not as wide as the letters of the installed font \"Liberation Sans\""));
}

TEST(EmfText, AlignsLeftRightAndCentred) {
  const QRect left = Ink(TextEmf().Text(50, 20, "H").Show());
  const QRect right = Ink(TextEmf().Set(22, 2).Text(50, 20, "H").Show());
  const QRect centre = Ink(TextEmf().Set(22, 6).Text(50, 20, "H").Show());
  EXPECT_GE(left.left(), 50);
  EXPECT_LE(right.right(), 50);
  EXPECT_NEAR(centre.center().x(), 50, 2);
}

TEST(EmfText, KeepsTheWidthsOfTheRecord) {
  const QImage shown = TextEmf(-20).Text(0, 20, "II", {60, 10}).Show();
  EXPECT_GT(InkedPixels(shown, QRect(0, 0, 20, 100)), 0);
  EXPECT_EQ(InkedPixels(shown, QRect(20, 0, 38, 100)), 0);
  EXPECT_GT(InkedPixels(shown, QRect(58, 0, 20, 100)), 0);
}

TEST(EmfText, TurnsWithTheFont) {
  EmfWriter emf;
  emf.Set(18, 1).Set(22, 24).Font(-20, "Arial", 900).Text(50, 90, "HHH");
  const QRect ink = Ink(emf.Show());
  EXPECT_GT(ink.height(), 2 * ink.width());
  EXPECT_LE(ink.right(), 51);
  EXPECT_NEAR(ink.bottom(), 88, 3);
}

TEST(EmfText, IsUprightWhereTheAxisPointsUp) {
  EmfWriter emf;
  emf.Set(17, 8)
      .Pair(9, 100, -100)
      .Pair(11, 100, 100)
      .Pair(12, 0, 100)
      .Set(18, 1)
      .Set(22, 24)
      .Font(-40, "Arial");
  const QImage shown = emf.Text(10, 30, "L").Show();
  // The foot of the letter is wide, its head narrow.
  EXPECT_GT(InkedPixels(shown, QRect(0, 65, 100, 5)), InkedPixels(shown, QRect(0, 45, 100, 5)));
}

TEST(EmfText, AnOpaqueBackgroundFillsItsCell) {
  const QImage shown = EmfWriter().Set(25, GreenInk).Set(18, 2).Font(-40, "Arial").Text(10, 20, "I").Show();
  EXPECT_EQ(shown.pixelColor(11, 22), Green);
  EXPECT_EQ(InkedPixels(TextEmf().Set(25, GreenInk).Text(10, 20, " ").Show()), 0);
}

TEST(EmfText, ABoxIsFilledAndClips) {
  EmfWriter emf = TextEmf();
  emf.Set(25, GreenInk).Text(0, 20, "HHHHH", {}, 2 | 4, Box32(10, 10, 50, 90));
  const QImage shown = emf.Show();
  EXPECT_EQ(shown.pixelColor(12, 12), Green);
  EXPECT_EQ(InkedPixels(shown, QRect(51, 0, 49, 100)), 0);
}

TEST(EmfText, MovesThePositionWhereTheAlignmentAsksForIt) {
  const QImage shown =
      TextEmf(-20).Set(22, 1).Pair(27, 10, 10).Text(0, 0, "A", {50}).Text(0, 0, "B", {10}).Show();
  EXPECT_GT(InkedPixels(shown, QRect(58, 10, 20, 30)), 0);
}

TEST(EmfText, TurnsTheOtherWayWhereOneAxisIsTurnedRound) {
  const auto shown = [](int escapement) {
    EmfWriter emf;
    emf.Set(17, 8).Pair(9, 100, -100).Pair(11, 100, 100).Pair(12, 0, 100).Set(18, 1).Set(22, 24);
    return emf.Font(-20, "Arial", escapement).Text(50, 10, "HHL").Show();
  };
  EXPECT_LT(Ink(shown(2700)).bottom(), 92);  // upwards from its point, as a title beside an axis
  EXPECT_GT(Ink(shown(900)).top(), 85);
}

TEST(EmfText, TurnsAsTheFontSaysWhereBothExtentsAreTurnedRound) {
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 100, -100).Pair(11, 100, -100).Set(18, 1).Set(22, 24);
  EXPECT_LT(Ink(emf.Font(-20, "Arial", 900).Text(50, 90, "HHL").Show()).bottom(), 92);
}

TEST(EmfText, RisesMoveThePositionToo) {
  ByteWriter pairs = Box32(0, 0, 0, 0).U32(1).F32(1).F32(1).I32(0).I32(0).U32(1).U32(76).U32(0x2000);
  pairs.Add(Box32(0, 0, 0, 0)).U32(80).U16('A').U16(0).I32(30).I32(40);
  EmfWriter emf = TextEmf(-20);
  emf.Set(22, 1 | 24).Pair(27, 10, 90).Add(84, pairs).Text(0, 0, "A", {10});
  EXPECT_EQ(InkedPixels(emf.Show(), QRect(36, 60, 64, 40)), 0);
  EXPECT_GT(InkedPixels(emf.Show(), QRect(36, 30, 64, 25)), 0);
}

TEST(EmfText, AWidthThatRepeatsTheHeightKeepsLettersAsTheyAre) {
  const auto shown = [](int width) {
    ByteWriter font;
    font.U32(1).I32(-40).I32(width).I32(0).I32(0).I32(400).U32(0).U32(0).Text(
        std::string("A\0r\0i\0a\0l\0", 10));
    EmfWriter emf;
    return emf.Set(18, 1).Add(82, font.Zeros(54)).Select(1).Text(5, 20, "H", {40}).Show();
  };
  EXPECT_EQ(shown(40), shown(0));
  EXPECT_NE(shown(30), shown(0));
}

TEST(EmfText, APictureFontWithoutKnownCharactersIsCountedNotShownAsLetters) {
  for (const char* face : {"Wingdings 3", "MT Extra"}) {
    const std::string bytes = TextEmf().Font(-40, face, 0, 2).Text(10, 20, "A").Rectangle(0, 0, 9, 9).Bytes();
    EXPECT_EQ(Play(bytes)->SkippedRecords(), 1) << face;
    EXPECT_EQ(InkedPixels(PaintedPicture(bytes, {100, 100}), QRect(10, 10, 90, 90)), 0) << face;
  }
}

TEST(EmfText, APictureFontIsFoundHoweverItsNameIsWritten) {
  EXPECT_EQ(TextEmf().Font(-40, "WingDings", 0, 2).Text(10, 20, "l").Show(),
            TextEmf().Font(-40, "Wingdings", 0, 2).Text(10, 20, "l").Show());
  EXPECT_GT(InkedPixels(TextEmf().Font(-40, "Wingdings 2", 0, 2).Text(10, 20, "P").Show()), 20);
}

TEST(EmfText, HasItsColor) {
  const QImage shown = TextEmf(-60).Set(24, RedInk).Text(10, 10, "I").Show();
  const QPoint middle = Ink(shown).center();
  EXPECT_EQ(shown.pixelColor(middle), Red);
}

TEST(EmfText, ASymbolFontShowsGreekLetters) {
  const auto shown = [](const std::string& face, std::uint16_t code, std::uint32_t charset) {
    EmfWriter emf;
    emf.Set(18, 1).Font(-40, face, 0, charset);
    ByteWriter text = Box32(0, 0, 0, 0).U32(1).F32(1).F32(1).I32(10).I32(20).U32(1).U32(76).U32(0);
    emf.Add(84, text.Add(Box32(0, 0, 0, 0)).U32(0).U16(code));
    return emf.Show();
  };
  EXPECT_EQ(shown("Symbol", 'W', 2), shown("Symbol", 0xF057, 2));
  EXPECT_GT(InkedPixels(shown("Symbol", 'W', 2)), 20);
  EXPECT_NE(shown("Symbol", 'W', 2), shown("Arial", 'W', 0));
}

TEST(EmfText, TextOfEightBitsFollowsTheCharsetOfItsFont) {
  const auto shown = [](std::uint32_t charset, const std::string& bytes, std::uint32_t record) {
    EmfWriter emf;
    emf.Set(18, 1).Font(-40, "Arial", 0, charset);
    ByteWriter text = Box32(0, 0, 0, 0).U32(1).F32(1).F32(1).I32(10).I32(20).U32(1).U32(76).U32(0);
    return emf.Add(record, text.Add(Box32(0, 0, 0, 0)).U32(0).Text(bytes)).Show();
  };
  EXPECT_EQ(shown(204, "\xC6", 83), shown(0, std::string("\x16\x04", 2), 84));  // a Cyrillic letter
  EXPECT_NE(shown(204, "\xC6", 83), shown(0, "\xC6", 83));
}

TEST(EmfText, SmallRecordsShow) {
  ByteWriter text;
  text.I32(10).I32(20).U32(1).U32(0x300).U32(1).F32(1).F32(1).Text("H");
  EXPECT_EQ(Ink(TextEmf().Add(108, text).Show()), Ink(TextEmf().Text(10, 20, "H").Show()));
}

// Left half red, right half blue; the bottom row is green.
ByteWriter Flag() {
  return Dib24(4, 4, [](int x, int y) { return y == 3 ? Green : x < 2 ? Red : Blue; });
}

ByteWriter StretchDib(const ByteWriter& dib, int x, int y, int width, int height,
                      std::uint32_t rop = 0x00CC0020, const ByteWriter& source = Box32(0, 0, 4, 4)) {
  ByteWriter out = Box32(0, 0, 0, 0).I32(x).I32(y).Add(source).U32(80).U32(40).U32(120);
  out.U32(static_cast<std::uint32_t>(dib.Size() - 40)).U32(0).U32(rop).I32(width).I32(height);
  return out.Add(dib);
}

TEST(EmfImages, ADibFillsItsPlace) {
  const QImage shown = EmfWriter().Add(81, StretchDib(Flag(), 20, 20, 40, 40)).Show();
  EXPECT_EQ(shown.pixelColor(25, 25), Red);
  EXPECT_EQ(shown.pixelColor(55, 25), Blue);
  EXPECT_EQ(shown.pixelColor(40, 57), Green);
  EXPECT_EQ(shown.pixelColor(62, 40), White);
}

TEST(EmfImages, NegativeSizesMirror) {
  const QImage shown = EmfWriter().Add(81, StretchDib(Flag(), 60, 60, -40, -40)).Show();
  EXPECT_EQ(shown.pixelColor(25, 50), Blue);
  EXPECT_EQ(shown.pixelColor(55, 50), Red);
  EXPECT_EQ(shown.pixelColor(40, 23), Green);
}

TEST(EmfImages, PartsOfADibCountFromItsBottom) {
  const QImage shown =
      EmfWriter().Add(81, StretchDib(Flag(), 0, 0, 100, 100, 0x00CC0020, Box32(0, 0, 4, 1))).Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Green);
}

TEST(EmfImages, ABlockWithoutSourceIsFilledByTheBrush) {
  const auto shown = [](std::uint32_t rop) {
    ByteWriter block = Box32(0, 0, 0, 0).I32(20).I32(20).I32(40).I32(40).U32(rop).Zeros(8 + 24 + 4 + 4 + 16);
    return EmfWriter().Brush(RedInk).Add(76, block).Show().pixelColor(40, 40);
  };
  EXPECT_EQ(shown(0x00F00021), Red);
  EXPECT_EQ(shown(0x00000042), Black);
  EXPECT_EQ(shown(0x00FF0062), White);
  EXPECT_EQ(shown(0x00550009), Black);
}

ByteWriter BitBlock(const ByteWriter& dib, std::uint32_t operation, bool stretch) {
  ByteWriter out = Box32(0, 0, 0, 0).I32(0).I32(0).I32(100).I32(100).U32(operation).I32(0).I32(0);
  out.F32(1).F32(0).F32(0).F32(1).F32(0).F32(0).U32(0).U32(0);
  const std::uint32_t start = stretch ? 108 : 100;
  out.U32(start).U32(40).U32(start + 40).U32(static_cast<std::uint32_t>(dib.Size() - 40));
  if (stretch) out.I32(4).I32(4);
  return out.Add(dib);
}

TEST(EmfImages, StretchedBlocksShow) {
  const QImage shown = EmfWriter().Add(77, BitBlock(Flag(), 0x00CC0020, true)).Show();
  EXPECT_EQ(shown.pixelColor(10, 10), Red);
  EXPECT_EQ(shown.pixelColor(90, 10), Blue);
  EXPECT_EQ(shown.pixelColor(50, 95), Green);
}

// Icons come so, with the picture painted or XORed onto what the mask has left.
TEST(EmfImages, MaskAndPictureShowThePictureOnly) {
  const auto mask = Dib24(4, 4, [](int x, int) { return x < 2 ? Black : White; });
  const auto picture = Dib24(4, 4, [](int x, int) { return x < 2 ? Red : Black; });
  for (const std::uint32_t operation : {0x00EE0086U, 0x00660046U}) {
    const QImage shown = EmfWriter()
                             .Brush(GreenInk)
                             .Rectangle(-1, -1, 101, 101)
                             .Add(77, BitBlock(mask, 0x008800C6, true))
                             .Add(77, BitBlock(picture, operation, true))
                             .Show();
    EXPECT_EQ(shown.pixelColor(10, 50), Red) << operation;
    EXPECT_EQ(shown.pixelColor(90, 50), Green) << operation;
  }
}

TEST(EmfImages, PictureMaskPictureShowThePictureOnly) {
  const auto mask = Dib24(4, 4, [](int x, int) { return x < 2 ? Black : White; });
  const auto picture = Dib24(4, 4, [](int, int) { return Red; });
  const QImage shown = EmfWriter()
                           .Brush(GreenInk)
                           .Rectangle(-1, -1, 101, 101)
                           .Add(77, BitBlock(picture, 0x00660046, true))
                           .Add(77, BitBlock(mask, 0x008800C6, true))
                           .Add(77, BitBlock(picture, 0x00660046, true))
                           .Show();
  EXPECT_EQ(shown.pixelColor(10, 50), Red);
  EXPECT_EQ(shown.pixelColor(90, 50), Green);
}

TEST(EmfImages, BlendByOneOpacity) {
  const auto picture = Dib24(4, 4, [](int, int) { return Black; });
  const QImage shown = EmfWriter().Add(114, BitBlock(picture, 0x00800000, true)).Show();
  EXPECT_NEAR(shown.pixelColor(50, 50).red(), 127, 2);
}

TEST(EmfImages, BlendByTheirOwnAlpha) {
  ByteWriter dib;
  dib.I32(40).I32(1).I32(1).U16(1).U16(32).Zeros(24).U32(0x80800000);
  ByteWriter out = BitBlock(dib, 0x01FF0000, true);
  const QImage shown = EmfWriter().Add(114, out).Show();
  EXPECT_EQ(shown.pixelColor(10, 90), White);  // the record's source is 4 by 4, the bitmap 1 by 1
  EXPECT_NEAR(shown.pixelColor(10, 10).red(), 255, 1);
  EXPECT_NEAR(shown.pixelColor(10, 10).green(), 127, 1);
}

TEST(EmfImages, OneColorMayBeTransparent) {
  const QImage shown = EmfWriter().Add(116, BitBlock(Flag(), RedInk, true)).Show();
  EXPECT_EQ(shown.pixelColor(10, 10), White);
  EXPECT_EQ(shown.pixelColor(90, 10), Blue);
}

TEST(EmfImages, AreSetToTheDevicePixelByPixel) {
  const ByteWriter dib = Flag();
  ByteWriter out = Box32(0, 0, 0, 0).I32(50).I32(50).Add(Box32(0, 0, 4, 4)).U32(76).U32(40).U32(116);
  out.U32(static_cast<std::uint32_t>(dib.Size() - 40)).U32(0).U32(0).U32(4).Add(dib);
  const QImage shown = EmfWriter().Add(80, out).Show();
  EXPECT_EQ(Ink(shown), QRect(50, 50, 4, 4));
  EXPECT_EQ(shown.pixelColor(50, 50), Red);
}

TEST(EmfImages, FillParallelograms) {
  const ByteWriter dib = Flag();
  ByteWriter out = Box32(0, 0, 0, 0).I32(100).I32(0).I32(100).I32(100).I32(0).I32(0).Add(Box32(0, 0, 4, 4));
  out.F32(1).F32(0).F32(0).F32(1).F32(0).F32(0).U32(0).U32(0);
  out.U32(140).U32(40).U32(180).U32(static_cast<std::uint32_t>(dib.Size() - 40)).Zeros(12 + 16).Add(dib);
  const QImage shown = EmfWriter().Add(79, out).Show();
  EXPECT_EQ(shown.pixelColor(70, 10), Red);  // turned by a quarter
  EXPECT_EQ(shown.pixelColor(70, 90), Blue);
  EXPECT_EQ(shown.pixelColor(5, 50), Green);
}

}  // namespace
}  // namespace tarvis
