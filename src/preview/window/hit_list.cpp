#include "preview/window/hit_list.h"

#include <QAbstractListModel>

#include "preview/text/text_geometry.h"
#include "preview/window/quiet_mark.h"

namespace tarvis {

// Words are put together only for entries that are looked at: there may be a hundred thousand.
class HitModel : public QAbstractListModel {
 public:
  HitModel(DocumentText& text, QObject* parent) : QAbstractListModel(parent), text_(text) {}

  void Set(const std::vector<SearchHit>& hits) {
    beginResetModel();
    hits_ = &hits;
    endResetModel();
  }
  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() || hits_ == nullptr ? 0 : static_cast<int>(hits_->size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const SearchHit& hit = (*hits_)[static_cast<std::size_t>(index.row())];
    return HitList::tr("%1: %2").arg(hit.Page + 1).arg(RowOf(hit));
  }

 private:
  QString RowOf(const SearchHit& hit) const {
    const std::vector<ReadPiece>& pieces = text_.Page(hit.Page).Pieces;
    std::size_t first = hit.Piece;
    while (first > 0 && pieces[first].Before != Join::Line) --first;
    QString row;
    for (std::size_t piece = first; piece < pieces.size(); ++piece) {
      if (piece > first && pieces[piece].Before == Join::Line) break;
      row += StringOf(text_.Source(), pieces[piece]) + QLatin1Char(' ');
    }
    return row.simplified();
  }

  DocumentText& text_;
  const std::vector<SearchHit>* hits_ = nullptr;
};

HitList::HitList(DocumentText& text, QWidget* parent)
    : QListView(parent), model_(new HitModel(text, this)), mark_(new QuietMark(*this)) {
  setObjectName(QStringLiteral("hitList"));
  setAccessibleName(tr("Places found"));
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setModel(model_);
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { emit HitChosen(index.row()); });
  connect(this, &QListView::activated, this,
          [this](const QModelIndex& index) { emit HitChosen(index.row()); });
}

void HitList::ShowHits(const std::vector<SearchHit>& hits) {
  model_->Set(hits);
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
