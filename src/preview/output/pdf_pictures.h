// The pictures of a PDF, painted by the toolkit into a helper file as soon as a page shows them: while a PDF
// is made of pages as they are composed, the next graphs are read meanwhile.
#pragma once

#include <QByteArray>
#include <cstddef>
#include <map>
#include <optional>
#include <tuple>

#include "preview/output/pdf_helper_file.h"
#include "report/engine/picture.h"

namespace tarvis {

// Height in points of the form that holds a picture `height` twips high.
inline int PdfPictureHeight(float height) {
  return static_cast<int>(height / TwipsPerPoint) + 1;
}

// Each size of each picture once. Belongs to the thread that asks for the first number.
class PdfPictures {
 public:
  // Content draws the picture in that size (twips) by the name "P" and this number.
  std::size_t Number(const Picture& picture, float width, float height);
  std::size_t Count() const { return numbers_.size(); }
  // A helper file with a page for each picture after an empty one. To be called once, as the last one, and
  // only if there are pictures.
  QByteArray Finish() { return painted_->Finish(); }

 private:
  void Paint(const Picture& picture, float width, float height);

  std::map<std::tuple<const Picture*, float, float>, std::size_t> numbers_;
  std::optional<HelperFilePainter> painted_;
};

}  // namespace tarvis
