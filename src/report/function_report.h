// What all function reports share: the title band, the contents entry, the row counter, growing sections.
#pragma once

#include <cstdint>

#include "report/cell_styles.h"
#include "report/report_context.h"
#include "run/failures.h"
#include "run/print_run.h"

namespace tarvis {

// How a report enters the contents: always at top level, or below the group of its data set if there is one.
enum class Entry { Plain, Grouped };

class FunctionReport : public ActiveReport {
 public:
  void ActiveReport_ReportStart() override { Row = 0; }

 protected:
  // Adds `ghTitle`, `titleHeight` twips high, with the band and `caption`; `keep` is its group keep-together.
  FunctionReport(const char* name, float printWidth, ReportContext context, const char* caption,
                 float titleHeight, Entry entry, Keep keep);

  // A section that can grow and can shrink, as all sections of function reports.
  Section& AddGrowing(SectionKind kind, const char* name, float height);
  // The same for the titles of columns and for the rows below them.
  Section& AddGuide(float height);
  Section& AddRows(float height);
  // Enters the caption as it is at run time.
  void EnterContents();
  // Loads the picture of `path` if the file is there, else reports `failure`.
  PicturePtr LoadPictureOrFail(const std::string& path, Failure failure);

  PrintRun& Run;
  PictureLoader& Pictures;
  std::int16_t Row = 0;

  Section& ghTitle;
  Image& Image1;
  Label& Label1;

 private:
  const Entry entry_;
};

}  // namespace tarvis
