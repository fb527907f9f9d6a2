#include "pictures/picture_file_loader.h"

#include <QFile>

#include "pictures/image_picture.h"
#include "pictures/metafile/fonts/glyph_outlines.h"
#include "pictures/metafile/list/metafile_picture.h"
#include "pictures/picture_budget.h"
#include "text/native_path.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr qint64 LargestFile = 96 << 20;
constexpr std::size_t LargestMetafile = 48 << 20;

[[noreturn]] void Refuse(const std::string& name, const std::string& reason) {
  throw RunTimeFailure("no picture that can be shown", {.File = name, .Line = 0, .Key = {}, .Text = reason});
}

Bytes AsBytes(std::string_view bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

}  // namespace

PicturePtr DecodePicture(const std::string& name, Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget) {
  if (bytes.empty()) Refuse(name, "it is empty");
  try {
    const bool emf = LooksLikeEmf(bytes);
    if (emf || LooksLikeWmf(bytes)) {
      if (bytes.size() > LargestMetafile) Refuse(name, "it is too large");
      return emf ? LoadEmf(bytes, glyphs, budget) : LoadWmf(bytes, glyphs, budget);
    }
    return std::make_shared<ImagePicture>(DecodeImage(bytes, FindImageKind(bytes)));
  } catch (const RunTimeFailure&) {
    throw;
  } catch (const std::exception& error) {
    Refuse(name, error.what());
  }
}

PictureFileLoader::PictureFileLoader(std::function<void()> answerEndRequest)
    : answerEndRequest_(std::move(answerEndRequest)), glyphs_(std::make_unique<GlyphOutlines>()) {}
PictureFileLoader::~PictureFileLoader() = default;

PicturePtr PictureFileLoader::Load(const std::string& path) {
  if (const auto known = loaded_.find(path); known != loaded_.end()) return known->second;
  QFile file(NativePath(path));
  if (!file.open(QIODevice::ReadOnly)) Refuse(path, file.errorString().toStdString());
  if (file.size() > LargestFile) Refuse(path, "it is too large");
  const QByteArray bytes = file.read(LargestFile + 1);
  PictureBudget budget(answerEndRequest_);
  const std::string_view content(bytes.data(), static_cast<std::size_t>(bytes.size()));
  return loaded_[path] = DecodePicture(path, AsBytes(content), *glyphs_, budget);
}

PicturePtr PictureFileLoader::LoadBytes(const std::string& name, std::string_view bytes) {
  if (const auto known = loaded_.find(name); known != loaded_.end()) return known->second;
  PictureBudget budget(answerEndRequest_);
  return loaded_[name] = DecodePicture(name, AsBytes(bytes), *glyphs_, budget);
}

}  // namespace tarvis
