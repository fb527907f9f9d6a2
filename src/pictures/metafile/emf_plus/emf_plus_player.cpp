#include "pictures/metafile/emf_plus/emf_plus_player.h"

namespace tarvis {
namespace {

constexpr std::size_t RecordHeadSize = 12;
constexpr std::uint32_t DualFlag = 1, ContinuedFlag = 0x8000;
constexpr std::size_t MostObjectBytes = 48 << 20;

}  // namespace

EmfPlusPlayer::EmfPlusPlayer(Drawing& draw, PlusUse use) : playback_(draw), use_(use) {
  for (const auto table : {PlusStateRecords(), PlusClipRecords(), PlusFillRecords(), PlusLineRecords(),
                           PlusTextRecords(), PlusImageRecords()})
    for (const PlusRecordRow& row : table) table_[row.Type] = row.Play;
}

void EmfPlusPlayer::Play(Bytes records, RecordCounts& counts) {
  ByteReader reader(records);
  playback_.GivesContext = false;
  while (reader.Left() >= RecordHeadSize) {
    playback_.Draw.Budget().TakeRecord();
    const std::size_t start = reader.Position();
    const auto type = static_cast<PlusRecord>(reader.U16());
    const std::uint32_t flags = reader.U16();
    const std::size_t size = reader.U32();
    const std::size_t dataSize = reader.U32();
    if (size < RecordHeadSize) throw OutOfBytes();
    ByteReader data(Slice(records, start + RecordHeadSize, std::min(dataSize, size - RecordHeadSize)));
    reader.Seek(start);
    reader.Skip(size);
    if (type != PlusRecord::Header && (dual_ || !active_)) continue;
    try {
      PlayRecord(type, flags, data);
      ++counts.Played;
    } catch (const SkipRecord&) {
      ++counts.Skipped[static_cast<std::uint32_t>(type)];
    }
  }
}

void EmfPlusPlayer::PlayRecord(PlusRecord type, std::uint32_t flags, ByteReader& reader) {
  if (type == PlusRecord::Header) return Header(flags, reader);
  if (type == PlusRecord::Object) return Object(flags, reader);
  const auto found = table_.find(type);
  if (found == table_.end()) throw SkipRecord();
  if (found->second != nullptr) found->second(playback_, flags, reader);
}

void EmfPlusPlayer::Header(std::uint32_t flags, ByteReader& reader) {
  reader.Skip(8);
  const double dots = reader.U32();
  if (dots > 0 && dots < 1e5) playback_.DotsPerInch = dots;
  dual_ = (flags & DualFlag) != 0 && use_ == PlusUse::IfAlone;
  active_ = !dual_;
  if (active_) playback_.Draw.State().BackgroundMode = 1;
}

void EmfPlusPlayer::Object(std::uint32_t flags, ByteReader& reader) {
  if ((flags & ContinuedFlag) == 0 && pending_.empty()) return playback_.Keep(flags, reader.Rest());
  std::size_t total = pending_.size();
  if ((flags & ContinuedFlag) != 0) total = reader.U32();
  const Bytes piece = reader.Rest();
  if (total > MostObjectBytes || pending_.size() + piece.size() > MostObjectBytes) throw SkipRecord();
  pending_.insert(pending_.end(), piece.begin(), piece.end());
  if ((flags & ContinuedFlag) != 0 && pending_.size() < total) return;
  const std::vector<std::uint8_t> whole = std::exchange(pending_, {});
  playback_.Keep(flags, whole);
}

}  // namespace tarvis
