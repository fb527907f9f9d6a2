// Extended records that change the state: saving, transforms, the clip; and what the state itself does.
#include "pictures/metafile/emf_plus/emf_plus_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t MostSaved = 512;

void Save(PlusPlayback& playback, std::uint32_t, ByteReader& reader) {
  playback.Save(reader.U32());
}

void Restore(PlusPlayback& playback, std::uint32_t, ByteReader& reader) {
  playback.Restore(reader.U32());
}

void BeginContainer(PlusPlayback& playback, std::uint32_t, ByteReader& reader) {
  const QRectF to = ReadRectF(reader);
  const QRectF from = ReadRectF(reader);
  playback.Save(reader.U32());
  if (from.width() == 0 || from.height() == 0) throw SkipRecord();
  playback.ModifyWorld(QTransform::fromTranslate(-from.left(), -from.top()) *
                           QTransform::fromScale(to.width() / from.width(), to.height() / from.height()) *
                           QTransform::fromTranslate(to.left(), to.top()),
                       0);
}

void TranslateWorld(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const QPointF by = ReadPointF(reader);
  playback.ModifyWorld(QTransform::fromTranslate(by.x(), by.y()), flags);
}

void ScaleWorld(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const QPointF by = ReadPointF(reader);
  playback.ModifyWorld(QTransform::fromScale(by.x(), by.y()), flags);
}

void SetPage(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const double dots = playback.DotsPerInch;
  const double units[] = {1, 1, 1, dots / 72, dots, dots / 300, dots / 25.4};
  const std::size_t unit = flags & 0xFF;
  const double scale = reader.Left() >= 4 ? ReadF(reader) : 1;  // some writers leave a scale of 1 out
  if (unit >= std::size(units) || scale <= 0) throw SkipRecord();
  playback.SetPageScale(units[unit] * scale);
}

void Clip(PlusPlayback& playback, std::uint32_t flags, const QPainterPath& path) {
  constexpr ClipMode modes[] = {ClipMode::Copy, ClipMode::And, ClipMode::Or, ClipMode::Xor,
                                ClipMode::Difference};
  const std::size_t mode = flags >> 8 & 0xF;
  if (mode >= std::size(modes)) throw SkipRecord();
  playback.Draw.Clip().Select(playback.Draw.Context().ToDevice().map(path), modes[mode]);
}

void ClipRect(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  QPainterPath path;
  path.addRect(ReadRectF(reader));
  Clip(playback, flags, path);
}

// Regions are kept as paths, too.
void ClipPath(PlusPlayback& playback, std::uint32_t flags, ByteReader&) {
  Clip(playback, flags, playback.At<QPainterPath>(flags & 0xFF));
}

constexpr PlusRecordRow StateRecords[] = {
    {PlusRecord::EndOfFile, nullptr},
    {PlusRecord::Comment, nullptr},
    {PlusRecord::GetDC,
     [](PlusPlayback& playback, std::uint32_t, ByteReader&) { playback.GivesContext = true; }},
    // Hints on quality.
    {PlusRecord::SetRenderingOrigin, nullptr},
    {PlusRecord::SetAntiAliasMode, nullptr},
    {PlusRecord::SetTextRenderingHint, nullptr},
    {PlusRecord::SetTextContrast, nullptr},
    {PlusRecord::SetInterpolationMode, nullptr},
    {PlusRecord::SetPixelOffsetMode, nullptr},
    {PlusRecord::SetCompositingMode, nullptr},
    {PlusRecord::SetCompositingQuality, nullptr},
    {PlusRecord::SetTSGraphics, nullptr},
    {PlusRecord::Save, Save},
    {PlusRecord::Restore, Restore},
    {PlusRecord::BeginContainer, BeginContainer},
    {PlusRecord::BeginContainerNoParams, Save},
    {PlusRecord::EndContainer, Restore},
    {PlusRecord::SetWorldTransform, [](PlusPlayback& playback, std::uint32_t,
                                       ByteReader& reader) { playback.SetWorld(ReadTransformF(reader)); }},
    {PlusRecord::ResetWorldTransform,
     [](PlusPlayback& playback, std::uint32_t, ByteReader&) { playback.SetWorld(QTransform()); }},
    {PlusRecord::MultiplyWorldTransform,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.ModifyWorld(ReadTransformF(reader), flags);
     }},
    {PlusRecord::TranslateWorldTransform, TranslateWorld},
    {PlusRecord::ScaleWorldTransform, ScaleWorld},
    {PlusRecord::RotateWorldTransform,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.ModifyWorld(QTransform().rotate(ReadF(reader)), flags);
     }},
    {PlusRecord::SetPageTransform, SetPage},
};

