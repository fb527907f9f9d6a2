// Plays an old-style metafile:
//
//   placeable header, if any ── box of the picture and units to the inch
//   records, first time      ── FindExtents: which window and viewport the file itself names
//   records, second time     ── by the tables of wmf_playback.h, one file for each group of records
//                                  └─ context/drawing.h ── list/draw_list.h ── MetafilePicture
//
// Objects have no numbers of their own: each takes the lowest free one, so an object that can't be played
// takes its number all the same.
#include <cmath>
#include <optional>
#include <unordered_map>

#include "pictures/metafile/list/metafile_picture.h"
#include "pictures/metafile/wmf/wmf_playback.h"
#include "report/engine/units.h"

namespace tarvis {
namespace {

constexpr std::uint32_t PlaceableKey = 0x9AC6CDD7;
constexpr std::size_t PlaceableSize = 22;
constexpr std::size_t HeaderSize = 18;
constexpr std::size_t RecordHeadSize = 6;

// The header in front of a placeable metafile: its box in logical units, and their number to the inch.
struct Placeable {
  QPointF From, To;
  double UnitsPerInch = 0;

  explicit Placeable(ByteReader& reader) {
    reader.Skip(6);
    From = ReadPoint16(reader);
    To = ReadPoint16(reader);
    UnitsPerInch = reader.U16();
    reader.Skip(6);
    if (UnitsPerInch == 0) UnitsPerInch = TwipsPerInch;
  }
  QPointF Size() const { return To - From; }
  bool HasExtent() const { return Size().x() != 0 && Size().y() != 0; }
};

// The first window and viewport that the records of a metafile set.
struct FirstExtents {
  std::optional<QPointF> WindowOrigin, WindowExtent, ViewportOrigin, ViewportExtent;
};

// Walks over the records: `play` gets the function of each and its parameters. False if the end record is
// missing.
template <typename Play>
bool ForEachRecord(Bytes bytes, Play play) {
  ByteReader reader(bytes);
  while (reader.Left() >= RecordHeadSize) {
    const std::size_t start = reader.Position();
    const std::size_t size = std::size_t{reader.U32()} * 2;
    const auto function = static_cast<Meta>(reader.U16());
    if (function == Meta::Eof) return true;
    if (size < RecordHeadSize) throw BadMetafile("a record makes no sense");
    const Bytes record = Slice(bytes, start, size);
    reader.Seek(start + size);
    play(function, record.subspan(RecordHeadSize));
  }
  return false;
}

bool IsExtent(const std::optional<QPointF>& extent) {
  return extent && extent->x() != 0 && extent->y() != 0;
}

FirstExtents FindExtents(Bytes records) {
  FirstExtents found;
  const auto keep = [](std::optional<QPointF>& first, Bytes parameters) {
    ByteReader reader(parameters);
    if (!first) first = ReadYX(reader);
  };
  ForEachRecord(records, [&](Meta function, Bytes parameters) {
    if (function == Meta::SetWindowOrg) keep(found.WindowOrigin, parameters);
    if (function == Meta::SetWindowExt && !IsExtent(found.WindowExtent)) {
      found.WindowExtent.reset();
      keep(found.WindowExtent, parameters);
    }
    if (function == Meta::SetViewportOrg) keep(found.ViewportOrigin, parameters);
    if (function == Meta::SetViewportExt) keep(found.ViewportExtent, parameters);
  });
  return found;
}

class WmfPlayer {
 public:
  WmfPlayer(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget)
      : list_(budget), playback_(list_, glyphs) {
    ByteReader reader(bytes);
    if (bytes.size() >= PlaceableSize && ByteReader(bytes).U32() == PlaceableKey) {
      placeable_.emplace(reader);
      if (!placeable_->HasExtent()) throw BadMetafile("it has no extent");
    }
    const std::size_t start = reader.Position();
    reader.Skip(6);
    words_ = reader.U32();
    reader.Seek(start + HeaderSize);
    records_ = reader.Rest();
    for (const auto table :
         {WmfStateRecords(), WmfObjectRecords(), WmfShapeRecords(), WmfTextRecords(), WmfImageRecords()})
      for (const WmfRecord& record : table) table_[record.Function] = record.Play;
  }

