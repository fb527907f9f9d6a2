// tarvis-check: says to the host's developers whether their files are good. Exit status 0 if all are, 1 if
// not.
#include <iostream>
#include <string>
#include <vector>

#include "check/check_file.h"
#include "platform/files/program_arguments.h"
#include "text/code_page.h"
#include "text/run_time_failure.h"

namespace {

constexpr const char* Usage =
    "Usage: tarvis-check [--code-page NUMBER] FILE...\n"
    "Reads files that the host wrote for printing and says in one line for each what it holds or what is "
    "wrong.\n"
    "The kind of a file follows from its name: User.tmp, UPWizard.tmp, Trace.tmp, Trace1.tmp, RealTrace.tmp, "
    "Mecha.tmp,\n"
    "Sim.tmp, Sim1.tmp, IdxIdxTbl.tmp, IdxZoneTbl.tmp, IdxJogTbl.tmp, PrintOption.ToT. The code page is 1252 "
    "by default.\n";

int CheckFiles(int codePage, const std::vector<std::string>& paths) {
  bool allGood = true;
  for (const std::string& path : paths) {
    const tarvis::FileCheck check = tarvis::CheckFile(path, tarvis::CodePage(codePage));
    std::cout << check.Line << '\n';
    allGood = allGood && check.IsGood;
  }
  return allGood ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> arguments = tarvis::ProgramArguments(argc, argv);
  int codePage = 1252;
  try {
    if (arguments == std::vector<std::string>{"--help"}) {
      std::cout << Usage;
      return 0;
    }
    if (arguments.size() >= 2 && arguments.front() == "--code-page") {
      codePage = tarvis::CodePageNumber(arguments[1]);
      arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (arguments.empty() || arguments.front().starts_with("--")) {
      std::cerr << Usage;
      return 1;
    }
    return CheckFiles(codePage, arguments);
  } catch (const tarvis::RunTimeFailure& failure) {
    std::cerr << "tarvis-check: " << failure.what() << '\n';
    return 1;
  }
}
