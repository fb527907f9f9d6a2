#include "preview/window/preview_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "preview/pages/area_marker.h"
#include "preview/pages/page_input.h"
#include "preview/pages/page_steps.h"
#include "preview/pages/page_view.h"
#include "preview/window/copier.h"
#include "preview/window/find_bar.h"
#include "preview/window/finder.h"
#include "preview/window/finger_size.h"
#include "preview/window/hit_list.h"
#include "preview/window/overview.h"
#include "preview/window/page_box.h"
#include "preview/window/page_reader.h"
#include "preview/window/reading_place.h"
#include "preview/window/saved_bar.h"
#include "preview/window/selector.h"
#include "preview/window/side_pane.h"
#include "preview/window/zoom_box.h"

namespace tarvis {
namespace {

constexpr double OpeningLeft = 60;  // twips
constexpr double OpeningTop = 345;
constexpr double OpeningWidth = 16005;
constexpr double OpeningHeight = 9675;

int Pixels(double twips) {
  return static_cast<int>(twips / TwipsPerScreenPixel);
}

void PlaceOnScreen(QWidget& window) {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize size = QSize(Pixels(OpeningWidth), Pixels(OpeningHeight)).boundedTo(room.size());
  const QPoint wanted = room.topLeft() + QPoint(Pixels(OpeningLeft), Pixels(OpeningTop));
  window.resize(size);
  window.move(std::min(wanted.x(), room.right() + 1 - size.width()),
              std::min(wanted.y(), room.bottom() + 1 - size.height()));
}

// Of the pane beside the pages, which grows with a font that is larger than the usual one.
int PaneWidth(double twips, const QWidget& window) {
  constexpr double UsualFontPixels = 12;
  return static_cast<int>(Pixels(twips) *
                          std::max(1.0, QFontInfo(window.font()).pixelSize() / UsualFontPixels));
}

void ShowColumns(Columns columns, PageView& view, Overview& overview) {
  overview.Close();
  view.SetColumns(columns);
  // In its full width a page would leave no room for others.
  if (columns == Columns::AsManyAsFit && view.Layout().Mode() == ZoomMode::FitWidth)
    view.SetZoomMode(ZoomMode::FitPage);
}

}  // namespace

PreviewWindow::PreviewWindow(std::shared_ptr<const Document> document, const PreviewSetup& setup,
                             QWidget* parent)
    : QMainWindow(parent),
      document_(std::move(document)),
      text_(*document_),
      memory_(setup.Memory != nullptr ? setup.Memory : std::make_shared<PreviewMemory>()),
      view_(new PageView(document_)),
      input_(new PageInput(*view_)),
      selector_(new Selector(text_, *view_, *input_, this)),
      reader_(new PageReader(text_, *view_, *selector_)),
      marker_(new AreaMarker(*view_, *input_, this)),
      output_(new DocumentOutput(
          document_, setup.Origin, memory_, [this] { return view_->CurrentPage(); }, this)),
      copier_(new Copier(*document_, *view_, *selector_, *marker_, *output_, this)),
      pane_(new SidePane(document_, text_)),
      findBar_(new FindBar(this)),
      savedBar_(new SavedBar(this)),
      finder_(new Finder(*findBar_, text_, *view_, this)),
      overview_(new Overview(*view_, *input_, this)),
      splitter_(new QSplitter(this)),
      pageBox_(new PageBox(view_->Layout().PageCount(), this)),
      zoomBox_(new ZoomBox(this)),
      actions_(new PreviewActions(setup.Tools, *this)),
      handlers_(MakeHandlers()) {
  setObjectName(QStringLiteral("previewWindow"));
  setWindowTitle(setup.Caption);
  Arrange(setup);
  MakeToolbar();
  Connect();
  ConnectBoxes();
  if (memory_->Window) ShowAsBefore(*memory_->Window);
  ShowPlace();
  ShowZoom();
  ShowSelection();
  view_->setFocus();
}

PreviewWindow::~PreviewWindow() {
  output_->Cancel();
}

bool PreviewWindow::IsBusy() const {
  return output_->IsBusy();
}

void PreviewWindow::Arrange(const PreviewSetup& setup) {
  splitter_->addWidget(pane_);
  splitter_->addWidget(view_);
  splitter_->setStretchFactor(1, 1);
  splitter_->setCollapsible(1, false);
  auto* body = new QWidget(this);
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(splitter_, 1);
  column->addWidget(findBar_);
  column->addWidget(savedBar_);
  setCentralWidget(body);
  PlaceOnScreen(*this);
  const int paneWidth = PaneWidth(setup.ContentsWidth, *this);
  splitter_->setSizes({paneWidth, width() - paneWidth});
  pane_->setVisible(setup.ContentsVisible);
  ActionOf(Command::SidePane)->setChecked(setup.ContentsVisible);
}

void PreviewWindow::ShowAsBefore(const WindowState& state) {
  restoreGeometry(state.Geometry);
  if (!state.Panes.isEmpty()) splitter_->setSizes(state.Panes);
  pane_->setVisible(state.SidePane);
  ActionOf(Command::SidePane)->setChecked(state.SidePane);
  pane_->setCurrentIndex(state.SidePaneTab);
  view_->SetContinuous(state.Continuous);
  view_->SetColumns(state.Side);
  if (state.Zoom == ZoomMode::Factor) {
    view_->SetZoom(state.Factor);
  } else {
    view_->SetZoomMode(state.Zoom);
  }
  place_ = state.Place;
}

WindowState PreviewWindow::State() const {
  const PageLayout& layout = view_->Layout();
  return {.Geometry = saveGeometry(),
          .Panes = pane_->isHidden() ? QList<int>() : splitter_->sizes(),
          .SidePane = ActionOf(Command::SidePane)->isChecked(),
          .SidePaneTab = pane_->UsualTab(),
          .Continuous = layout.Continuous(),
          .Side = layout.Side(),
          .Zoom = layout.Mode(),
          .Factor = layout.Zoom(),
          .Place = Remember(*document_, view_->CurrentPlace()),
          .Across = view_->horizontalScrollBar()->value()};
}

void PreviewWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!place_) return;
  view_->GoTo(FindAgain(*document_, *place_));
  view_->horizontalScrollBar()->setValue(memory_->Window->Across);
  place_.reset();
}

