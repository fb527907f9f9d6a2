#include "preview/window/saved_bar.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>

#include "preview/window/icons.h"

namespace tarvis {

SavedBar::SavedBar(QWidget* parent) : QWidget(parent), message_(new QLabel(this)) {
  setObjectName(QStringLiteral("savedBar"));
  message_->setObjectName(QStringLiteral("savedWords"));
  message_->setTextFormat(Qt::PlainText);
  message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  message_->setSizePolicy(QSizePolicy::Ignored,
                          QSizePolicy::Preferred);  // a long path must not widen the window
  auto* open = new QPushButton(tr("Op&en"), this);
  open->setObjectName(QStringLiteral("savedOpenButton"));
  auto* folder = new QPushButton(tr("S&how in folder"), this);
  folder->setObjectName(QStringLiteral("savedFolderButton"));
  auto* close = new QToolButton(this);
  close->setObjectName(QStringLiteral("savedCloseButton"));
  close->setAccessibleName(tr("Close"));
  close->setToolTip(tr("Close"));
  close->setIcon(OutlineIcon("M4 4 L12 12 M12 4 L4 12"));
  close->setAutoRaise(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 3, 6, 3);
  row->addWidget(close);
  row->addWidget(message_, 1);
  row->addWidget(open);
  row->addWidget(folder);
  connect(close, &QToolButton::clicked, this, &QWidget::hide);
  connect(open, &QPushButton::clicked, this,
          [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(path_)); });
  connect(folder, &QPushButton::clicked, this,
          [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path_).absolutePath())); });
  hide();
}

void SavedBar::Show(const QString& path) {
  path_ = path;
  message_->setText(tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
  message_->setToolTip(message_->text());
  show();
}

}  // namespace tarvis
