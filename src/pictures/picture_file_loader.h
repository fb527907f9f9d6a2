// Loads picture files by what they hold, not by what they are called.
#pragma once

#include <functional>
#include <map>

#include "pictures/byte_reader.h"
#include "pictures/paintable_picture.h"

namespace tarvis {

class GlyphOutlines;
class PictureBudget;

// Keeps each picture until `Forget` is called.
class PictureFileLoader : public PictureLoader {
 public:
  // While a picture loads, `answerEndRequest` is called again and again: it may end the process.
  explicit PictureFileLoader(std::function<void()> answerEndRequest = {});
  ~PictureFileLoader() override;
  PicturePtr Load(const std::string& path) override;
  // Pictures that reports load from now on are read anew.
  void Forget() { loaded_.clear(); }
  PicturePtr LoadBytes(const std::string& name, std::string_view bytes) override;

 private:
  std::function<void()> answerEndRequest_;
  std::map<std::string, PicturePtr> loaded_;
  std::unique_ptr<GlyphOutlines> glyphs_;
};

// Decodes a picture of any kind, metafiles with the outlines of `glyphs`; `name` is its name in the
// RunTimeFailure that says why it can't be shown.
PicturePtr DecodePicture(const std::string& name, Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget);

}  // namespace tarvis
