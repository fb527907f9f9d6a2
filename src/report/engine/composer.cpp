#include "report/engine/composer.h"

#include <deque>
#include <utility>

#include "report/engine/band_composer.h"
#include "report/engine/page_flow.h"

namespace tarvis {
namespace {

Section* FindSection(const ActiveReport& report, SectionKind kind) {
  for (const auto& section : report.Sections()) {
    if (section->Kind == kind) return section.get();
  }
  return nullptr;
}

float HeightOf(const Section* section) {
  return section == nullptr ? 0 : section->Height;
}

// One composing from the first event of the outermost report to its finished document.
class Composing : private PageBands {
 public:
  Composing(ActiveReport& report, const PageSetup& setup, const TextMeasurer& measurer, PageTaker* taker)
      : report_(report),
        taker_(taker),
        pageHeader_(FindSection(report, SectionKind::PageHeader)),
        pageFooter_(FindSection(report, SectionKind::PageFooter)),
        bands_(document_, measurer),
        flow_(document_, contents_, *this, HeightOf(pageHeader_), HeightOf(pageFooter_)) {
    document_.Setup = setup;
    report_.TOC.SetTaker([this](const std::string& path) { contents_.Add(path, TakeLanding()); });
  }
  ~Composing() override { report_.TOC.SetTaker({}); }

  Document Run() {
    RunReport(report_, document_.Setup.Left, nullptr);
    flow_.Finish();
    WritePageTotal();
    document_.Title = report_.Caption;
    document_.Contents = contents_.Finish();
    return std::move(document_);
  }

 private:
  // An entry belongs to the band whose event runs; outside of all events, to the next band.
  int TakeLanding() {
    int& landing = current_ == nullptr ? nextLanding_ : *current_;
    if (landing < 0) landing = contents_.NewLanding();
    return landing;
  }

  void RunReport(ActiveReport& report, float left, OpenGroup* around) {
    const std::uint32_t outer = std::exchange(run_, bands_.BeginRun(report, run_));
    report.ActiveReport_ReportStart();
    bool endOfData = report.Unloaded();
    if (!endOfData) report.ActiveReport_FetchData(endOfData);
    std::vector<OpenGroup*> groups;
    PrintHeaders(report, left, around, groups);
    OpenGroup* const innermost = groups.empty() ? around : groups.back();
    Section* const detail = FindSection(report, SectionKind::Detail);
    while (!endOfData && !report.Unloaded()) {
      if (detail != nullptr) PrintSection(report, *detail, left, innermost);
      if (report.Unloaded()) break;
      report.ActiveReport_FetchData(endOfData);
    }
    PrintFooters(report, left, around, groups);
    report.ActiveReport_ReportEnd();
    run_ = outer;
  }

  void PrintHeaders(ActiveReport& report, float left, OpenGroup* around, std::vector<OpenGroup*>& groups) {
    OpenGroup* parent = around;
    for (const auto& section : report.Sections()) {
      if (section->Kind != SectionKind::GroupHeader || report.Unloaded()) continue;
      OpenGroup& group = groups_.emplace_back();
      group.Parent = parent;
      group.Header = section.get();
      group.Report = &report;
      group.Run = run_;
      group.Left = left;
      PrintSection(report, *section, left, parent, &group);
      groups.push_back(&group);
      parent = &group;
    }
  }

  // Footers pair with the groups from the innermost outwards.
  void PrintFooters(ActiveReport& report, float left, OpenGroup* around, std::vector<OpenGroup*>& groups) {
    for (const auto& section : report.Sections()) {
      if (section->Kind != SectionKind::GroupFooter || report.Unloaded()) continue;
      PrintSection(report, *section, left, groups.empty() ? around : groups.back());
      if (!groups.empty()) CloseGroup(groups);
    }
    while (!groups.empty()) CloseGroup(groups);
  }

  void CloseGroup(std::vector<OpenGroup*>& groups) {
    flow_.EndGroup(*groups.back());
    groups.pop_back();
  }

  // `group` is the innermost one around the section; `begins` the one that the section is the header of.
  void PrintSection(ActiveReport& report, Section& section, float left, OpenGroup* group,
                    OpenGroup* begins = nullptr) {
    if (section.HoldsSubReport()) {
      PrintFlowSection(report, section, left, group, begins);
      return;
    }
    Band band;
    const Printing printing = ComposeBand(report, section, left, band);
    if (begins != nullptr) BeginGroup(*begins, band);
    if (printing != Printing::Done) return;
    band.Group = group;
    if (section.NewPageBefore) flow_.StartNewPage();
    flow_.Add(std::move(band));
  }

