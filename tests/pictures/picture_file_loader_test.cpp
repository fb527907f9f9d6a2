// Picture files by their content: which are loaded, which are refused and why.
#include "pictures/picture_file_loader.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "text/run_time_failure.h"

namespace tarvis {
namespace {

class PictureFiles : public testing::Test {
 protected:
  std::string Path(const QString& name) const { return folder_.filePath(name).toStdString(); }
  std::string Save(const QString& name, const char* format, QSize size = {20, 10}) const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.save(folder_.filePath(name), format);
    return Path(name);
  }

  PictureFileLoader loader_;
  QTemporaryDir folder_;
};

TEST_F(PictureFiles, AreLoadedByContentWhateverTheirName) {
  const PicturePtr picture = loader_.Load(Save("graph.emf", "BMP"));
  EXPECT_EQ(picture->NaturalWidth(), 2 * picture->NaturalHeight());
}

TEST_F(PictureFiles, PaintThemselvesIntoTheirBox) {
  const PicturePtr picture = loader_.Load(Save("a.bmp", "BMP"));
  QImage paper(40, 40, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  static_cast<const PaintablePicture&>(*picture).Paint(painter, QRectF(10, 10, 20, 20));
  painter.end();
  EXPECT_EQ(paper.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_EQ(paper.pixelColor(5, 20), QColor(Qt::white));
  EXPECT_EQ(paper.pixelColor(35, 20), QColor(Qt::white));
}

TEST_F(PictureFiles, AreLoadedOnceForEachPath) {
  const std::string path = Save("a.bmp", "BMP");
  const PicturePtr first = loader_.Load(path);
  QFile::remove(QString::fromStdString(path));
  EXPECT_EQ(loader_.Load(path), first);
}

TEST_F(PictureFiles, AreReadAnewOnceTheLoaderForgetsThem) {
  const std::string path = Save("graph.bmp", "BMP", {20, 10});
  const PicturePtr first = loader_.Load(path);
  Save("graph.bmp", "BMP", {10, 20});
  loader_.Forget();
  EXPECT_EQ(loader_.Load(path)->NaturalHeight(), 2 * first->NaturalHeight());
}

TEST_F(PictureFiles, HeldInMemoryAreKeptUnderTheirName) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImage(8, 4, QImage::Format_RGB32).save(&buffer, "BMP");
  const PicturePtr first = loader_.LoadBytes("band", {bytes.data(), static_cast<std::size_t>(bytes.size())});
  EXPECT_EQ(loader_.LoadBytes("band", {}), first);
}

TEST_F(PictureFiles, FailWithTheirNameAndTheReasonIfTheyAreNoPictures) {
  const std::string path = Path("letter.bmp");
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Dear reader");
  file.close();
  try {
    loader_.Load(path);
    FAIL() << "no failure";
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.Place().File, path);
    EXPECT_FALSE(failure.Place().Text.value_or("").empty());
  }
}

}  // namespace
}  // namespace tarvis
