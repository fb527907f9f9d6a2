#include "preview/window/hit_list.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>
#include <algorithm>

#include "preview/text/text_geometry.h"
#include "preview/window/quiet_mark.h"

namespace tarvis {
namespace {

// The number of UTF-16 units of an entry that come before what was found.
constexpr int StartRole = Qt::UserRole;

struct Entry {
  QString Text;
  qsizetype Start = 0;  // of what was found
};

// Of a row that is wider than its place, both ends may be cut, but not what was found.
QString Shortened(const QString& text, qsizetype start, const QFontMetrics& font, int room) {
  if (font.horizontalAdvance(text) <= room) return text;
  constexpr int ShareBefore = 3;  // of the room
  const QString page = text.left(text.indexOf(QLatin1Char(' ')) + 1);
  const QString before = text.mid(page.size(), start - page.size());
  const QString found = text.mid(start);
  const int left = room - font.horizontalAdvance(page);
  const int most = std::max(left / ShareBefore, left - font.horizontalAdvance(found));
  const QString head = page + font.elidedText(before, Qt::ElideLeft, most);
  return head + font.elidedText(found, Qt::ElideRight, room - font.horizontalAdvance(head));
}

class HitDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // As wide as the list, so that nothing has to be scrolled sideways.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QStyle* style = option->widget->style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
    option->text = Shortened(option->text, index.data(StartRole).toInt(), option->fontMetrics,
                             option->rect.width() - 2 * margin);
  }
};

}  // namespace

// Words are put together only for entries that are looked at: there may be a hundred thousand.
class HitModel : public QAbstractListModel {
 public:
  HitModel(DocumentText& text, QObject* parent) : QAbstractListModel(parent), text_(text) {}

  void Set(SearchHits hits) {
    beginResetModel();
    hits_ = std::move(hits);
    endResetModel();
  }
  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() || hits_ == nullptr ? 0 : static_cast<int>(hits_->size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != StartRole) return {};
    const Entry entry = EntryOf((*hits_)[static_cast<std::size_t>(index.row())]);
    return role == StartRole ? QVariant(entry.Start) : QVariant(entry.Text);
  }

 private:
  Entry EntryOf(const SearchHit& hit) const {
    const std::vector<ReadPiece>& pieces = text_.Page(hit.Page).Pieces;
    std::size_t first = hit.Piece;
    while (first > 0 && pieces[first].Before != Join::Line) --first;
    QString before, from;
    for (std::size_t piece = first; piece < pieces.size(); ++piece) {
      if (piece > first && pieces[piece].Before == Join::Line) break;
      const QString words = StringOf(text_.Source(), pieces[piece]) + QLatin1Char(' ');
      const qsizetype cut = piece < hit.Piece    ? words.size()
                            : piece == hit.Piece ? UnitsOf(words, hit.Character)
                                                 : 0;
      before += words.left(cut);
      from += words.mid(cut);
    }
    // The blanks of both are made one as if they were one text.
    const bool isApart = !before.isEmpty() && before.back().isSpace();
    before = HitList::tr("%1: %2").arg(hit.Page + 1).arg(before.simplified());
    if (isApart && !before.endsWith(QLatin1Char(' '))) before += QLatin1Char(' ');
    return {before + from.simplified(), before.size()};
  }

  DocumentText& text_;
  SearchHits hits_;
};

HitList::HitList(DocumentText& text, QWidget* parent)
    : QListView(parent), model_(new HitModel(text, this)), mark_(new QuietMark(*this)) {
  setObjectName(QStringLiteral("hitList"));
  setAccessibleName(tr("Places found"));
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new HitDelegate(this));
  setModel(model_);
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { emit HitChosen(index.row()); });
  connect(this, &QListView::activated, this,
          [this](const QModelIndex& index) { emit HitChosen(index.row()); });
}

void HitList::ShowHits(SearchHits hits) {
  model_->Set(std::move(hits));
}

void HitList::ShowCurrent(int hit) {
  mark_->Show(model_->index(hit));
}

// Walking through the list by keys shows each place.
void HitList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (hasFocus() && current.isValid()) emit HitChosen(current.row());
}

}  // namespace tarvis
