// The state while extended records play, and the tables of these records.
#pragma once

#include <array>
#include <map>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"
#include "pictures/metafile/emf_plus/emf_plus_record_types.h"

namespace tarvis {

// Bits of a record's flags; which of them apply depends on the kind of record.
inline constexpr std::uint32_t PlusColorFlag = 0x8000;   // the field of the brush holds a colour
inline constexpr std::uint32_t PlusClosedFlag = 0x2000;  // of lines
inline constexpr std::uint32_t PlusAppendFlag = 0x2000;  // of transforms

class PlusPlayback {
 public:
  explicit PlusPlayback(Drawing& draw) : Draw(draw) {}

  Drawing& Draw;
  double DotsPerInch = 96;
  bool GivesContext = false;  // plain records play until the next comment

  // An object by number; SkipRecord if there is none of this kind.
  template <typename T>
  const T& At(std::uint32_t index) const;
  // The same; null if there is none.
  template <typename T>
  const T* Find(std::uint32_t index) const;
  void Keep(std::uint32_t flags, Bytes bytes);
  // A box in 16 or 32 bits, as the flags say.
  QRectF ReadRect(ByteReader& reader, std::uint32_t flags) const;

  void SetWorld(const QTransform& world);
  void ModifyWorld(const QTransform& by, std::uint32_t flags);
  void SetPageScale(double scale);
  // States are kept by numbers that the records choose. SkipRecord if there is none of that number.
  void Save(std::uint32_t index);
  void Restore(std::uint32_t index);

  void Fill(const QPainterPath& path, std::uint32_t flags, std::uint32_t brush);
  void Stroke(const QPainterPath& path, std::uint32_t pen);
  // Named by a record, with its transform.
  PlusBrush BrushOf(std::uint32_t flags, std::uint32_t brush) const;

 private:
  struct Saved {
    DcState State;
    QTransform World;
    double PageScale;
  };

  void UpdateTransform();
  void FillPathGradient(const QPainterPath& path, const PathGradient& gradient);
  void Rings(const PathGradient& gradient);
  void Wedges(const PathGradient& gradient);
  void Caps(const QPainterPath& path, const PlusPen& pen, double width);

  int rings_ = 0;  // drawn in all
  QTransform world_;
  double pageScale_ = 1;
  std::array<PlusObject, 64> objects_;
  std::map<std::uint32_t, Saved> saved_;
};

template <typename T>
const T* PlusPlayback::Find(std::uint32_t index) const {
  return index < objects_.size() ? std::get_if<T>(&objects_[index]) : nullptr;
}

template <typename T>
const T& PlusPlayback::At(std::uint32_t index) const {
  const T* object = Find<T>(index);
  if (object == nullptr) throw SkipRecord();
  return *object;
}

// Plays the data of one record. OutOfBytes if the record is broken, SkipRecord if it can't be played.
using PlusRecordFunction = void (*)(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader);

struct PlusRecordRow {
  PlusRecord Type;
  PlusRecordFunction Play;  // null: nothing to draw, and nothing missed
};

std::span<const PlusRecordRow> PlusStateRecords();
std::span<const PlusRecordRow> PlusClipRecords();
std::span<const PlusRecordRow> PlusFillRecords();
std::span<const PlusRecordRow> PlusLineRecords();
std::span<const PlusRecordRow> PlusTextRecords();
std::span<const PlusRecordRow> PlusImageRecords();

}  // namespace tarvis
