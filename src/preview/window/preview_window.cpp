#include "preview/window/preview_window.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "preview/pages/page_input.h"
#include "preview/pages/page_steps.h"
#include "preview/pages/page_view.h"
#include "preview/window/find_bar.h"
#include "preview/window/finder.h"
#include "preview/window/icons.h"
#include "preview/window/reading_place.h"
#include "preview/window/saved_bar.h"
#include "preview/window/side_pane.h"

namespace tarvis {
namespace {

constexpr double OpeningLeft = 60;  // twips
constexpr double OpeningTop = 345;
constexpr double OpeningWidth = 16005;
constexpr double OpeningHeight = 9675;

const QColor SelectionTint(170, 205, 255);

int Pixels(double twips) {
  return static_cast<int>(twips / TwipsPerScreenPixel);
}

QList<QKeySequence> KeysOf(const CommandEntry& entry) {
  QList<QKeySequence> keys;
  for (const QString& key : QString::fromUtf8(entry.Keys).split(QStringLiteral("; "), Qt::SkipEmptyParts)) {
    keys.append(QKeySequence(key, QKeySequence::PortableText));
  }
  return keys;
}

QString ToolTipOf(const QAction& action) {
  QString caption = action.text();
  caption.remove(QLatin1Char('&')).remove(QChar(0x2026));
  const QKeySequence key = action.shortcut();
  return key.isEmpty() ? caption
                       : QStringLiteral("%1 (%2)").arg(caption, key.toString(QKeySequence::NativeText));
}

}  // namespace

PreviewWindow::PreviewWindow(std::shared_ptr<const Document> document, const PreviewSetup& setup,
                             QWidget* parent)
    : QMainWindow(parent),
      document_(std::move(document)),
      text_(*document_),
      selection_(text_),
      memory_(setup.Memory != nullptr ? setup.Memory : std::make_shared<PreviewMemory>()),
      view_(new PageView(document_)),
      input_(new PageInput(*view_)),
      output_(new DocumentOutput(
          document_, setup.Origin, memory_, [this] { return view_->CurrentPage(); }, this)),
      pane_(new SidePane(document_)),
      findBar_(new FindBar(this)),
      savedBar_(new SavedBar(this)),
      finder_(new Finder(*findBar_, text_, *view_, this)),
      splitter_(new QSplitter(this)) {
  setObjectName(QStringLiteral("previewWindow"));
  setWindowTitle(setup.Caption);
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
  PlaceOnScreen();
  splitter_->setSizes({Pixels(setup.ContentsWidth), width() - Pixels(setup.ContentsWidth)});
  MakeActions();
  MakeToolbar(setup.Tools);
  pane_->setVisible(setup.ContentsVisible);
  ActionOf(Command::SidePane)->setChecked(setup.ContentsVisible);
  Connect();
  if (memory_->Window) ShowAsBefore(*memory_->Window);
  ShowPlace();
  ShowZoom();
  SelectionChanged();
  view_->setFocus();
}

PreviewWindow::~PreviewWindow() {
  output_->Cancel();
}

bool PreviewWindow::IsBusy() const {
  return output_->IsBusy();
}

void PreviewWindow::PlaceOnScreen() {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize size = QSize(Pixels(OpeningWidth), Pixels(OpeningHeight)).boundedTo(room.size());
  const QPoint wanted = room.topLeft() + QPoint(Pixels(OpeningLeft), Pixels(OpeningTop));
  resize(size);
  move(std::min(wanted.x(), room.right() + 1 - size.width()),
       std::min(wanted.y(), room.bottom() + 1 - size.height()));
}

void PreviewWindow::ShowAsBefore(const WindowState& state) {
  restoreGeometry(state.Geometry);
  if (!state.Panes.isEmpty()) splitter_->setSizes(state.Panes);
  pane_->setVisible(state.SidePane);
  ActionOf(Command::SidePane)->setChecked(state.SidePane);
  pane_->setCurrentIndex(state.SidePaneTab);
  view_->SetContinuous(state.Continuous);
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
          .SidePaneTab = pane_->currentIndex(),
          .Continuous = layout.Continuous(),
          .Zoom = layout.Mode(),
          .Factor = layout.Zoom(),
          .Place = Remember(*document_, view_->CurrentPlace())};
}

void PreviewWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (const auto place = std::exchange(place_, {})) view_->GoTo(FindAgain(*document_, *place));
}

void PreviewWindow::hideEvent(QHideEvent* event) {
  memory_->Window = State();
  QMainWindow::hideEvent(event);
}

void PreviewWindow::MakeActions() {
  for (const CommandEntry& entry : CommandTable()) {
    auto* action = new QAction(tr(entry.Caption), this);
    action->setObjectName(QString::fromUtf8(entry.Name));
    action->setShortcuts(KeysOf(entry));
    action->setToolTip(ToolTipOf(*action));
    if (*entry.Icon != '\0') action->setIcon(OutlineIcon(entry.Icon));
    action->setCheckable(entry.Checkable);
    if (entry.Number != 0) action->setData(entry.Number);
    connect(action, &QAction::triggered, this, [this, id = entry.Id](bool checked) { Run(id, checked); });
    addAction(action);
    actions_[entry.Id] = action;
  }
}

void PreviewWindow::MakeToolbar(const std::vector<Tool>& tools) {
  auto* bar = new QToolBar(tr("Tools"), this);
  bar->setObjectName(QStringLiteral("toolbar"));
  bar->setMovable(false);
  bar->setIconSize(QSize(20, 20));
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  addToolBar(bar);
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.Where != Shown::Toolbar) continue;
    if (entry.StartsGroup) bar->addSeparator();
    if (entry.Id == Command::Close) {
      for (const Tool& tool : tools) AddTool(tool, *bar);
      bar->addSeparator();
    }
    bar->addAction(ActionOf(entry.Id));
    if (entry.Id == Command::PreviousPage) bar->addWidget(MakePageBox());
    if (entry.Id == Command::ZoomOut) bar->addWidget(MakeZoomBox());
  }
  // The style's own sign for further tools can't be seen on a dark desktop.
  if (auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setIcon(OutlineIcon("M3.5 4 L7.5 8 L3.5 12 M8.5 4 L12.5 8 L8.5 12"));
  for (QAction* action : bar->actions()) {
    auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
    if (button == nullptr) continue;
    button->setObjectName(action->objectName() + QStringLiteral("Button"));
    button->setAccessibleName(action->text().remove(QLatin1Char('&')));
    button->setFocusPolicy(Qt::TabFocus);
  }
}

// The report's own tools show their text, too.
void PreviewWindow::AddTool(const Tool& tool, QToolBar& bar) {
  QAction* action = bar.addAction(OutlineIcon(ReportToolIcon), QString::fromStdString(tool.Caption));
  action->setObjectName(QStringLiteral("tool%1").arg(tool.ID));
  action->setData(tool.ID);
  if (toolActions_.empty()) action->setShortcut(QKeySequence(QString::fromUtf8(ReportToolKey)));
  action->setToolTip(ToolTipOf(*action));
  connect(action, &QAction::triggered, this, [this, id = tool.ID] { emit toolUsed(id); });
  qobject_cast<QToolButton*>(bar.widgetForAction(action))->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  addAction(action);
  toolActions_.push_back(action);
}

void PreviewWindow::Connect() {
  // The desktop turns the menu key into a wish for the menu, but not everywhere its twin.
  connect(new QShortcut(Qt::SHIFT | Qt::Key_F10, this), &QShortcut::activated, this,
          [this] { ShowMenu(view_->mapToGlobal(view_->rect().center())); });

  connect(view_, &PageView::PlaceChanged, this, &PreviewWindow::ShowPlace);
  connect(view_, &PageView::ZoomChanged, this, &PreviewWindow::ShowZoom);
  connect(pane_, &SidePane::PlaceChosen, this, &PreviewWindow::Jump);
  connect(output_, &DocumentOutput::Saved, savedBar_, &SavedBar::Show);
  connect(finder_, &Finder::Leaving, this, [this] { history_.Leave(view_->CurrentPlace()); });
  ConnectSelection();
}

