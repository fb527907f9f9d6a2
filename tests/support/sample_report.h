// Small made-up reports for the tests of the engine's rules.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "report/engine/active_report.h"
#include "report/engine/composer.h"
#include "support/arial_measurer.h"

namespace tarvis {

constexpr CellStyle Plain{.Size = 8.5F};  // line pitch 190
constexpr CellStyle Cell{.Size = 8.5F, .Border = true, .Filled = true};

// The lines of all printings of a control, as items and as texts.
inline std::vector<Item> TextsOf(const Document& document, const std::string& control) {
  std::vector<Item> items;
  for (const Item& item : document.Items) {
    if (item.Kind == ItemKind::Text && document.Names[item.Control] == control) items.push_back(item);
  }
  return items;
}

inline std::vector<std::string> LinesOf(const Document& document, const std::string& control) {
  std::vector<std::string> lines;
  for (const Item& item : TextsOf(document, control)) lines.emplace_back(document.Texts[item.Source].Text);
  return lines;
}

// Sections are added by the test; the rows come from `Fetch`, or one row if that is empty.
class SampleReport : public ActiveReport {
 public:
  explicit SampleReport(const char* name = "sample") : ActiveReport(name, 9000) {}

  // A section of the kind of function reports, which grows and shrinks.
  Section& Growing(SectionKind kind, const char* name, float height = 0) {
    Section& section = AddSection(kind, name, height);
    section.FitsControls = true;
    return section;
  }
  Section& Fixed(SectionKind kind, const char* name, float height) { return AddSection(kind, name, height); }
  // Rows 0 to count - 1; `fill` is called in the fetch of each.
  void Rows(int count, std::function<void(int)> fill = {}) {
    Fetch = [this, count, fill](bool& endOfData) {
      if (next_ == count) {
        endOfData = true;
        return;
      }
      if (fill) fill(next_);
      ++next_;
    };
  }

  void ActiveReport_ReportStart() override {
    Log.emplace_back("start");
    if (Start) Start();
  }
  void ActiveReport_FetchData(bool& endOfData) override {
    Log.emplace_back("fetch");
    if (Fetch) {
      endOfData = false;
      Fetch(endOfData);
    } else {
      ActiveReport::ActiveReport_FetchData(endOfData);
    }
  }
  void ActiveReport_ReportEnd() override { Log.emplace_back("end"); }
  // Writes the section's three events to the log.
  void Watch(Section& section) {
    const std::string name = section.Name;
    section.Format = [this, name] { Log.push_back(name + ".Format"); };
    section.BeforePrint = [this, name] { Log.push_back(name + ".BeforePrint"); };
    section.AfterPrint = [this, name] { Log.push_back(name + ".AfterPrint"); };
  }

  std::function<void()> Start;
  std::function<void(bool&)> Fetch;
  std::vector<std::string> Log;

 private:
  int next_ = 0;
};

// A box of the section's whole height, so that each band leaves one item named after its control.
inline void AddBlock(Section& section, const char* name, float height) {
  section.AddShape(name, {0, 0, 1000, height});
}

// Paper whose body is `bodyHeight` twips high, without margins and footer.
inline PageSetup PaperOf(float bodyHeight) {
  return {10000, bodyHeight, 0, 0, 0, 0};
}

inline Document ComposeSample(ActiveReport& report, float bodyHeight) {
  return Compose(report, PaperOf(bodyHeight), ArialMeasurer());
}

// "1:name@top" of each item that isn't part of a control's text, or of each text if it has no box.
inline std::vector<std::string> Places(const Document& document) {
  std::vector<std::string> places;
  for (std::size_t page = 0; page < document.Pages.size(); ++page) {
    const Page& range = document.Pages[page];
    for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
      const Item& item = document.Items[index];
      const std::string text = item.Kind == ItemKind::Text ? std::string(document.Texts[item.Source].Text)
                                                           : std::string(document.Names[item.Control]);
      places.push_back(std::to_string(page + 1) + ":" + text + "@" +
                       std::to_string(static_cast<int>(item.Box.Top)));
    }
  }
  return places;
}

}  // namespace tarvis
