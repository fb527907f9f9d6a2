#include "functions/sim/rptSimSettingMecha.h"

#include "report/picture_file.h"
#include "text/file_name.h"

namespace tarvis {
namespace {

const std::string NoUnit = "-";

std::vector<TableRow> RowsOf(const SimData& sim) {
  return {TableRow(sim.MechaType.Name, sim.MechaType.Value, NoUnit), sim.Inertia, sim.ResPoint,
          sim.AntiResPoint};
}

}  // namespace

rptSimSettingMecha::rptSimSettingMecha(ReportContext context)
    : NameValueTable("rptSimSettingMecha", context, "Mechanical Setting", Entry::Grouped, SimSettingColumns,
                     RowsOf(context.Run.Sim), 855) {
  Detail.Format = [this] { Detail_Format(); };
  imgModel.Reads.Within = &txtValueVal;
}

// The model's picture has no way out by an empty path, unlike a graph's legend.
void rptSimSettingMecha::ActiveReport_FetchData(bool& endOfData) {
  if (Row == 0) LoadModel();
  NameValueTable::ActiveReport_FetchData(endOfData);
}

void rptSimSettingMecha::LoadModel() {
  const MechaModel& model = Run.Sim.MechaType;
  imgModel.Picture = LoadPictureOrFail(model.ModelFile, Failure::MechanicalModelNotFound);
  imgModel.AlternateText = model.Name + ": " + std::string(FileNameOf(model.ModelFile));
}

// Row is already that of the next fetch. The heights last until the next row sets them.
void rptSimSettingMecha::Detail_Format() {
  if (Row == 1) {
    imgModel.Visible = true;
    SetValueHeights(imgModel.Height);
  } else if (Row == 2) {
    imgModel.Visible = false;
    SetValueHeights(txtValueVal.Height * 2);
  } else if (Row == 3) {
    imgModel.Visible = false;
    SetValueHeights(txtTitleName.Height);
  }
}

void rptSimSettingMecha::SetValueHeights(float height) {
  for (Field* field : {&txtValueName, &txtValueVal, txtValueUnit}) field->Height = height;
}

}  // namespace tarvis