  // The section itself isn't kept together: its own controls are at its top, the inner bands flow below one
  // by one.
  void PrintFlowSection(ActiveReport& report, Section& section, float left, OpenGroup* group,
                        OpenGroup* begins) {
    FlowRow& row = rows_.emplace_back();
    Band band;
    bool rowBegun = false;
    const auto runInner = [&] {
      if (begins != nullptr) BeginGroup(*begins, band);
      if (section.NewPageBefore) flow_.StartNewPage();
      row.OwnHeight = std::exchange(band.Height, 0.0F);
      band.Group = group;
      flow_.BeginRow(row);
      if (!band.Items.empty() || band.Landing >= 0) flow_.Add(band);
      rowBegun = true;
      const auto outer = std::exchange(current_, nullptr);
      RunSubReports(section, left, begins != nullptr ? begins : group);
      current_ = outer;
    };
    ComposeBand(report, section, left, band, runInner);
    if (rowBegun) flow_.EndRow(row);
  }

  void RunSubReports(Section& section, float left, OpenGroup* group) {
    for (const auto& control : section.Controls()) {
      const AnyControl self = control->Self();
      const auto* const* subReport = std::get_if<const SubReport*>(&self);
      if (subReport == nullptr || !control->Visible || !(*subReport)->object) continue;
      inner_.push_back((*subReport)->object);  // its headers may repeat after its host has let it go
      if (control->Top > 0) AddRoom(control->Top, group);
      RunReport(*inner_.back(), left + control->Left, group);
    }
  }

  void AddRoom(float height, OpenGroup* group) {
    Band room;
    room.IsHeader = true;
    room.Height = height;
    room.Group = group;
    flow_.Add(std::move(room));
  }

  // A group's settings count from after its header's Format.
  void BeginGroup(OpenGroup& group, const Band& header) {
    group.KeepTogether = group.Header->GroupKeepTogether;
    group.Repeats = group.Header->Repeat;
    group.HeaderHeight = header.Height;
    flow_.BeginGroup(group);
  }

  Printing ComposeBand(ActiveReport& report, Section& section, float left, Band& band,
                       const std::function<void()>& beforeAfterPrint = {}) {
    return ComposeBand({run_, false}, report, section, left, band, beforeAfterPrint);
  }

  Printing ComposeBand(const BandOrigin& origin, ActiveReport& report, Section& section, float left,
                       Band& band, const std::function<void()>& beforeAfterPrint = {}) {
    int landing = std::exchange(nextLanding_, -1);
    int* const outer = std::exchange(current_, &landing);
    const Printing printing = bands_.Compose(origin, report, section, left, band, [&] {
      band.Landing = landing;
      if (beforeAfterPrint) beforeAfterPrint();
    });
    current_ = outer;
    if (printing == Printing::Done) {
      band.Landing = landing;
    } else if (landing >= 0) {
      contents_.Drop(landing);
    }
    return printing;
  }

  bool ComposeRepeat(OpenGroup& group, Band& band) override {
    if (group.Report->Unloaded()) return false;
    return ComposeBand({group.Run, true}, *group.Report, *group.Header, group.Left, band) == Printing::Done;
  }

  Band ComposePageHeader(int page) override { return ComposePageBand(pageHeader_, page); }
  Band ComposePageFooter(int page) override { return ComposePageBand(pageFooter_, page); }

  Band ComposePageBand(Section* section, int page) {
    Band band;
    if (section == nullptr) return band;
    bands_.SetPageNumber(page + 1);
    ComposeBand(BandOrigin{}, report_, *section, document_.Setup.Left, band);
    for (const std::size_t item : bands_.PageCountItems())
      document_.PageTotals.push_back(static_cast<std::uint32_t>(document_.Items.size() + item));
    return band;
  }

  void FinishPage() override {
    if (taker_ == nullptr) return;
    taker_->Take(document_, document_.Pages.size() - 1);
    KeepPageTotals(document_.Pages.back());
  }

  // Of a page that was taken.
  void KeepPageTotals(Page& page) {
    const std::size_t count = PageTotalsOf(document_, page).size();
    const auto totals = document_.PageTotals.end() - static_cast<std::ptrdiff_t>(count);
    page.ItemCount = 0;
    for (auto total = totals; total != document_.PageTotals.end(); ++total) {
      const std::uint32_t kept = page.FirstItem + page.ItemCount++;
      document_.Items[kept] = document_.Items[*total];
      *total = kept;
    }
    document_.Items.resize(page.FirstItem + page.ItemCount);
  }

  void WritePageTotal() {
    const std::string total = std::to_string(document_.Pages.size());
    for (const std::uint32_t item : document_.PageTotals) bands_.PatchText(document_.Items[item], total);
  }

  ActiveReport& report_;
  PageTaker* const taker_;
  Section* const pageHeader_;
  Section* const pageFooter_;
  Document document_;
  BandComposer bands_;
  ContentsTree contents_;
  PageFlow flow_;
  std::deque<OpenGroup> groups_;
  std::deque<FlowRow> rows_;
  std::vector<std::shared_ptr<ActiveReport>> inner_;
  int* current_ = nullptr;  // landing of the band whose event runs
  int nextLanding_ = -1;    // of entries added outside of all bands
  std::uint32_t run_ = 0;   // of the report that runs
};

}  // namespace

Document Compose(ActiveReport& report, const PageSetup& setup, const TextMeasurer& measurer,
                 PageTaker* taker) {
  return Composing(report, setup, measurer, taker).Run();
}

}  // namespace tarvis
