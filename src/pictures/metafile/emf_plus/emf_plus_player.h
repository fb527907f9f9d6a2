// Plays the extended records that stand in comments of an enhanced metafile. Files that hold both kinds of
// records play the plain ones, unless these draw nothing; files that hold extended ones only play those.
#pragma once

#include <array>
#include <map>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"
#include "pictures/metafile/list/record_counts.h"

namespace tarvis {

// Whether extended records play that stand beside plain ones.
enum class PlusUse { IfAlone, Always };

class EmfPlusPlayer {
 public:
  EmfPlusPlayer(Drawing& draw, PlusUse use) : draw_(draw), use_(use) {}

  // The records in one comment; counts them.
  void Play(Bytes records, RecordCounts& counts);
  // Whether plain records are to be left alone at this moment.
  bool Rules() const { return active_ && !givesContext_; }
  // Whether there were extended records that were left to the plain ones beside them.
  bool StoodAside() const { return dual_; }

 private:
  struct Saved {
    DcState State;
    QTransform World;
    double PageScale;
  };

  void PlayRecord(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayState(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayTransform(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayClip(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayFill(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayLine(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayText(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  bool PlayImage(std::uint32_t type, std::uint32_t flags, ByteReader& r);
  void Header(std::uint32_t flags, ByteReader& r);
  void Object(std::uint32_t flags, ByteReader& r);
  void Keep(std::uint32_t flags, Bytes bytes);
  void Fill(const QPainterPath& path, std::uint32_t flags, std::uint32_t brush);
  void FillPathGradient(const QPainterPath& path, const PathGradient& gradient);
  void Rings(const PathGradient& gradient);
  void Wedges(const PathGradient& gradient);
  void Caps(const QPainterPath& path, const PlusPen& pen, double width);
  void Stroke(const QPainterPath& path, std::uint32_t pen);
  void String(std::uint32_t flags, ByteReader& r);
  void DriverString(std::uint32_t flags, ByteReader& r);
  void SetFont(std::uint32_t flags, std::uint32_t brush);
  void ModifyWorld(const QTransform& by, std::uint32_t flags);
  void SetPage(std::uint32_t unit, ByteReader& r);
  void UpdateTransform();
  void Save(std::uint32_t index);
  void Restore(std::uint32_t index);
  QRectF Rect(ByteReader& r, std::uint32_t flags) const;
  PlusBrush BrushOf(std::uint32_t flags, std::uint32_t brush) const;
  std::vector<TextRecord> Lines(const std::vector<TextCharacter>& text, double width);
  template <typename T>
  const T& At(std::uint32_t index) const;

  Drawing& draw_;
  PlusUse use_;
  int rings_ = 0;  // drawn in all
  bool active_ = false;
  bool dual_ = false;
  bool givesContext_ = false;
  QTransform world_;
  double pageScale_ = 1;
  double dotsPerInch_ = 96;
  std::array<PlusObject, 64> objects_;
  std::map<std::uint32_t, Saved> saved_;
  qsizetype imageBytes_ = 0;
  std::vector<std::uint8_t> pending_;  // an object that comes in pieces
};

template <typename T>
const T& EmfPlusPlayer::At(std::uint32_t index) const {
  if (index >= objects_.size()) throw SkipRecord();
  const T* object = std::get_if<T>(&objects_[index]);
  if (object == nullptr) throw SkipRecord();
  return *object;
}

}  // namespace tarvis
