#include "preview/window/side_pane.h"

#include <QStyledItemDelegate>
#include <QTreeWidget>

#include "preview/pages/thumbnails.h"
#include "preview/window/hit_list.h"
#include "preview/window/quiet_mark.h"

namespace tarvis {
namespace {

constexpr int Indentation = 14;  // pixels; the pane is narrow
constexpr int EntryRole = Qt::UserRole;

// Sets each entry in its own direction, where the toolkit would take that of the window; all stay at the
// left.
class EntryDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!option->text.isRightToLeft()) return;
    option->direction = Qt::RightToLeft;
    option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;  // which the direction mirrors
  }
};

}  // namespace

SidePane::SidePane(std::shared_ptr<const Document> document, DocumentText& text, QWidget* parent)
    : QTabWidget(parent),
      document_(std::move(document)),
      contents_(new QTreeWidget(this)),
      mark_(new QuietMark(*contents_)),
      thumbnails_(new Thumbnails(document_, this)),
      found_(new HitList(text, this)) {
  setObjectName(QStringLiteral("sidePane"));
  setDocumentMode(true);
  // The pane is never narrower than its tabs.
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideNone);
  contents_->setObjectName(QStringLiteral("contents"));
  contents_->setAccessibleName(tr("Contents"));
  contents_->setHeaderHidden(true);
  contents_->setFrameShape(QFrame::NoFrame);
  contents_->setUniformRowHeights(true);
  contents_->setIndentation(Indentation);
  contents_->setTextElideMode(Qt::ElideMiddle);  // numbered entries differ in their ends
  contents_->setItemDelegate(new EntryDelegate(contents_));
  FillContents();
  addTab(contents_, tr("Contents"));
  addTab(thumbnails_, tr("Pages"));
  setTabVisible(addTab(found_, tr("Found")), false);
  connect(thumbnails_, &Thumbnails::PageChosen, this, [this](int page) { emit PlaceChosen({page, 0}); });
  connect(contents_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { Choose(item); });
  connect(contents_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { Choose(item); });
}

void SidePane::FillContents() {
  bool hasChildren = false;
  for (std::size_t index = 0; index < document_->Contents.size(); ++index) {
    const ContentsEntry& entry = document_->Contents[index];
    QTreeWidgetItem* above = nullptr;
    if (entry.Level > 0 && contents_->topLevelItemCount() > 0) {
      above = contents_->topLevelItem(contents_->topLevelItemCount() - 1);
    }
    auto* item = above != nullptr ? new QTreeWidgetItem(above) : new QTreeWidgetItem(contents_);
    item->setText(0, QString::fromStdString(entry.Text).trimmed());
    item->setToolTip(0, tr("%1, page %2").arg(item->text(0)).arg(entry.Page + 1));
    item->setData(0, EntryRole, static_cast<int>(index));
    items_.push_back(item);
    hasChildren = hasChildren || above != nullptr;
  }
  contents_->expandAll();
  contents_->setRootIsDecorated(hasChildren);
}

void SidePane::Choose(const QTreeWidgetItem* item) {
  if (item == nullptr) return;
  const ContentsEntry& entry =
      document_->Contents[static_cast<std::size_t>(item->data(0, EntryRole).toInt())];
  emit PlaceChosen({entry.Page, entry.Top});
}

void SidePane::ShowPlace(const PagePlace& place) {
  thumbnails_->SetCurrent(place.Page);
  QTreeWidgetItem* current = nullptr;
  for (std::size_t index = 0; index < items_.size(); ++index) {
    const ContentsEntry& entry = document_->Contents[index];
    const bool above = entry.Page < place.Page || (entry.Page == place.Page && entry.Top <= place.Top);
    if (above || current == nullptr) current = items_[index];
  }
  if (current != nullptr && !current->isSelected()) mark_->Show(contents_->indexFromItem(current));
}

void SidePane::ShowFound(bool shown) {
  const int tab = indexOf(found_);
  if (shown == isTabVisible(tab)) return;
  if (shown) before_ = currentIndex();
  const bool wasInFront = currentIndex() == tab;
  setTabVisible(tab, shown);
  if (shown) setCurrentIndex(tab);
  if (!shown && wasInFront) setCurrentIndex(before_);
}

int SidePane::UsualTab() const {
  return currentWidget() == found_ ? before_ : currentIndex();
}

}  // namespace tarvis
