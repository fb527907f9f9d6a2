#include "report/picture_file.h"

#include "launch/failures.h"
#include "launch/print_run.h"
#include "printfiles/host_files.h"

namespace tarvis {

PicturePtr LoadPictureOrFail(ReportContext context, const char* report, const std::string& path,
                             int failure) {
  if (!FileExists(path)) {
    context.Run.Session.Diagnosis = std::string(report) + ": no picture file '" + path + "'";
    ReportFailure(context.Run, failure);
  }
  return context.Pictures.Load(path);
}

}  // namespace tarvis
