// tarvis-check: says to the host's developers whether their files are good. Exit status 0 if all are, 1 if
// not.
#include <cstring>
#include <iostream>

#include "check/check_file.h"
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

bool Is(const char* argument, const char* option) {
  return std::strcmp(argument, option) == 0;
}

int CheckFiles(int codePage, char** first, char** end) {
  bool allGood = true;
  for (char** path = first; path != end; ++path) {
    const tarvis::FileCheck check = tarvis::CheckFile(*path, tarvis::CodePage(codePage));
    std::cout << check.Line << '\n';
    allGood = allGood && check.IsGood;
  }
  return allGood ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  char** end = argv + argc;
  char** first = argv + 1;
  int codePage = 1252;
  try {
    if (end - first == 1 && Is(*first, "--help")) {
      std::cout << Usage;
      return 0;
    }
    if (end - first >= 2 && Is(*first, "--code-page")) {
      codePage = tarvis::CodePageNumber(first[1]);
      first += 2;
    }
    if (first >= end || std::strncmp(*first, "--", 2) == 0) {
      std::cerr << Usage;
      return 1;
    }
    return CheckFiles(codePage, first, end);
  } catch (const tarvis::RunTimeFailure& failure) {
    std::cerr << "tarvis-check: " << failure.what() << '\n';
    return 1;
  }
}
