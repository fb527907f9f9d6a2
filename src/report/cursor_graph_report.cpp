#include "report/cursor_graph_report.h"

#include <cmath>
#include <utility>

#include "text/numbers.h"

namespace tarvis {
namespace {

// The same whole number as in the table of channels. What is no number ends the run there, and not here: the
// graph itself doesn't depend on it.
bool ShowsGraph(const std::string& display) {
  return std::nearbyint(LenientReal(display)) != 0;
}

}  // namespace

CursorGraphReport::CursorGraphReport(const char* name, ReportContext context, const char* caption,
                                     Entry entry, const CursorGraphLayout& layout, CursorGraphData data)
    : GraphReport(name, 9000, context, caption, 690, entry, Keep::All),
      data_(std::move(data)),
      ghGraph(AddGrowing(SectionKind::GroupHeader, "ghGraph", 8430)),
      imgGraph(ghGraph.AddImage("imgGraph", layout.Graph)),
      Label2(ghGraph.AddLabel("Label2", layout.CursorLabel, "[Cursor Data]", GraphHeading)),
      imgNote(ghGraph.AddImage("imgNote", layout.Note)),
      imgIONote(layout.IONote ? &ghGraph.AddImage("imgIONote", *layout.IONote) : nullptr),
      ghGuide(AddGuide(layout.GuideHeight)),
      Detail(AddRows(300)),
      cursors_(ghGuide, Detail, layout.Cursors),
      GroupFooter2(AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 10)),
      GroupFooter3(AddGrowing(SectionKind::GroupFooter, "GroupFooter3", 0)),
      GroupFooter1(AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0)) {
  ghGuide.Repeat = true;
  Label2.Reads = {.As = PartRole::Subheading, .Line = 1};  // right before the table of which it is the title
}

void CursorGraphReport::ActiveReport_ReportStart() {
  imgGraph.Picture = LoadGraph(data_.Graph);
  imgNote.Picture = LoadLegend(data_.Note);
  if (imgIONote != nullptr && data_.IONote) imgIONote->Picture = LoadLegend(*data_.IONote);
  DescribePictures();
  if (data_.CursolSelect == 0) HideCursorTable();
}

void CursorGraphReport::DescribePictures() {
  const std::string& caption = Label1.Caption();
  imgGraph.AlternateText = caption;
  const char* separator = ": ";
  for (const TraceItem* channel : data_.Channels) {
    if (channel->Name.empty() || !ShowsGraph(channel->Display)) continue;
    imgGraph.AlternateText += separator + channel->Name;
    if (!channel->Unit.empty()) imgGraph.AlternateText += " [" + channel->Unit + "]";
    separator = ", ";
  }
  imgNote.AlternateText = "Legend: " + caption;
  if (imgIONote != nullptr) imgIONote->AlternateText = "Legend of I/O signals: " + caption;
}

void CursorGraphReport::HideCursorTable() {
  Label2.Visible = false;
  for (Field* field :
       {&cursors_.txtTitleName, &cursors_.txtTitleCurA, &cursors_.txtTitleCurB, &cursors_.txtTitleCurB_A,
        &cursors_.txtValueName, &cursors_.txtValueCurA, &cursors_.txtValueCurB, &cursors_.txtValueCurB_A}) {
    field->Visible = false;
  }
}

// Required: every row after the first shows the second cursor row.
void CursorGraphReport::ActiveReport_FetchData(bool& endOfData) {
  endOfData = Row >= data_.CursolSelect;
  if (endOfData) return;
  cursors_.Show(Row == 0 ? data_.CursolInfo1 : data_.CursolInfo2);
  ++Row;
}

}  // namespace tarvis
