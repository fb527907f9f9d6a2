#include "functions/user/user_function.h"

#include <array>

#include "functions/contents.h"
#include "functions/module_list.h"
#include "functions/user/rptUserPrm.h"
#include "functions/user/rptUserSwitch.h"
#include "printfiles/user_file.h"

namespace tarvis {
namespace {

constexpr std::array Reports = {
    NamedReport{"rptUserPrm", MakeReport<rptUserPrm>},
    NamedReport{"rptUserSwitch", MakeReport<rptUserSwitch>},
};

ModuleList Modules(PrintRun& run) {
  const auto& option = run.Options.UserOption;
  ModuleList modules{"rptUserPrm"};
  AddIf(modules, option.IsOn(UserElement::Comments), "rptUserComment");
  PassColumnSwitches(run.Session, option);
  return modules;
}

}  // namespace

constinit const PrintFunction UserFunction = {.Mode = Mode::User,
                                              .Header = &PrintOptions::UserHeader,
                                              .File = "User",
                                              .Read = ReadUserFile,
                                              .WrongFile = Failure::WrongParameterFile,
                                              .Modules = Modules,
                                              .Reports = Reports,
                                              .Contents = ParameterContents};

}  // namespace tarvis