void PreviewWindow::hideEvent(QHideEvent* event) {
  overview_->Close();
  memory_->Window = State();
  QMainWindow::hideEvent(event);
}

void PreviewWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) ActionOf(Command::FullScreen)->setChecked(isFullScreen());
}

void PreviewWindow::MakeToolbar() {
  auto* bar = new QToolBar(tr("Tools"), this);
  bar->setObjectName(QStringLiteral("toolbar"));
  bar->setMovable(false);
  bar->setIconSize(QSize(20, 20));
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  addToolBar(bar);
  actions_->FillToolbar(*bar, *pageBox_, *zoomBox_);
  if (HasTouchScreen()) FitFingers(*bar);
}

PreviewWindow::Handlers PreviewWindow::MakeHandlers() {
  const auto jumpToPage = [this](int page) { Jump({page, 0}); };
  return {
      {Command::Print, [this](bool) { output_->Print(); }},
      {Command::SavePdf, [this](bool) { output_->SavePdf(); }},
      {Command::SidePane, [this](bool checked) { pane_->setVisible(checked); }},
      {Command::FirstPage, [jumpToPage](bool) { jumpToPage(0); }},
      {Command::PreviousPage, [this](bool) { ScrollPages(*view_, -1); }},
      {Command::NextPage, [this](bool) { ScrollPages(*view_, 1); }},
      {Command::LastPage, [this, jumpToPage](bool) { jumpToPage(view_->Layout().PageCount() - 1); }},
      {Command::GoToPage, [this](bool) { pageBox_->StartTyping(); }},
      {Command::Back, [this](bool) { Walk(history_.Back(view_->CurrentPlace())); }},
      {Command::Forward, [this](bool) { Walk(history_.Forward(view_->CurrentPlace())); }},
      {Command::ZoomIn, [this](bool) { ZoomStep(*view_, 1); }},
      {Command::ZoomOut, [this](bool) { ZoomStep(*view_, -1); }},
      {Command::FitPage, [this](bool) { view_->SetZoomMode(ZoomMode::FitPage); }},
      {Command::ActualSize, [this](bool) { view_->SetZoom(1); }},
      {Command::FitWidth, [this](bool) { view_->SetZoomMode(ZoomMode::FitWidth); }},
      {Command::Continuous, [this](bool checked) { view_->SetContinuous(checked); }},
      {Command::FacingPages,
       [this](bool on) { ShowColumns(on ? Columns::Two : Columns::One, *view_, *overview_); }},
      {Command::ManyColumns,
       [this](bool on) { ShowColumns(on ? Columns::AsManyAsFit : Columns::One, *view_, *overview_); }},
      {Command::Overview, [this](bool checked) { checked ? overview_->Open() : overview_->Close(); }},
      {Command::FullScreen, [this](bool) { setWindowState(windowState() ^ Qt::WindowFullScreen); }},
      {Command::Find, [this](bool) { finder_->Open(); }},
      {Command::FindNext, [this](bool) { finder_->Step(1); }},
      {Command::FindPrevious, [this](bool) { finder_->Step(-1); }},
      {Command::Copy, [this](bool) { copier_->Copy(); }},
      {Command::CopyGraph, [this](bool) { copier_->CopyGraph(); }},
      {Command::SaveGraph, [this](bool) { copier_->SaveGraph(); }},
      {Command::SelectAll, [this](bool) { selector_->SelectAll(); }},
      {Command::SelectColumn, [this](bool) { copier_->SelectColumn(); }},
      {Command::MarkArea, [this](bool checked) { checked ? marker_->Start() : marker_->Stop(); }},
      {Command::ZoomToArea, [this](bool) { copier_->ZoomToArea(); }},
      {Command::Close, [this](bool) { emit toolUsed(CloseTool); }},
  };
}

