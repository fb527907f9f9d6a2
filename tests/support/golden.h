// Pages and other long texts compared with the goldens that reviewers have read: tests/goldens/<name>.txt.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/source_folder.h"

namespace tarvis {

// Says at which line two texts part and what they have there; empty if they are the same.
inline std::string FirstDifference(const std::string& stored, const std::string& made) {
  if (stored == made) return {};
  std::istringstream storedLines(stored);
  std::istringstream madeLines(made);
  for (int number = 1;; ++number) {
    std::string storedLine;
    std::string madeLine;
    const bool storedEnds = !std::getline(storedLines, storedLine);
    const bool madeEnds = !std::getline(madeLines, madeLine);
    if (storedEnds && madeEnds) return "the texts differ only in their line ends";
    if (storedEnds == madeEnds && storedLine == madeLine) continue;
    const auto shown = [](bool ends, const std::string& line) { return ends ? "(end of text)" : line; };
    return "line " + std::to_string(number) + "\n  stored: " + shown(storedEnds, storedLine) +
           "\n  made:   " + shown(madeEnds, madeLine);
  }
}

// Expects `text` to be the golden of that name. With TARVIS_UPDATE_GOLDENS=1 in the environment it becomes
// the golden instead; read the difference before you commit it.
inline void ExpectGolden(const std::string& name, const std::string& text) {
  const std::filesystem::path path =
      std::filesystem::path(SourceFolder()) / "tests" / "goldens" / (name + ".txt");
  const char* const update = std::getenv("TARVIS_UPDATE_GOLDENS");
  if (update != nullptr && std::string(update) == "1") {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    EXPECT_TRUE(file.good()) << "can't write " << path;
    return;
  }
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file.good()) << "no golden " << path << "; TARVIS_UPDATE_GOLDENS=1 makes it";
  std::ostringstream stored;
  stored << file.rdbuf();
  EXPECT_EQ(FirstDifference(stored.str(), text), "") << path;
}

}  // namespace tarvis
