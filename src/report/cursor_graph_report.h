// One graph with its legends and its cursor table. A definition states its layout and the place of its data.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "report/cursor_table.h"
#include "report/graph_report.h"

namespace tarvis {

// In twips, relative to their sections.
struct CursorGraphLayout {
  Rect Graph;
  Rect CursorLabel;
  Rect Note;
  std::optional<Rect> IONote;
  float GuideHeight;
  CursorLayout Cursors;
};

// Members of the data record that the report prints; the record must outlive the report.
struct CursorGraphData {
  std::vector<const TraceItem*> Channels;  // what the graph may show, as far as the host says it
  PicturePaths Graph;
  PicturePaths Note;
  std::optional<PicturePaths> IONote;
  const std::int16_t& CursolSelect;  // how many rows print; only 0 hides the whole table
  const CursorRow& CursolInfo1;
  const CursorRow& CursolInfo2;
};

class CursorGraphReport : public GraphReport {
 public:
  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 protected:
  CursorGraphReport(const char* name, ReportContext context, const char* caption, Entry entry,
                    const CursorGraphLayout& layout, CursorGraphData data);

 private:
  void HideCursorTable();
  void DescribePictures();

  const CursorGraphData data_;

  Section& ghGraph;
  Image& imgGraph;
  Label& Label2;
  Image& imgNote;
  Image* const imgIONote;  // none without `IONote` in the layout

  Section& ghGuide;
  Section& Detail;
  CursorTable cursors_;

  Section& GroupFooter2;
  Section& GroupFooter3;
  Section& GroupFooter1;
};

}  // namespace tarvis
