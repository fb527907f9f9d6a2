#include "preview/window/preview_actions.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "preview/window/icons.h"

namespace tarvis {
namespace {

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

void NameButtons(const QToolBar& bar) {
  for (QAction* action : bar.actions()) {
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    if (button == nullptr) continue;
    button->setObjectName(action->objectName() + QStringLiteral("Button"));
    button->setAccessibleName(action->text().remove(QLatin1Char('&')));
    button->setFocusPolicy(Qt::TabFocus);
  }
}

}  // namespace

PreviewActions::PreviewActions(const std::vector<Tool>& tools, QWidget& window) : QObject(&window) {
  for (const CommandEntry& entry : CommandTable()) AddCommand(entry, window);
  for (const Tool& tool : tools) AddTool(tool, window);
}

void PreviewActions::AddCommand(const CommandEntry& entry, QWidget& window) {
  auto* action = new QAction(tr(entry.Caption), this);
  action->setObjectName(QString::fromUtf8(entry.Name));
  action->setShortcuts(KeysOf(entry));
  action->setToolTip(ToolTipOf(*action));
  if (*entry.Icon != '\0') action->setIcon(OutlineIcon(entry.Icon));
  action->setCheckable(entry.Kind == ActionKind::Toggle);
  if (entry.Number != 0) action->setData(entry.Number);
  connect(action, &QAction::triggered, this,
          [this, id = entry.Id](bool checked) { emit Triggered(id, checked); });
  window.addAction(action);
  commands_[entry.Id] = action;
}

void PreviewActions::AddTool(const Tool& tool, QWidget& window) {
  auto* action = new QAction(OutlineIcon(ReportToolIcon), QString::fromStdString(tool.Caption), this);
  action->setObjectName(QStringLiteral("tool%1").arg(tool.ID));
  action->setData(tool.ID);
  if (tools_.empty()) action->setShortcut(QKeySequence(QString::fromUtf8(ReportToolKey)));
  action->setToolTip(ToolTipOf(*action));
  connect(action, &QAction::triggered, this, [this, id = tool.ID] { emit ToolUsed(id); });
  window.addAction(action);
  tools_.push_back(action);
}

void PreviewActions::FillToolbar(QToolBar& bar, QWidget& pageBox, QWidget& zoomBox) const {
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.Where != Shown::Toolbar) continue;
    if (entry.Place == InGroup::First) bar.addSeparator();
    if (entry.Id == Command::Close) {
      bar.addActions({tools_.begin(), tools_.end()});
      bar.addSeparator();
    }
    bar.addAction(Of(entry.Id));
    if (entry.Id == Command::PreviousPage) bar.addWidget(&pageBox);
    if (entry.Id == Command::ZoomOut) bar.addWidget(&zoomBox);
  }
  // The style's own sign for further tools can't be seen on a dark desktop.
  if (auto* more = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setIcon(OutlineIcon("M3.5 4 L7.5 8 L3.5 12 M8.5 4 L12.5 8 L8.5 12"));
  NameButtons(bar);
  // The report's own tools show their text, too.
  for (QAction* tool : tools_)
    qobject_cast<QToolButton*>(bar.widgetForAction(tool))->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void PreviewActions::FillMenu(QMenu& menu) const {
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.Place == InGroup::First) menu.addSeparator();
    if (entry.Id == Command::Close) menu.addActions({tools_.begin(), tools_.end()});
    menu.addAction(Of(entry.Id));
  }
}

}  // namespace tarvis
