// The one table of the preview's commands: it feeds toolbar, context menu, shortcuts, tooltips and icons.
#pragma once

#include <span>

namespace tarvis {

enum class Command {
  Print,
  SavePdf,
  SidePane,
  FirstPage,
  PreviousPage,
  NextPage,
  LastPage,
  GoToPage,
  Back,
  Forward,
  ZoomIn,
  ZoomOut,
  FitPage,
  ActualSize,
  FitWidth,
  Continuous,
  FacingPages,
  ManyColumns,
  Overview,
  FullScreen,
  Find,
  FindNext,
  FindPrevious,
  Copy,
  CopyGraph,
  SaveGraph,
  SelectAll,
  SelectColumn,
  MarkArea,
  ZoomToArea,
  Close,
};

// Where a command is shown; all are in the context menu.
enum class Shown { Toolbar, MenuOnly };

// What a command does when it is chosen: it acts, or it changes a state, which is shown by a check mark.
enum class ActionKind { Push, Toggle };

// A separator comes before the first command of a group.
enum class InGroup { First, Next };

struct CommandEntry {
  Command Id;
  const char* Name;     // object name of its action and, with "Button", of its tool
  const char* Caption;  // with mnemonic
  const char* Keys;     // portable key sequences, several separated by "; "
  const char* Icon;     // see icons.h; empty for none
  Shown Where;
  ActionKind Kind;
  InGroup Place;
  int Number;  // the tool's number, 0 for none
};

std::span<const CommandEntry> CommandTable();

// Key of the first tool that the report adds, and the icon of all of them. They come before "Close".
inline constexpr const char* ReportToolKey = "Ctrl+E";
inline constexpr const char* ReportToolIcon = "M3 13 L3.8 9.8 L10.6 3 L13 5.4 L6.2 12.2 Z M9 4.6 L11.4 7";

}  // namespace tarvis
