// Metafiles of independent writers, beside what an independent renderer made of them, or, for `lo_page`, of
// the writer's own page as it printed it.
#include <gtest/gtest.h>

#include <QFile>

#include "metafile_writer.h"
#include "support/source_folder.h"

namespace tarvis {
namespace {

struct Sample {
  const char* Name;
  double Tolerance;  // mean difference of grey, white to black being 1, at an eighth of the size
};

void PrintTo(const Sample& sample, std::ostream* out) {
  *out << sample.Name;
}

std::string ReadData(const std::string& name) {
  QFile file(QString::fromStdString(SourceFolder() + "/tests/pictures/data/" + name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll().toStdString();
}

QImage Eighth(const QImage& image) {
  return image.convertToFormat(QImage::Format_RGB32)
      .scaled(62, 46, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_Grayscale8);
}

double MeanDifference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) sum += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]);
  return sum / 255 / (a.width() * a.height());
}

class MetafileOfAnotherWriter : public testing::TestWithParam<Sample> {};

TEST_P(MetafileOfAnotherWriter, LooksAsAnIndependentRendererShowsIt) {
  const QImage reference(
      QString::fromStdString(SourceFolder() + "/tests/pictures/data/" + GetParam().Name + ".png"));
  ASSERT_FALSE(reference.isNull());
  const std::string bytes = ReadData(GetParam().Name);
  const QImage shown = PaintedPicture(bytes, reference.size());
  const double difference = MeanDifference(Eighth(shown), Eighth(reference));
  EXPECT_LT(difference, GetParam().Tolerance);
  // An empty page would differ more.
  QImage blank(reference.size(), QImage::Format_RGB32);
  blank.fill(Qt::white);
  EXPECT_LT(difference, MeanDifference(Eighth(blank), Eighth(reference)) * 0.75);
  EXPECT_EQ(Play(bytes)->SkippedRecords(), 0);
}

// Renderers place a frame within one percent of each other and weigh hairlines differently, so graphs of thin
// lines differ most; they are compared small, where that counts less.
INSTANTIATE_TEST_SUITE_P(Samples, MetafileOfAnotherWriter,
                         testing::Values(Sample{"fig_plot.emf", 0.03}, Sample{"fig_walk.emf", 0.02},
                                         Sample{"ink_bars.emf", 0.01}, Sample{"ink_curves.emf", 0.02},
                                         Sample{"gp_lines.emf", 0.04}, Sample{"gp_points.emf", 0.045},
                                         Sample{"gp_surface.emf", 0.03}, Sample{"ink_image.emf", 0.01},
                                         Sample{"ink_image.wmf", 0.01}, Sample{"ink_shapes.emf", 0.01},
                                         Sample{"ink_shapes.wmf", 0.01}, Sample{"lo_image.emf", 0.025},
                                         Sample{"lo_image.wmf", 0.01}, Sample{"lo_page.emf", 0.015},
                                         Sample{"lo_page.wmf", 0.015}, Sample{"lo_shapes.emf", 0.02},
                                         Sample{"lo_shapes.wmf", 0.01}));

TEST(MetafileOfAnotherWriter, AGradientCutToAShapeKeepsItsColorsAndStaysInside) {
  const QImage shown = PaintedPicture(ReadData("lo_deck.emf"), {480, 360});
  const QColor inside = shown.pixelColor(260, 160);
  EXPECT_GT(inside.red(), 200);
  EXPECT_LT(inside.blue(), 100);
  EXPECT_EQ(shown.pixelColor(164, 236), QColor(Qt::white));  // a corner of the ellipse's box
}

}  // namespace
}  // namespace tarvis
