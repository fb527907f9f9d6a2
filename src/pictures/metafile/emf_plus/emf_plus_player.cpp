#include "pictures/metafile/emf_plus/emf_plus_player.h"

namespace tarvis {
namespace {

constexpr std::uint32_t HeaderRecord = 0x4001, ContextRecord = 0x4004, ObjectRecord = 0x4008;
constexpr std::uint32_t AppendFlag = 0x2000, ContinuedFlag = 0x8000;
constexpr std::size_t MostObjectBytes = 48 << 20;
constexpr std::size_t MostSaved = 512;
constexpr qsizetype MostImageBytes = 96 << 20;  // in the whole file

// Records that change nothing that is seen: ends, comments and hints on quality.
bool IsQuiet(std::uint32_t type) {
  return type == 0x4002 || type == 0x4003 || (type >= 0x401D && type <= 0x4024) || type == 0x4039;
}

}  // namespace

void EmfPlusPlayer::Play(Bytes records, RecordCounts& counts) {
  ByteReader reader(records);
  givesContext_ = false;
  while (reader.Left() >= 12) {
    const std::size_t start = reader.Position();
    const std::uint32_t type = reader.U16();
    const std::uint32_t flags = reader.U16();
    const std::size_t size = reader.U32();
    const std::size_t dataSize = reader.U32();
    if (size < 12) throw OutOfBytes();
    ByteReader data(Slice(records, start + 12, std::min(dataSize, size - 12)));
    reader.Seek(start);
    reader.Skip(size);
    if (type != HeaderRecord && (dual_ || !active_)) continue;
    try {
      PlayRecord(type, flags, data);
      ++counts.Played;
    } catch (const SkipRecord&) {
      ++counts.Skipped[type];
    }
  }
}

void EmfPlusPlayer::PlayRecord(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  if (type == HeaderRecord) return Header(flags, r);
  if (type == ObjectRecord) return Object(flags, r);
  if (type == ContextRecord) {
    givesContext_ = true;
    return;
  }
  const bool played = IsQuiet(type) || PlayState(type, flags, r) || PlayClip(type, flags, r) ||
                      PlayFill(type, flags, r) || PlayLine(type, flags, r) || PlayText(type, flags, r) ||
                      PlayImage(type, flags, r);
  if (!played) throw SkipRecord();
}

void EmfPlusPlayer::Header(std::uint32_t flags, ByteReader& r) {
  r.Skip(8);
  const double dots = r.U32();
  if (dots > 0 && dots < 1e5) dotsPerInch_ = dots;
  dual_ = (flags & 1) != 0 && use_ == PlusUse::IfAlone;
  active_ = !dual_;
  if (active_) draw_.State().BackgroundMode = 1;
}

void EmfPlusPlayer::Object(std::uint32_t flags, ByteReader& r) {
  if ((flags & ContinuedFlag) == 0 && pending_.empty()) return Keep(flags, r.Rest());
  std::size_t total = pending_.size();
  if ((flags & ContinuedFlag) != 0) total = r.U32();
  const Bytes piece = r.Rest();
  if (total > MostObjectBytes || pending_.size() + piece.size() > MostObjectBytes) throw SkipRecord();
  pending_.insert(pending_.end(), piece.begin(), piece.end());
  if ((flags & ContinuedFlag) != 0 && pending_.size() < total) return;
  const std::vector<std::uint8_t> whole = std::exchange(pending_, {});
  Keep(flags, whole);
}

void EmfPlusPlayer::Keep(std::uint32_t flags, Bytes bytes) {
  const std::size_t index = flags & 0xFF;
  if (index >= objects_.size()) throw SkipRecord();
  objects_[index] = {};
  ByteReader reader(bytes);
  objects_[index] = ReadPlusObject(static_cast<PlusKind>(flags >> 8 & 0x7F), reader);
  if (const QImage* image = std::get_if<QImage>(&objects_[index])) imageBytes_ += image->sizeInBytes();
  if (imageBytes_ > MostImageBytes) throw BadMetafile("its bitmaps are too large");
}

QRectF EmfPlusPlayer::Rect(ByteReader& r, std::uint32_t flags) const {
  if ((flags & PlusCompressedFlag) == 0) return ReadRectF(r);
  const QPointF at = ReadPoint16(r);
  const QPointF size = ReadPoint16(r);
  return {at.x(), at.y(), size.x(), size.y()};
}

void EmfPlusPlayer::UpdateTransform() {
  draw_.State().World = world_ * QTransform::fromScale(pageScale_, pageScale_);
}

void EmfPlusPlayer::ModifyWorld(const QTransform& by, std::uint32_t flags) {
  world_ = (flags & AppendFlag) != 0 ? world_ * by : by * world_;
  UpdateTransform();
}

void EmfPlusPlayer::Save(std::uint32_t index) {
  if (saved_.size() >= MostSaved) throw SkipRecord();
  saved_.insert_or_assign(index, Saved{draw_.State(), world_, pageScale_});
}

void EmfPlusPlayer::Restore(std::uint32_t index) {
  const auto found = saved_.find(index);
  if (found == saved_.end()) throw SkipRecord();
  draw_.State() = found->second.State;
  world_ = found->second.World;
  pageScale_ = found->second.PageScale;
  saved_.erase(found);
}

bool EmfPlusPlayer::PlayState(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  switch (type) {
    case 0x4025:
    case 0x4028:
      Save(r.U32());
      return true;
    case 0x4026:
    case 0x4029:
      Restore(r.U32());
      return true;
    case 0x4027: {
      const QRectF to = ReadRectF(r);
      const QRectF from = ReadRectF(r);
      Save(r.U32());
      if (from.width() == 0 || from.height() == 0) throw SkipRecord();
      ModifyWorld(QTransform::fromTranslate(-from.left(), -from.top()) *
                      QTransform::fromScale(to.width() / from.width(), to.height() / from.height()) *
                      QTransform::fromTranslate(to.left(), to.top()),
                  0);
      return true;
    }
    default:
      return PlayTransform(type, flags, r);
  }
}

bool EmfPlusPlayer::PlayTransform(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  switch (type) {
    case 0x402A:
      world_ = ReadTransformF(r);
      UpdateTransform();
      return true;
    case 0x402B:
      world_ = QTransform();
      UpdateTransform();
      return true;
    case 0x402C:
      ModifyWorld(ReadTransformF(r), flags);
      return true;
    case 0x402D: {
      const QPointF by = ReadPointF(r);
      ModifyWorld(QTransform::fromTranslate(by.x(), by.y()), flags);
      return true;
    }
    case 0x402E: {
      const QPointF by = ReadPointF(r);
      ModifyWorld(QTransform::fromScale(by.x(), by.y()), flags);
      return true;
    }
    case 0x402F:
      ModifyWorld(QTransform().rotate(ReadF(r)), flags);
      return true;
    case 0x4030:
      SetPage(flags & 0xFF, r);
      return true;
    default:
      return false;
  }
}

void EmfPlusPlayer::SetPage(std::uint32_t unit, ByteReader& r) {
  const double units[] = {1, 1, 1, dotsPerInch_ / 72, dotsPerInch_, dotsPerInch_ / 300, dotsPerInch_ / 25.4};
  const double scale = r.Left() >= 4 ? ReadF(r) : 1;  // some writers leave a scale of 1 out
  if (unit >= std::size(units) || scale <= 0) throw SkipRecord();
  pageScale_ = units[unit] * scale;
  UpdateTransform();
}

bool EmfPlusPlayer::PlayClip(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  constexpr ClipMode modes[] = {ClipMode::Copy, ClipMode::And, ClipMode::Or, ClipMode::Xor,
                                ClipMode::Difference};
  QPainterPath path;
  switch (type) {
    case 0x4031:
      draw_.ResetClip();
      return true;
    case 0x4032:
      path.addRect(ReadRectF(r));
      break;
    case 0x4033:
    case 0x4034:
      path = At<QPainterPath>(flags & 0xFF);
      break;
    case 0x4035:
      draw_.OffsetClip(ReadPointF(r));
      return true;
    default:
      return false;
  }
  const std::size_t mode = flags >> 8 & 0xF;
  if (mode >= std::size(modes)) throw SkipRecord();
  draw_.SelectClip(draw_.Dc().ToDevice().map(path), modes[mode]);
  return true;
}

}  // namespace tarvis