void PreviewWindow::ConnectSelection() {
  connect(input_, &PageInput::Pressed, this, [this](const PageView::Spot& spot) {
    selection_.Clear();
    if (spot.Page >= 0) selection_.Start(spot.Page, spot.Point);
    SelectionChanged();
  });
  connect(input_, &PageInput::Dragged, this, [this](const PageView::Spot& spot) {
    if (spot.Page >= 0) selection_.ExtendTo(spot.Page, spot.Point);
    SelectionChanged();
  });
  connect(input_, &PageInput::DoubleClicked, this, [this](const PageView::Spot& spot) {
    if (spot.Page >= 0) selection_.SelectWord(spot.Page, spot.Point);
    SelectionChanged();
  });
  view_->SetHighlights([this](int page) {
    std::vector<Highlight> marks = finder_->Marks(page);
    for (const QRectF& box : selection_.Boxes(page)) marks.push_back({box, SelectionTint});
    return marks;
  });
}

void PreviewWindow::SelectionChanged() {
  ActionOf(Command::Copy)->setEnabled(!selection_.IsEmpty());
  view_->viewport()->update();
}

void PreviewWindow::Copy() {
  if (!selection_.IsEmpty()) QGuiApplication::clipboard()->setText(selection_.Text());
}

void PreviewWindow::Run(Command command, bool checked) {
  switch (command) {
    case Command::Print:
      return output_->Print();
    case Command::SavePdf:
      return output_->SavePdf();
    case Command::SidePane:
      return pane_->setVisible(checked);
    case Command::FirstPage:
      return Jump({0, 0});
    case Command::PreviousPage:
      return ScrollPages(*view_, -1);
    case Command::NextPage:
      return ScrollPages(*view_, 1);
    case Command::LastPage:
      return Jump({view_->Layout().PageCount() - 1, 0});
    case Command::GoToPage:
      return FocusPageBox();
    case Command::Back:
      return Walk(history_.Back(view_->CurrentPlace()));
    case Command::Forward:
      return Walk(history_.Forward(view_->CurrentPlace()));
    case Command::ZoomIn:
      return ZoomStep(*view_, 1);
    case Command::ZoomOut:
      return ZoomStep(*view_, -1);
    case Command::FitPage:
      return view_->SetZoomMode(ZoomMode::FitPage);
    case Command::ActualSize:
      return view_->SetZoom(1);
    case Command::FitWidth:
      return view_->SetZoomMode(ZoomMode::FitWidth);
    case Command::Continuous:
      return view_->SetContinuous(checked);
    case Command::Find:
      return finder_->Open();
    case Command::FindNext:
      return finder_->Step(1);
    case Command::FindPrevious:
      return finder_->Step(-1);
    case Command::Copy:
      return Copy();
    case Command::SelectAll:
      selection_.SelectAll();
      return SelectionChanged();
    case Command::Close:
      emit toolUsed(CloseToolNumber);
      return;
  }
}

void PreviewWindow::Jump(const PagePlace& place) {
  history_.Leave(view_->CurrentPlace());
  view_->GoTo(place);
}

void PreviewWindow::Walk(const std::optional<PagePlace>& place) {
  if (place) view_->GoTo(*place);
  ShowPlace();
}

void PreviewWindow::closeEvent(QCloseEvent* event) {
  output_->Cancel();
  event->accept();
  if (event->spontaneous()) emit closedByUser();
}

void PreviewWindow::contextMenuEvent(QContextMenuEvent* event) {
  ShowMenu(event->globalPos());
}

void PreviewWindow::ShowMenu(const QPoint& place) {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("contextMenu"));
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.StartsGroup) menu.addSeparator();
    if (entry.Id == Command::Close) {
      for (QAction* action : toolActions_) menu.addAction(action);
    }
    menu.addAction(ActionOf(entry.Id));
  }
  menu.exec(place);
}

}  // namespace tarvis
