// What a run remembers from one preview to the next. Nothing of it outlives the run.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

#include "preview/pages/page_layout.h"

namespace tarvis {

// Where the reader was in a document, described so that it can be found again in a document that was composed
// again.
struct ReadingPlace {
  QString Parent;       // text of the contents entry above `Entry`; empty for an entry of the first level
  QString Entry;        // text of the contents entry that was read; empty without contents
  int Occurrence = 0;   // of this pair in the contents, counted from 0
  double Below = 0;     // twips below the entry's own place, also over several pages
  PagePlace Page = {};  // used where the entry is missing
};

// How the user has set the window.
struct WindowState {
  QByteArray Geometry = {};  // place, size, whether it fills the screen
  QList<int> Panes;          // widths of the side pane and of the pages; empty while the side pane is hidden
  bool SidePane = true;
  int SidePaneTab = 0;
  bool Continuous = true;
  Columns Side = Columns::One;
  ZoomMode Zoom = ZoomMode::FitWidth;
  double Factor = 1;
  ReadingPlace Place = {};
  int Across = 0;  // logical pixels that the pages are scrolled sideways
};

struct PreviewMemory {
  QString Folder;  // where the last file was saved; empty before that
  // What was chosen when a PDF was saved last.
  bool AttachesData = false;
  bool IsTagged = false;
  std::optional<WindowState> Window;
};

}  // namespace tarvis
