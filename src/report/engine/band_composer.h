// Lays out one printing of one section: events, growth, height, items.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "report/engine/active_report.h"
#include "report/engine/band.h"
#include "report/engine/structure_recorder.h"
#include "report/engine/text_cache.h"

namespace tarvis {

enum class Printing {
  Done,     // the band is finished
  Skipped,  // layout action 5: no row, the next fetch follows
  Dropped,  // the report was unloaded before the band was finished
};

// Whether a text has a box that grows with it.
enum class Growth { Never, ToItsText };

class BandComposer {
 public:
  explicit BandComposer(Document& document, const TextMeasurer& measurer);

  // Runs the section's events and composes `band`, which comes from `origin`, its controls shifted by `left`
  // twips. `beforeAfterPrint` runs between layout and AfterPrint: sections that hold a sub-report run it
  // there.
  Printing Compose(const BandOrigin& origin, ActiveReport& report, Section& section, float left, Band& band,
                   const std::function<void()>& beforeAfterPrint = {});

  // Bands belong to runs of reports: returns the number of a new one, `parent` is the one around it.
  std::uint32_t BeginRun(const ActiveReport& report, std::uint32_t parent) {
    return structure_.BeginRun(report.Name, parent);
  }

  // Writes the number into a summary item that was composed before.
  void PatchText(Item& item, const std::string& text);
  // Items of summary fields of the band composed last, by index into its items.
  const std::vector<std::size_t>& PageCountItems() const { return pageCountItems_; }
  // The page number that summary fields show from now on.
  void SetPageNumber(int number) { pageNumber_ = std::to_string(number); }

 private:
  // Where the items of one control go, and what they have in common.
  struct Output {
    const tarvis::Section& Section;
    float Left;  // of the report, in twips
    const Item& Model;
    tarvis::Band& Band;
  };

  void Grow(Section& section);
  static float FinalHeight(const Section& section);
  void EmitControls(const Section& section, float left, Band& band);
  void Emit(const Field& field, const Output& output);
  void Emit(const Label& label, const Output& output);
  void Emit(const Image& image, const Output& output);
  static void Emit(const Line& line, const Output& output);
  static void Emit(const Shape& shape, const Output& output);
  static void Emit(const CheckBox& box, const Output& output);
  // Its report runs after the section has been laid out.
  static void Emit(const SubReport& /*subReport*/, const Output& /*output*/) {}
  void EmitText(const TextControl& text, const std::string& content, Growth growth, const Output& output);
  void EmitLines(const TextControl& text, const std::string& content, const Output& output);
  void EmitOneLine(const TextControl& text, const std::string& content, const Output& output);
  void EmitPiece(std::uint32_t piece, Item& model, Band& band) const;
  float WrapWidth(const TextControl& text, float left) const;
  float WidestOf(std::span<const std::uint32_t> pieces) const;
  std::uint16_t StyleOf(const TextControl& text) { return cache_.Style(text.Style.Size, text.Style.Bold); }

  Document& document_;
  TextCache cache_;
  StructureRecorder structure_;
  std::uint32_t bandNumber_ = 0;
  std::vector<std::uint16_t> shown_;  // controls of the band that is being composed
  std::string pageNumber_;
  std::vector<std::size_t> pageCountItems_;
};

}  // namespace tarvis
