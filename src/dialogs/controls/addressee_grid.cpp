#include "dialogs/controls/addressee_grid.h"

#include <QHeaderView>
#include <array>

#include "dialogs/controls/controls.h"

namespace tarvis {

namespace {

constexpr std::array RowNames{"Title", "Company Name", "Department Name", "Name"};
constexpr int NameColumn = 0;
constexpr int ValueColumn = 1;
constexpr float NameColumnWidth = 1800;  // twips
constexpr QColor NameBackground(0xC0, 0xC0, 0xC0);

QTableWidgetItem* MakeCell(const QString& text) {
  auto* cell = new QTableWidgetItem(text);
  cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return cell;
}

}  // namespace

AddresseeGrid::AddresseeGrid(const Rect& bounds, QWidget* parent) : QTableWidget(4, 2, parent) {
  NameControl(*this, "Spread", NoFamily, QString::fromLatin1("Where to Submit"));
  Place(*this, bounds);
  setHorizontalHeaderLabels({QString::fromLatin1("Item Name"), QString::fromLatin1("Setting Value")});
  const int inside = height() - 2 * frameWidth();
  const int rowHeight = inside / 5;
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(rowHeight);
  horizontalHeader()->setFixedHeight(inside - 4 * rowHeight);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  setColumnWidth(NameColumn, Pixels(NameColumnWidth, *this));
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTabKeyNavigation(false);
  for (int row = 0; row < 4; ++row) {
    QTableWidgetItem* name = MakeCell(QString::fromLatin1(RowNames.at(static_cast<std::size_t>(row))));
    name->setBackground(NameBackground);
    name->setForeground(Qt::black);
    setItem(row, NameColumn, name);
    setItem(row, ValueColumn, MakeCell({}));
  }
}

void AddresseeGrid::SetSettingValue(int row, const std::string& text) {
  const QString shown = QString::fromStdString(text);
  item(row - 1, ValueColumn)->setText(shown);
  item(row - 1, ValueColumn)->setToolTip(shown);
}

std::string AddresseeGrid::SettingValue(int row) const {
  return item(row - 1, ValueColumn)->text().toStdString();
}

}  // namespace tarvis
