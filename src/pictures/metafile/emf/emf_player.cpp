// Plays an enhanced metafile:
//
//   header ── EmfHeader            frame, device and their units
//   records ─┬─ Emr::Comment       extended records: emf_plus/emf_plus_player.h
//            └─ all others         by the tables of emf_playback.h, one file for each group of records
//                  └─ context/drawing.h ── list/draw_list.h ── MetafilePicture
//
// A record that can't be played is counted and skipped; a file whose records don't hold together is refused.
#include <array>
#include <cmath>
#include <cstring>

#include "pictures/metafile/emf/emf_playback.h"
#include "pictures/metafile/emf_plus/emf_plus_player.h"
#include "pictures/metafile/list/metafile_picture.h"
#include "report/engine/units.h"

namespace tarvis {
namespace {

constexpr std::size_t RecordHeadSize = 8;
constexpr std::size_t SmallestHeader = 88;
constexpr std::uint32_t Signature = 0x464D4520;
constexpr std::uint32_t PlusSignature = 0x2B464D45;
constexpr double HundredthsPerMillimeter = 100;
constexpr double TwipsPerMillimeter = double{TwipsPerInch} / 25.4;

struct EmfHeader {
  std::size_t Size = 0;  // of the header record
  QRectF Bounds;         // device units, right and bottom edges inside
  QRectF Frame;          // 1/100 mm
  std::size_t Bytes = 0;
  std::size_t Records = 0;
  QPointF Device;       // pixels
  QPointF Millimeters;  // of the device

  explicit EmfHeader(ByteReader& reader) {
    reader.Skip(4);
    Size = reader.U32();
    if (Size < SmallestHeader) throw BadMetafile("its header makes no sense");
    Bounds = ReadBox(reader);
    Frame = ReadBox(reader);
    if (reader.U32() != Signature) throw BadMetafile("its header makes no sense");
    reader.Skip(4);
    Bytes = reader.U32();
    Records = reader.U32();
    reader.Skip(16);
    Device = ReadPoint32(reader);
    Millimeters = ReadPoint32(reader);
    if (Device.x() <= 0 || Device.y() <= 0 || Millimeters.x() <= 0 || Millimeters.y() <= 0) {
      Device = {96, 96};
      Millimeters = {25.4, 25.4};
    }
  }

  QPointF PixelsPerMillimeter() const { return {Device.x() / Millimeters.x(), Device.y() / Millimeters.y()}; }
  // The part of the device that the picture shows.
  QRectF DeviceFrame() const {
    if (Frame.isEmpty()) return Bounds.adjusted(0, 0, 1, 1);
    const QPointF unit = PixelsPerMillimeter() / HundredthsPerMillimeter;
    return {Frame.left() * unit.x(), Frame.top() * unit.y(), Frame.width() * unit.x(),
            Frame.height() * unit.y()};
  }
  QSizeF NaturalTwips() const {
    const QRectF frame = DeviceFrame();
    const QPointF unit = PixelsPerMillimeter();
    return QSizeF(frame.width() / unit.x(), frame.height() / unit.y()) * TwipsPerMillimeter;
  }
};

struct RecordTable {
  std::array<EmfRecordFunction, 128> Play{};
  std::array<bool, 128> Known{};

  RecordTable() {
    for (const auto records : {EmfStateRecords(), EmfObjectRecords(), EmfShapeRecords(), EmfClipRecords(),
                               EmfTextRecords(), EmfImageRecords()}) {
      for (const EmfRecord& record : records) {
        const auto type = static_cast<std::size_t>(record.Type);
        Play[type] = record.Play;
        Known[type] = true;
      }
    }
  }
};

class EmfPlayer {
 public:
  EmfPlayer(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget, PlusUse plus)
      : reader_(bytes),
        header_(reader_),
        list_(budget),
        playback_(list_, glyphs),
        plus_(playback_.Draw, plus) {
    const QRectF frame = header_.DeviceFrame();
    if (header_.Bounds.isEmpty() && header_.Frame.isEmpty()) throw BadMetafile("it has no extent");
    const double far = std::abs(frame.left()) + std::abs(frame.top()) + frame.width() + frame.height();
    list_.SetFrameExtent(far);
    const QPointF unit = header_.PixelsPerMillimeter();
    playback_.Draw.Context().SetPixelsPerMillimeter(unit.x(), unit.y());
  }

  // Null if it holds both kinds of records and the plain ones draw nothing.
  std::shared_ptr<const MetafilePicture> Play() {
    reader_.Seek(header_.Size);
    std::size_t records = 1;
    while (PlayNext()) ++records;
    if (!ended_ && (records < header_.Records || reader_.Position() < header_.Bytes)) throw OutOfBytes();
    list_.Finish();
    if (plus_.StoodAside() && list_.Commands().empty()) return nullptr;
    if (!counts_.Skipped.empty() && !list_.ShowsInk()) throw BadMetafile("none of its records can be shown");
    return std::make_shared<MetafilePicture>(std::move(list_), header_.DeviceFrame(), header_.NaturalTwips(),
                                             std::move(counts_));
  }

 private:
  bool PlayNext() {
    if (ended_ || reader_.Left() == 0) return false;
    const std::size_t start = reader_.Position();
    list_.Budget().TakeRecord();
    const std::uint32_t type = reader_.U32();
    const std::size_t size = reader_.U32();
    if (size < RecordHeadSize) throw BadMetafile("a record makes no sense");
    const Bytes record = Slice(reader_.All(), start, size);
    reader_.Seek(start + size);
    if (type == static_cast<std::uint32_t>(Emr::Eof)) {
      ended_ = true;
    } else {
      PlayRecord(type, record);
    }
    return true;
  }

  void PlayComment(Bytes record) {
    ByteReader reader(record);
    reader.Skip(RecordHeadSize);
    const Bytes data = reader.Take(reader.U32());
    if (data.size() < 4 || ByteReader(data).U32() != PlusSignature) return;
    plus_.Play(data.subspan(4), counts_);
  }

  void PlayRecord(std::uint32_t type, Bytes record) {
    if (type == static_cast<std::uint32_t>(Emr::Comment)) return PlayComment(record);
    if (plus_.Rules()) return;
    if (type >= table_.Play.size() || !table_.Known[type]) {
      ++counts_.Skipped[type];
      return;
    }
    if (table_.Play[type] == nullptr) return;
    ByteReader reader(record);
    reader.Skip(RecordHeadSize);
    try {
      table_.Play[type](playback_, reader);
      ++counts_.Played;
    } catch (const SkipRecord&) {
      ++counts_.Skipped[type];
    }
  }

  ByteReader reader_;
  EmfHeader header_;
  DrawList list_;
  EmfPlayback playback_;
  EmfPlusPlayer plus_;
  RecordTable table_;
  RecordCounts counts_;
  bool ended_ = false;
};

}  // namespace

bool LooksLikeEmf(Bytes bytes) {
  if (bytes.size() < 44) return false;
  ByteReader reader(bytes);
  const bool head = reader.U32() == 1;
  reader.Seek(40);
  return head && reader.U32() == Signature;
}

std::shared_ptr<const MetafilePicture> LoadEmf(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget) {
  const auto plain = EmfPlayer(bytes, glyphs, budget, PlusUse::IfAlone).Play();
  return plain != nullptr ? plain : EmfPlayer(bytes, glyphs, budget, PlusUse::Always).Play();
}

}  // namespace tarvis
