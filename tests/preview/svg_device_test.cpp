// What a painter paints as an SVG file.
#include "preview/output/svg_device.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>
#include <functional>

namespace tarvis {
namespace {

// An element of a file with all its attributes.
struct Element {
  QString Name;
  QXmlStreamAttributes Attributes;
  QString operator[](const char* name) const {
    return Attributes.value(QString::fromLatin1(name)).toString();
  }
};

std::vector<Element> Painted(const std::function<void(QPainter&)>& paint) {
  SvgDevice device({1440, 720});
  QPainter painter(&device);
  paint(painter);
  painter.end();
  QXmlStreamReader reader(
      QByteArray::fromStdString(device.File(QStringLiteral("<T>"), QStringLiteral("a & b"))));
  std::vector<Element> elements;
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement)
      elements.push_back({reader.name().toString(), reader.attributes()});
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return elements;
}

std::vector<Element> Named(const std::vector<Element>& elements, const char* name) {
  std::vector<Element> found;
  for (const Element& element : elements) {
    if (element.Name == QLatin1String(name)) found.push_back(element);
  }
  return found;
}

TEST(SvgDevice, HasTheSizeOfThePage) {
  const std::vector<Element> elements = Painted([](QPainter&) {});
  EXPECT_EQ(elements.at(0)["width"], QStringLiteral("25.4mm"));
  EXPECT_EQ(elements.at(0)["height"], QStringLiteral("12.7mm"));
  EXPECT_EQ(elements.at(0)["viewBox"], QStringLiteral("0 0 1440 720"));
}

TEST(SvgDevice, IsReadableWhateverCharactersItsTextsHave) {
  const SvgDevice device({1440, 720});
  const QString noText = QStringLiteral("A\x01\x1F\uFFFE\uFFFFZ");
  QXmlStreamReader reader(QByteArray::fromStdString(device.File(noText, QStringLiteral("one\n") + noText)));
  QStringList texts;
  while (!reader.atEnd()) {
    const bool isText = reader.readNext() == QXmlStreamReader::StartElement &&
                        (reader.name() == QLatin1String("title") || reader.name() == QLatin1String("desc"));
    if (isText) texts.append(reader.readElementText());
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_EQ(texts, QStringList({QStringLiteral("A    Z"), QStringLiteral("one\nA    Z")}));
}

TEST(SvgDevice, KeepsLinesWithTheirPens) {
  const auto paths = Named(Painted([](QPainter& painter) {
                             QPen pen(QColor(255, 0, 0, 51), 20);
                             pen.setDashPattern({2, 1});
                             pen.setCapStyle(Qt::RoundCap);
                             painter.setPen(pen);
                             painter.drawLine(QPointF(10, 20), QPointF(30, 40.5));
                           }),
                           "path");
  ASSERT_EQ(paths.size(), 1U);
  EXPECT_EQ(paths[0]["d"].trimmed(), QStringLiteral("M10 20 L30 40.5"));
  EXPECT_EQ(paths[0]["fill"], QStringLiteral("none"));
  EXPECT_EQ(paths[0]["stroke"], QStringLiteral("#ff0000"));
  EXPECT_NEAR(paths[0]["stroke-opacity"].toDouble(), 0.2, 0.001);
  EXPECT_EQ(paths[0]["stroke-width"], QStringLiteral("20"));
  EXPECT_EQ(paths[0]["stroke-dasharray"], QStringLiteral("40 20"));
  EXPECT_EQ(paths[0]["stroke-linecap"], QStringLiteral("round"));
}

TEST(SvgDevice, KeepsClipsInsideOneAnother) {
  const auto elements = Painted([](QPainter& painter) {
    painter.setClipRect(QRectF(0, 0, 100.5, 100));
    painter.save();
    painter.setClipRect(QRectF(50, 50, 100, 100.5), Qt::IntersectClip);
    painter.fillRect(QRectF(0, 0, 10, 10), Qt::blue);
    painter.restore();
    painter.fillRect(QRectF(0, 0, 20, 20), Qt::green);
  });
  const auto clips = Named(elements, "clipPath");
  const auto groups = Named(elements, "g");
  ASSERT_EQ(clips.size(), 2U);
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(clips[1]["clip-path"], QStringLiteral("url(#%1)").arg(clips[0]["id"]));
  EXPECT_EQ(groups[0]["clip-path"], QStringLiteral("url(#%1)").arg(clips[1]["id"]));
  EXPECT_EQ(groups[1]["clip-path"], QStringLiteral("url(#%1)").arg(clips[0]["id"]));
}

// The numbers of the clips under which boxes are painted, one after the other; empty for none.
std::vector<QString> ClipsOf(const std::vector<Element>& elements) {
  std::vector<QString> clips;
  for (const Element& element : Named(elements, "g")) clips.push_back(element["clip-path"]);
  return clips;
}

void PaintOutsideAndInsideTheClip(QPainter& painter) {
  painter.fillRect(QRectF(0, 0, 20, 20), Qt::green);
  painter.setClipping(true);
  painter.fillRect(QRectF(0, 0, 30, 30), Qt::red);
}

TEST(SvgDevice, AClipThatIsSwitchedOnAgainClipsAsBefore) {
  const auto elements = Painted([](QPainter& painter) {
    painter.setClipRect(QRectF(0, 0, 100.5, 100));
    painter.fillRect(QRectF(0, 0, 10, 10), Qt::blue);
    painter.setClipping(false);
    PaintOutsideAndInsideTheClip(painter);
  });
  const std::vector<QString> clips = ClipsOf(elements);
  ASSERT_EQ(clips.size(), 2U) << "of the first and the third box";
  EXPECT_EQ(clips[0], clips[1]);
  EXPECT_EQ(Named(elements, "clipPath").size(), 1U);
}

TEST(SvgDevice, WhatIsSwitchedOffIsAsBeforeAfterAnInnerClip) {
  const auto elements = Painted([](QPainter& painter) {
    painter.setClipRect(QRectF(0, 0, 100.5, 100));
    painter.setClipping(false);
    painter.save();
    painter.setClipRect(QRectF(0, 0, 50.5, 50));
    painter.fillRect(QRectF(0, 0, 10, 10), Qt::blue);
    painter.restore();
    PaintOutsideAndInsideTheClip(painter);
  });
  const std::vector<QString> clips = ClipsOf(elements);
  ASSERT_EQ(clips.size(), 2U) << "of the first and the third box";
  EXPECT_NE(clips[0], clips[1]);
}

TEST(SvgDevice, PatternsAndGradientsStartAtTheOriginOfTheBrush) {
  const auto elements = Painted([](QPainter& painter) {
    QLinearGradient gradient(0, 0, 100, 0);
    painter.setBrushOrigin(30, 40);
    painter.fillRect(QRectF(0, 0, 100, 10), gradient);
    painter.fillRect(QRectF(0, 0, 100, 10), QBrush(Qt::red, Qt::DiagCrossPattern));
    painter.setBrushOrigin(0, 0);
    painter.fillRect(QRectF(0, 0, 100, 10), QBrush(Qt::red, Qt::DiagCrossPattern));
  });
  const auto patterns = Named(elements, "pattern");
  ASSERT_EQ(patterns.size(), 2U);
  EXPECT_EQ(patterns[0]["patternTransform"], QStringLiteral("matrix(1 0 0 1 30 40)"));
  EXPECT_EQ(patterns[1]["patternTransform"], QString());
  EXPECT_EQ(Named(elements, "linearGradient").at(0)["gradientTransform"],
            QStringLiteral("matrix(1 0 0 1 30 40)"));
}

TEST(SvgDevice, PlacesImagesWholeOrInPart) {
  QImage image(4, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  const auto images = Named(Painted([&](QPainter& painter) {
                              painter.drawImage(QRectF(100, 200, 400, 200), image);
                              painter.drawImage(QRectF(0, 0, 200, 200), image, QRectF(1, 0, 2, 2));
                            }),
                            "image");
  ASSERT_EQ(images.size(), 2U);
  EXPECT_EQ(images[0]["transform"], QStringLiteral("matrix(400 0 0 200 100 200)"));
  const auto pixels = [](const Element& element) {
    const QByteArray data = element.Attributes.value(QStringLiteral("xlink:href")).toLatin1();
    return QImage::fromData(QByteArray::fromBase64(data.mid(data.indexOf(',') + 1)));
  };
  EXPECT_EQ(pixels(images[0]).size(), QSize(4, 2));
  EXPECT_EQ(pixels(images[1]).size(), QSize(2, 2));
  EXPECT_EQ(pixels(images[1]).pixelColor(0, 0), QColor(Qt::red));
}

TEST(SvgDevice, WritesAGradientAndAPatternOnceForAllThatHaveThem) {
  const auto elements = Painted([](QPainter& painter) {
    QLinearGradient gradient(0, 0, 100, 0);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, Qt::black);
    for (int row = 0; row < 3; ++row) {
      painter.fillRect(QRectF(0, row * 20, 100, 10), gradient);
      painter.fillRect(QRectF(200, row * 20, 100, 10), QBrush(Qt::red, Qt::DiagCrossPattern));
    }
  });
  EXPECT_EQ(Named(elements, "linearGradient").size(), 1U);
  EXPECT_EQ(Named(elements, "stop").size(), 2U);
  EXPECT_EQ(Named(elements, "pattern").size(), 1U);
  EXPECT_EQ(Named(elements, "path").size(), 6U);
}

TEST(SvgDevice, LettersAreOutlines) {
  const auto elements = Painted([](QPainter& painter) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(200);
    painter.setFont(font);
    painter.drawText(QPointF(0, 200), QStringLiteral("g"));
  });
  EXPECT_TRUE(Named(elements, "text").empty());
  const auto paths = Named(elements, "path");
  ASSERT_EQ(paths.size(), 1U);
  EXPECT_GT(paths[0]["d"].count(QLatin1Char('C')), 5);
}

}  // namespace
}  // namespace tarvis
