// The base of all report definitions: sections in layout order, report events, and the contract of the
// engine.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "report/engine/section.h"

namespace tarvis {

// Numbers of the preview's tools that reports handle.
inline constexpr int EditItemsTool = 999;  // added by the master report
inline constexpr int CloseTool = 5113;     // the preview's own

// A tool of the preview's toolbar.
struct Tool {
  std::string Caption;
  int ID = 0;
};

// Entries are taken by the composer, which binds each to the band in whose event it was added.
class Contents {
 public:
  // A backslash in `path` makes the part before the first one the parent entry.
  void Add(const std::string& path) {
    if (taker_) taker_(path);
  }
  // The composer's side: who takes the entries from now on; empty drops them.
  void SetTaker(std::function<void(const std::string&)> taker) { taker_ = std::move(taker); }

 private:
  std::function<void(const std::string&)> taker_;
};

// A definition derives from it, declares its sections and controls as members, and overrides its events.
// Objects that run inside a SubReport are new for each use, so their members start cleared for each run.
class ActiveReport {
 public:
  // `name` and `printWidth` (twips) are the definition's; `name` has static storage.
  ActiveReport(const char* name, float printWidth) : Name(name), PrintWidth(printWidth) {}
  virtual ~ActiveReport() = default;
  ActiveReport(const ActiveReport&) = delete;
  ActiveReport& operator=(const ActiveReport&) = delete;

  const char* const Name;
  const float PrintWidth;

  // Used on the report that is shown at top level.
  std::string Caption;
  Contents TOC;
  bool TOCVisible = false;
  float TOCWidth = 0;  // twips
  std::vector<Tool> Tools;

  // Written in Detail_Format: 5 has this pass of Detail leave no row. Counts for the one pass.
  int LayoutAction = 0;
  // The report removes itself: the band that is being composed, all later rows and all footers don't print.
  void Unload() { unloaded_ = true; }
  bool Unloaded() const { return unloaded_; }

  // Report events. A definition that doesn't override the fetch prints one detail row.
  virtual void ActiveReport_ReportStart() {}
  virtual void ActiveReport_FetchData(bool& endOfData);
  virtual void ActiveReport_ReportEnd() {}

  const std::vector<std::unique_ptr<Section>>& Sections() const { return sections_; }

 protected:
  // Sections print in the order in which they are added. `name` has static storage.
  Section& AddSection(SectionKind kind, const char* name, float height);

 private:
  std::vector<std::unique_ptr<Section>> sections_;
  bool unloaded_ = false;
  bool oneRowGiven_ = false;
};

// Runs `statement`; a RunTimeFailure in it skips the rest of it and nothing else.
template <typename Statement>
void IgnoreErrors(Statement&& statement);

}  // namespace tarvis

#include "text/run_time_failure.h"

template <typename Statement>
void tarvis::IgnoreErrors(Statement&& statement) {
  try {
    statement();
  } catch (const RunTimeFailure&) {
    // Required: the handler goes on with its next statement.
  }
}
