// Plays the extended records inside the comments of an enhanced metafile. Files that hold both kinds of
// records play the plain ones, unless these draw nothing; files that hold extended ones only play those.
//
//   comment ── records ── Header       decides which of the two kinds is played
//                      ├─ Object       kept by number, put together from pieces (emf_plus_objects.h)
//                      └─ all others   by the tables of emf_plus_playback.h, drawn by context/drawing.h
#pragma once

#include <unordered_map>

#include "pictures/metafile/emf_plus/emf_plus_playback.h"
#include "pictures/metafile/list/record_counts.h"

namespace tarvis {

// Whether extended records are played in a file that has plain ones, too.
enum class PlusUse { IfAlone, Always };

class EmfPlusPlayer {
 public:
  EmfPlusPlayer(Drawing& draw, PlusUse use);

  // The records in one comment; counts them.
  void Play(Bytes records, RecordCounts& counts);
  // Whether plain records are to be left alone at this moment.
  bool Rules() const { return active_ && !playback_.GivesContext; }
  // Whether extended records were skipped because the plain ones show the same.
  bool StoodAside() const { return dual_; }

 private:
  void PlayRecord(PlusRecord type, std::uint32_t flags, ByteReader& reader);
  void Header(std::uint32_t flags, ByteReader& reader);
  void Object(std::uint32_t flags, ByteReader& reader);

  PlusPlayback playback_;
  PlusUse use_;
  bool active_ = false;
  bool dual_ = false;
  std::unordered_map<PlusRecord, PlusRecordFunction> table_;
  std::vector<std::uint8_t> pending_;  // an object that comes in pieces
};

}  // namespace tarvis