  std::shared_ptr<const MetafilePicture> Play() {
    SetExtents(FindExtents(records_));
    const bool ended = ForEachRecord(
        records_, [this](Meta function, Bytes parameters) { PlayRecord(function, parameters); });
    if (!ended && (words_ * 2 > records_.size() + HeaderSize || records_.empty())) throw OutOfBytes();
    list_.Finish();
    if (list_.Commands().empty()) throw BadMetafile("it shows nothing");
    if (!counts_.Skipped.empty() && !list_.ShowsInk()) throw BadMetafile("none of its records can be shown");
    const QRectF frame = frame_.isEmpty() ? list_.Bounds() : frame_;
    return std::make_shared<MetafilePicture>(std::move(list_), frame, NaturalTwips(frame),
                                             std::move(counts_));
  }

 private:
  // The device is as large as the picture in logical units; the window maps to all of it.
  void SetExtents(const FirstExtents& first) {
    DcState& state = playback_.Draw.State();
    state.Mapping = MapMode::Anisotropic;
    if (placeable_) {
      state.WindowOrigin = placeable_->From;
      state.WindowExtent = placeable_->Size();
    }
    if (!placeable_ && IsExtent(first.WindowExtent)) state.WindowExtent = *first.WindowExtent;
    const bool known = placeable_ || IsExtent(first.WindowExtent);
    if (known) {
      frame_ = {0, 0, std::abs(state.WindowExtent.x()), std::abs(state.WindowExtent.y())};
      state.ViewportExtent = {frame_.width(), frame_.height()};
    }
    if (IsExtent(first.ViewportExtent)) {
      const QPointF origin = first.ViewportOrigin.value_or(QPointF());
      frame_ = BoxOf(origin, origin + *first.ViewportExtent);
    }
    if (!frame_.isEmpty()) list_.SetFrameExtent(frame_.width() + frame_.height());
  }

  QSizeF NaturalTwips(const QRectF& frame) const {
    if (!placeable_) return frame.size() * TwipsPerPixel;
    const QPointF size = placeable_->Size() * TwipsPerInch / placeable_->UnitsPerInch;
    return {std::abs(size.x()), std::abs(size.y())};
  }

  void PlayRecord(Meta function, Bytes parameters) {
    list_.Budget().TakeRecord();
    const auto found = table_.find(function);
    if (found == table_.end()) {
      ++counts_.Skipped[static_cast<std::uint16_t>(function)];
      return;
    }
    if (found->second == nullptr) return;
    ByteReader reader(parameters);
    try {
      found->second(playback_, reader);
      ++counts_.Played;
    } catch (const SkipRecord&) {
      Skip(function);
    }
  }

  void Skip(Meta function) {
    ++counts_.Skipped[static_cast<std::uint16_t>(function)];
    // Objects that can't be played take their number all the same.
    const bool creates =
        (static_cast<std::uint16_t>(function) & 0xF0) == 0xF0 && function != Meta::DeleteObject;
    if (creates || function == Meta::DibCreatePatternBrush) playback_.Add({});
  }

  std::optional<Placeable> placeable_;
  std::size_t words_ = 0;
  Bytes records_;
  DrawList list_;
  WmfPlayback playback_;
  std::unordered_map<Meta, WmfRecordFunction> table_;
  QRectF frame_;
  RecordCounts counts_;
};

}  // namespace

bool LooksLikeWmf(Bytes bytes) {
  if (bytes.size() < HeaderSize) return false;
  ByteReader reader(bytes);
  if (ByteReader(bytes).U32() == PlaceableKey) return true;
  const int type = reader.U16();
  const int headerWords = reader.U16();
  const int version = reader.U16();
  return (type == 1 || type == 2) && headerWords == 9 && (version == 0x100 || version == 0x300);
}

std::shared_ptr<const MetafilePicture> LoadWmf(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget) {
  return WmfPlayer(bytes, glyphs, budget).Play();
}

}  // namespace tarvis
