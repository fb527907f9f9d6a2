// Metafiles inside metafiles: images of the extended records that are metafiles themselves.
#include "pictures/metafile/emf_plus/emf_plus_objects.h"

namespace tarvis {
namespace {

enum ImageType : std::uint32_t { Metafile = 2 };

// Counts how deep pictures lie in each other, also when loading fails.
class InnerPicture {
 public:
  explicit InnerPicture(PictureBudget& budget) : budget_(budget) { budget_.EnterPicture(); }
  ~InnerPicture() { budget_.LeavePicture(); }
  InnerPicture(const InnerPicture&) = delete;
  InnerPicture& operator=(const InnerPicture&) = delete;

 private:
  PictureBudget& budget_;
};

}  // namespace

bool IsPlusMetafile(Bytes image) {
  ByteReader reader(image);
  reader.Skip(4);
  return reader.U32() == Metafile;
}

PlusMetafile ReadPlusMetafile(ByteReader& reader, GlyphOutlines& glyphs, PictureBudget& budget) {
  reader.Skip(
      16);  // the version, the type of the image, the type of the metafile, and its size, which varies
  const Bytes bytes = reader.Rest();
  const InnerPicture depth(budget);
  try {
    if (LooksLikeEmf(bytes)) return LoadEmf(bytes, glyphs, budget);
    if (LooksLikeWmf(bytes)) return LoadWmf(bytes, glyphs, budget);
  } catch (const BadMetafile&) {
    throw SkipRecord();
  } catch (const OutOfBytes&) {
    throw SkipRecord();
  }
  throw SkipRecord();
}

}  // namespace tarvis
