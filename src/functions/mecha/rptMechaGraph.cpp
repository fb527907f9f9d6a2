#include "functions/mecha/rptMechaGraph.h"

#include <array>

namespace tarvis {
namespace {

constexpr int NoCursors = 0;
constexpr int NoCursorB = 2;

}  // namespace

rptMechaGraph::rptMechaGraph(ReportContext context)
    : GraphReport("rptMechaGraph", 9060, context, "Gain Graph/Phase Graph", 690, Entry::Plain, Keep::All) {
  ghGuide.Repeat = true;
  for (Label* label : {&Label2, &Label5, &Label4}) label->Reads.As = PartRole::Subheading;
  imgGraph1.AlternateText = "Gain graph of the mechanical analysis";
  imgGraph2.AlternateText = "Phase graph of the mechanical analysis";
}

void rptMechaGraph::ActiveReport_ReportStart() {
  const MechaData& mecha = Run.Mecha;
  Row = 0;
  imgGraph1.Picture = LoadGraph({mecha.MechaGraph1, mecha.MechaGraph1C});
  imgGraph2.Picture = LoadGraph({mecha.MechaGraph2, mecha.MechaGraph2C});
  cursors_.txtTitleCurA.Text = mecha.CursolName[0];
  cursors_.txtTitleCurB.Text = mecha.CursolName[1];
  cursors_.txtTitleCurB_A.Text = mecha.CursolName[2];
  HideCursorColumns();
}

// Required: without cursors the column of the difference stays on the page, under its own title.
void rptMechaGraph::HideCursorColumns() {
  if (Run.Mecha.CursolSelect == NoCursors) {
    Label4.Visible = false;
    for (Field* field : {&cursors_.txtTitleName, &cursors_.txtTitleCurA, &cursors_.txtTitleCurB,
                         &cursors_.txtValueName, &cursors_.txtValueCurA, &cursors_.txtValueCurB}) {
      field->Visible = false;
    }
  } else if (Run.Mecha.CursolSelect == NoCursorB) {
    cursors_.txtTitleCurB.Visible = false;
    cursors_.txtValueCurB.Visible = false;
  }
}

// Required: three rows, whatever `CursolSelect` says.
void rptMechaGraph::ActiveReport_FetchData(bool& endOfData) {
  const std::array rows{&Run.Mecha.CursolInfo1, &Run.Mecha.CursolInfo2, &Run.Mecha.CursolInfo3};
  const auto index = static_cast<std::size_t>(Row);
  endOfData = index >= rows.size();
  if (endOfData) return;
  cursors_.Show(*rows[index]);
  ++Row;
}

}  // namespace tarvis
