// The window in which a composed document is read, searched, printed and saved.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>
#include <vector>

#include "preview/pages/page_layout.h"
#include "preview/pages/place_history.h"
#include "preview/paint/document_text.h"
#include "preview/text/text_selection.h"
#include "preview/window/commands.h"
#include "preview/window/document_output.h"
#include "report/engine/active_report.h"
#include "report/engine/document.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QSplitter;

namespace tarvis {

class FindBar;
class Finder;
class PageInput;
class PageView;
class SavedBar;
class SidePane;

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
  QAction* ActionOf(Command command) const { return actions_.at(command); }

 signals:
  // A tool that is none of the window's own business: an added tool, or CloseToolNumber.
  void toolUsed(int id);
  // The user has closed the window; closing it from code tells nothing.
  void closedByUser();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void PlaceOnScreen();
  void ShowAsBefore(const WindowState& state);
  WindowState State() const;
  void MakeActions();
  void MakeToolbar(const std::vector<Tool>& tools);
  void AddTool(const Tool& tool, QToolBar& bar);
  QWidget* MakePageBox();
  QWidget* MakeZoomBox();
  void ShowMenu(const QPoint& place);  // on the screen
  void Connect();
  void ConnectSelection();
  void Run(Command command, bool checked);

  void Jump(const PagePlace& place);
  void ShowPlace();
  void ShowZoom();
  void Walk(const std::optional<PagePlace>& place);
  void FocusPageBox();
  void ReadPageBox();
  void ReadZoomBox();

  void Copy();
  void SelectionChanged();

  std::shared_ptr<const Document> document_;
  DocumentText text_;
  TextSelection selection_;
  std::shared_ptr<PreviewMemory> memory_;
  PageView* view_;
  PageInput* input_;
  DocumentOutput* output_;
  SidePane* pane_;
  FindBar* findBar_;
  SavedBar* savedBar_;
  Finder* finder_;
  QSplitter* splitter_;
  QLineEdit* pageBox_ = nullptr;
  QComboBox* zoomBox_ = nullptr;
  std::map<Command, QAction*> actions_;
  std::vector<QAction*> toolActions_;
  PlaceHistory history_;
  std::optional<ReadingPlace> place_;  // to be shown when the window has its size
};

}  // namespace tarvis
