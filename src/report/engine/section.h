// A section (band) of a report: its height, its settings, its controls in layout order and its events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "report/engine/control.h"

namespace tarvis {

enum class SectionKind : std::uint8_t { PageHeader, GroupHeader, Detail, GroupFooter, PageFooter };

// Group keep-together of a group header: 0, 1 and 2 of the layouts.
enum class Keep : std::uint8_t { None = 0, FirstDetail = 1, All = 2 };

class Section {
 public:
  // `name` has static storage; `height` is in twips.
  Section(SectionKind kind, const char* name, float height);
  Section(const Section&) = delete;
  Section& operator=(const Section&) = delete;

  Field& AddField(const char* name, const Rect& place, const CellStyle& style = {}, const char* text = "");
  Label& AddLabel(const char* name, const Rect& place, const char* caption, const CellStyle& style = {});
  Image& AddImage(const char* name, const Rect& place, Fit fit = Fit::KeepCentred);
  // From (x1, y1) to (x2, y2); `weight` in units of 15 twips.
  Line& AddLine(const char* name, float x1, float y1, float x2, float y2, int weight = 1);
  // A frame.
  Shape& AddShape(const char* name, const Rect& place, std::optional<Color> fill = std::nullopt);
  CheckBox& AddCheckBox(const char* name, const Rect& place);
  SubReport& AddSubReport(const char* name, const Rect& place);

  const SectionKind Kind;
  const char* const Name;
  float Height;
  // Can grow and can shrink, as all sections of function reports: the height is the lowest bottom of the
  // visible controls. Otherwise it is `Height`.
  bool FitsControls = false;
  Keep GroupKeepTogether = Keep::None;  // group headers only
  bool Repeat = false;                  // group headers only: prints again at the head of following pages
  bool NewPageBefore = false;           // what it prints starts on a fresh page
  BandRole Role;                        // what it is to those who have the document read to them

  // Events; empty ones are skipped.
  std::function<void()> Format;
  std::function<void()> BeforePrint;
  std::function<void()> AfterPrint;

  const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
  bool HoldsSubReport() const { return holdsSubReport_; }

 private:
  template <typename Kind_, typename... Arguments>
  Kind_& Add(Arguments&&... arguments);

  std::vector<std::unique_ptr<Control>> controls_;
  bool holdsSubReport_ = false;
};

}  // namespace tarvis
