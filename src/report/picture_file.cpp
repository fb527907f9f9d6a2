#include "report/picture_file.h"

#include "run/failures.h"
#include "run/print_run.h"
#include "text/native_path.h"

namespace tarvis {

PicturePtr LoadPictureOrFail(ReportContext context, const char* report, const std::string& path,
                             Failure failure) {
  if (!FileExists(path)) {
    context.Run.Session.Diagnosis = std::string(report) + ": no picture file '" + path + "'";
    ReportFailure(context.Run, failure);
  }
  return context.Pictures.Load(path);
}

}  // namespace tarvis
