// The actions of the preview: one for each command of the table, and those of the tools that the report
// brings.
#pragma once

#include <QObject>
#include <map>
#include <vector>

#include "preview/window/commands.h"
#include "report/engine/active_report.h"

class QAction;
class QMenu;
class QToolBar;
class QWidget;

namespace tarvis {

class PreviewActions : public QObject {
  Q_OBJECT
 public:
  // Their keys work in `window`, which owns this.
  PreviewActions(const std::vector<Tool>& tools, QWidget& window);

  QAction* Of(Command command) const { return commands_.at(command); }

  // Both get the actions in the order of the table, the report's tools before "Close". The toolbar gets
  // `pageBox` after "Previous page", and `zoomBox` after "Zoom out".
  void FillToolbar(QToolBar& bar, QWidget& pageBox, QWidget& zoomBox) const;
  void FillMenu(QMenu& menu) const;

 signals:
  void Triggered(Command command, bool checked);
  void ToolUsed(int id);

 private:
  void AddCommand(const CommandEntry& entry, QWidget& window);
  void AddTool(const Tool& tool, QWidget& window);

  std::map<Command, QAction*> commands_;
  std::vector<QAction*> tools_;
};

}  // namespace tarvis