void PreviewWindow::Connect() {
  // The desktop opens the menu on the menu key, but not everywhere on this key, which means the same.
  connect(new QShortcut(Qt::SHIFT | Qt::Key_F10, this), &QShortcut::activated, this,
          [this] { ShowMenu(view_->mapToGlobal(view_->rect().center()), QContextMenuEvent::Keyboard); });
  auto* escape = new QShortcut(Qt::Key_Escape, view_);
  escape->setContext(Qt::WidgetShortcut);
  connect(escape, &QShortcut::activated, this, [this] {
    if (overview_->IsOpen()) return overview_->Close();
    if (marker_->IsMarking()) return marker_->Stop();
    if (marker_->Area()) return marker_->Clear();
    setWindowState(windowState() & ~Qt::WindowFullScreen);
  });
  connect(overview_, &Overview::Toggled, this, &PreviewWindow::ShowZoom);
  connect(actions_, &PreviewActions::Triggered, this,
          [this](Command command, bool checked) { handlers_.at(command)(checked); });
  connect(actions_, &PreviewActions::ToolUsed, this, &PreviewWindow::toolUsed);
  connect(view_, &PageView::PlaceChanged, this, &PreviewWindow::ShowPlace);
  connect(view_, &PageView::ZoomChanged, this, &PreviewWindow::ShowZoom);
  connect(pane_, &SidePane::PlaceChosen, this, &PreviewWindow::Jump);
  connect(output_, &DocumentOutput::Saved, savedBar_, &SavedBar::Show);
  connect(output_, &DocumentOutput::BusyChanged, this, [this] {
    for (const Command command : {Command::Print, Command::SavePdf})
      ActionOf(command)->setDisabled(output_->IsBusy());
  });
  connect(finder_, &Finder::HitsChanged, this, [this] {
    pane_->Found().ShowHits(finder_->Hits());
    pane_->ShowFound(!finder_->Hits()->empty());
  });
  connect(finder_, &Finder::CurrentChanged, &pane_->Found(), &HitList::ShowCurrent);
  connect(&pane_->Found(), &HitList::HitChosen, finder_, &Finder::GoTo);
  connect(finder_, &Finder::Leaving, this, [this] { history_.Leave(view_->CurrentPlace()); });
  connect(copier_, &Copier::Leaving, this, [this] { history_.Leave(view_->CurrentPlace()); });
  connect(copier_, &Copier::Changed, this, &PreviewWindow::ShowSelection);
  view_->SetHighlights([this](int page) {
    std::vector<Highlight> marks = finder_->Marks(page);
    for (const Highlight& mark : copier_->Marks(page)) marks.push_back(mark);
    return marks;
  });
}

