#include "report/function_report.h"

#include "report/band_bitmap.h"
#include "report/picture_file.h"

namespace tarvis {
namespace {

constexpr CellStyle CaptionStyle{.Size = 11.5F, .Bold = true};

}  // namespace

FunctionReport::FunctionReport(const char* name, float printWidth, ReportContext context, const char* caption,
                               float titleHeight, Entry entry, Keep keep)
    : ActiveReport(name, printWidth),
      Run(context.Run),
      Pictures(context.Pictures),
      ghTitle(AddGrowing(SectionKind::GroupHeader, "ghTitle", titleHeight)),
      Image1(ghTitle.AddImage("Image1", {0, 210, 8925, 420}, Fit::Fill)),
      Label1(ghTitle.AddLabel("Label1", {0, 283, 3402, 284}, caption, CaptionStyle)),
      entry_(entry) {
  Image1.Picture = Pictures.LoadBytes("band", BandBitmap());
  ghTitle.GroupKeepTogether = keep;
  ghTitle.AfterPrint = [this] { EnterContents(); };
  Label1.Reads.As = PartRole::Heading;
}

Section& FunctionReport::AddGrowing(SectionKind kind, const char* name, float height) {
  Section& section = AddSection(kind, name, height);
  section.FitsControls = true;
  return section;
}

Section& FunctionReport::AddGuide(float height) {
  Section& section = AddGrowing(SectionKind::GroupHeader, "ghGuide", height);
  section.Role = BandRole::HeaderRow;
  return section;
}

Section& FunctionReport::AddRows(float height) {
  Section& section = AddGrowing(SectionKind::Detail, "Detail", height);
  section.Role = BandRole::Row;
  return section;
}

void FunctionReport::EnterContents() {
  ActiveReport* const master = Run.Session.MasterReport;
  if (master == nullptr) return;
  const std::string& group = Run.Session.TocGroup;
  const bool grouped = entry_ == Entry::Grouped && !group.empty();
  master->TOC.Add(grouped ? group + "\\" + Label1.Caption() : Label1.Caption());
}

PicturePtr FunctionReport::LoadPictureOrFail(const std::string& path, Failure failure) {
  return tarvis::LoadPictureOrFail({Run, Pictures}, Name, path, failure);
}

}  // namespace tarvis