constexpr PlusRecordRow ClipRecords[] = {
    {PlusRecord::ResetClip,
     [](PlusPlayback& playback, std::uint32_t, ByteReader&) { playback.Draw.Clip().Reset(); }},
    {PlusRecord::SetClipRect, ClipRect},
    {PlusRecord::SetClipPath, ClipPath},
    {PlusRecord::SetClipRegion, ClipPath},
    {PlusRecord::OffsetClip, [](PlusPlayback& playback, std::uint32_t,
                                ByteReader& reader) { playback.Draw.Clip().Offset(ReadPointF(reader)); }},
};

}  // namespace

void PlusPlayback::Keep(std::uint32_t flags, Bytes bytes) {
  const std::size_t index = flags & 0xFF;
  if (index >= objects_.size()) throw SkipRecord();
  objects_[index] = {};
  ByteReader reader(bytes);
  const auto kind = static_cast<PlusKind>(flags >> 8 & 0x7F);
  if (kind == PlusKind::Image && IsPlusMetafile(bytes)) {
    objects_[index] = ReadPlusMetafile(reader, Draw.Glyphs(), Draw.Budget());
    return;
  }
  objects_[index] = ReadPlusObject(kind, reader);
  if (const QImage* image = std::get_if<QImage>(&objects_[index]))
    Draw.Budget().TakeDecodedBytes(static_cast<std::size_t>(image->sizeInBytes()));
}

QRectF PlusPlayback::ReadRect(ByteReader& reader, std::uint32_t flags) const {
  if ((flags & PlusCompressedFlag) == 0) return ReadRectF(reader);
  const QPointF at = ReadPoint16(reader);
  const QPointF size = ReadPoint16(reader);
  return {at.x(), at.y(), size.x(), size.y()};
}

void PlusPlayback::UpdateTransform() {
  Draw.State().World = world_ * QTransform::fromScale(pageScale_, pageScale_);
}

void PlusPlayback::SetWorld(const QTransform& world) {
  world_ = world;
  UpdateTransform();
}

void PlusPlayback::ModifyWorld(const QTransform& by, std::uint32_t flags) {
  SetWorld((flags & PlusAppendFlag) != 0 ? world_ * by : by * world_);
}

void PlusPlayback::SetPageScale(double scale) {
  pageScale_ = scale;
  UpdateTransform();
}

void PlusPlayback::Save(std::uint32_t index) {
  if (saved_.size() >= MostSaved) throw SkipRecord();
  saved_.insert_or_assign(index, Saved{Draw.State(), world_, pageScale_});
}

void PlusPlayback::Restore(std::uint32_t index) {
  const auto found = saved_.find(index);
  if (found == saved_.end()) throw SkipRecord();
  Draw.State() = found->second.State;
  world_ = found->second.World;
  pageScale_ = found->second.PageScale;
  saved_.erase(found);
}

std::span<const PlusRecordRow> PlusStateRecords() {
  return StateRecords;
}

std::span<const PlusRecordRow> PlusClipRecords() {
  return ClipRecords;
}

}  // namespace tarvis