void PreviewWindow::ConnectBoxes() {
  connect(pageBox_, &PageBox::PageTyped, this, [this](int page) {
    Jump({page, 0});
    view_->setFocus();
  });
  connect(zoomBox_, &ZoomBox::ZoomChosen, this, [this](double zoom) { view_->SetZoom(zoom); });
  connect(zoomBox_, &ZoomBox::Used, view_, [this] { view_->setFocus(); });
}

void PreviewWindow::Jump(const PagePlace& place) {
  history_.Leave(view_->CurrentPlace());
  view_->GoTo(place);
}

void PreviewWindow::Walk(const std::optional<PagePlace>& place) {
  if (place) view_->GoTo(*place);
  ShowPlace();
}

void PreviewWindow::ShowPlace() {
  const int count = view_->Layout().PageCount();
  const int page = view_->CurrentPage();
  pageBox_->ShowPage(page);
  pane_->ShowPlace(view_->ReadPlace());
  ActionOf(Command::FirstPage)->setEnabled(page > 0);
  ActionOf(Command::PreviousPage)->setEnabled(page > 0);
  ActionOf(Command::NextPage)->setEnabled(page + 1 < count);
  ActionOf(Command::LastPage)->setEnabled(page + 1 < count);
  const bool hasGraph = copier_->Graph().has_value();
  ActionOf(Command::CopyGraph)->setEnabled(hasGraph);
  ActionOf(Command::SaveGraph)->setEnabled(hasGraph);
  ActionOf(Command::Back)->setEnabled(history_.CanGoBack());
  ActionOf(Command::Forward)->setEnabled(history_.CanGoForward());
}

void PreviewWindow::ShowZoom() {
  zoomBox_->ShowZoom(view_->Layout().Zoom());
  ActionOf(Command::FitPage)->setChecked(view_->Layout().Mode() == ZoomMode::FitPage);
  ActionOf(Command::FitWidth)->setChecked(view_->Layout().Mode() == ZoomMode::FitWidth);
  ActionOf(Command::Continuous)->setChecked(view_->Layout().Continuous());
  const Columns columns = view_->Layout().Side();
  ActionOf(Command::FacingPages)->setChecked(columns == Columns::Two);
  ActionOf(Command::ManyColumns)->setChecked(columns == Columns::AsManyAsFit && !overview_->IsOpen());
  ActionOf(Command::Overview)->setChecked(overview_->IsOpen());
}

void PreviewWindow::ShowSelection() {
  ActionOf(Command::Copy)->setEnabled(copier_->CanCopy());
  ActionOf(Command::MarkArea)->setChecked(marker_->IsWaiting());
  ActionOf(Command::ZoomToArea)->setEnabled(marker_->Area().has_value());
}

void PreviewWindow::closeEvent(QCloseEvent* event) {
  output_->Cancel();
  event->accept();
  if (event->spontaneous()) emit closedByUser();
}

void PreviewWindow::contextMenuEvent(QContextMenuEvent* event) {
  ShowMenu(event->globalPos(), event->reason());
}

void PreviewWindow::ShowMenu(const QPoint& place, QContextMenuEvent::Reason reason) {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("contextMenu"));
  actions_->FillMenu(menu);
  if (reason == QContextMenuEvent::Mouse)
    copier_->PointAt(view_->SpotAt(view_->viewport()->mapFromGlobal(QPointF(place))));
  menu.exec(place);
  copier_->PointAt({});
}

}  // namespace tarvis
