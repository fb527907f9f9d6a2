// The window in which a composed document is read, searched, printed and saved.
#pragma once

#include <QContextMenuEvent>
#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "preview/pages/page_layout.h"
#include "preview/pages/place_history.h"
#include "preview/paint/document_text.h"
#include "preview/window/document_output.h"
#include "preview/window/preview_actions.h"
#include "report/engine/active_report.h"
#include "report/engine/document.h"

class QSplitter;

namespace tarvis {

class AreaMarker;
class Copier;
class FindBar;
class Finder;
class Overview;
class PageBox;
class PageInput;
class PageReader;
class PageView;
class SavedBar;
class Selector;
class SidePane;
class ZoomBox;

// How the report that is shown wants its window.
struct PreviewSetup {
  QString Caption = QStringLiteral("Print Preview");
  std::vector<Tool> Tools;  // added tools, shown with their text
  bool ContentsVisible = true;
  double ContentsWidth = 2300;  // twips
  DocumentOrigin Origin;
  std::shared_ptr<PreviewMemory> Memory;  // shared by the previews of a run; null for one of its own
};

class PreviewWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit PreviewWindow(std::shared_ptr<const Document> document, const PreviewSetup& setup = {},
                         QWidget* parent = nullptr);
  // Cancels a print or an export that is under way and waits for it.
  ~PreviewWindow() override;

  PageView& View() { return *view_; }
  // Whether a print or an export is under way.
  bool IsBusy() const;
  QAction* ActionOf(Command command) const { return actions_->Of(command); }

 signals:
  // A tool that is none of the window's own business: an added tool, or CloseTool.
  void toolUsed(int id);
  // The user has closed the window; closing it from code sends no signal.
  void closedByUser();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  using Handlers = std::map<Command, std::function<void(bool checked)>>;

  void ShowAsBefore(const WindowState& state);
  WindowState State() const;
  void Arrange(const PreviewSetup& setup);
  void MakeToolbar();
  Handlers MakeHandlers();
  void Connect();
  void ConnectBoxes();
  // At a place on the screen; commands are about what is there if it was opened by the mouse.
  void ShowMenu(const QPoint& place, QContextMenuEvent::Reason reason);

  void Jump(const PagePlace& place);
  void Walk(const std::optional<PagePlace>& place);
  void ShowPlace();
  void ShowZoom();
  void ShowSelection();

  std::shared_ptr<const Document> document_;
  DocumentText text_;
  std::shared_ptr<PreviewMemory> memory_;
  PageView* view_;
  PageInput* input_;
  Selector* selector_;
  PageReader* reader_;  // owned by the view
  AreaMarker* marker_;
  DocumentOutput* output_;
  Copier* copier_;
  SidePane* pane_;
  FindBar* findBar_;
  SavedBar* savedBar_;
  Finder* finder_;
  Overview* overview_;
  QSplitter* splitter_;
  PageBox* pageBox_;
  ZoomBox* zoomBox_;
  PreviewActions* actions_;
  Handlers handlers_;
  PlaceHistory history_;
  std::optional<ReadingPlace> place_;  // to be shown when the window has its size
};

}  // namespace tarvis
