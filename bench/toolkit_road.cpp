// The toolkit's own way of making the same document: a text document with tables of the same rows.
#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextStream>
#include <QTextTable>
#include <utility>

#include "document_roads.h"

namespace tarvis {
namespace {

constexpr QSize Page(794, 1123);  // A4 at 96 dots to the inch
constexpr int Columns = 5;

// The lines of a file, cut at commas.
std::vector<QStringList> ReadRows(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) qFatal("no %s", qPrintable(path));
  QTextStream lines(&file);
  std::vector<QStringList> rows;
  for (QString line; lines.readLineInto(&line);) rows.push_back(line.split(QLatin1Char(',')));
  return rows;
}

// A parameter's values are on the line after its name: one row of both.
std::vector<QStringList> ParameterRows(const std::vector<QStringList>& lines) {
  std::vector<QStringList> rows;
  for (const QStringList& line : lines) {
    if (line[0] == QStringLiteral("UserName")) rows.push_back(line.mid(1));
    if (line[0] == QStringLiteral("UserValue")) rows.back() += line.mid(1);
  }
  return rows;
}

class TextDocumentRoad : public DocumentRoad {
 public:
  explicit TextDocumentRoad(BenchJob job) : job_(std::move(job)) {}

  void Read() override { first_ = ReadRows(Path(QString())); }
  void Compose() override {
    document_.setPageSize(QSizeF(Page));
    AddTable(job_.Mode == "User" ? ParameterRows(first_) : first_);
    for (int n = 1; n <= job_.Overlapped; ++n) AddTable(ReadRows(Path(QString::number(n))));
    document_.pageCount();  // lays all out
  }
  int PageCount() const override { return document_.pageCount(); }
  void PaintPage(int page) override {
    QImage image(Page, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(0, -page * Page.height());
    document_.drawContents(&painter, QRectF(0, page * Page.height(), Page.width(), Page.height()));
  }
  void SavePdf(const QString& path) override {
    QPdfWriter writer(path);
    document_.print(&writer);
  }
  void Print(QPrinter& printer) override { document_.print(&printer); }

 private:
  QString Path(const QString& number) const {
    QString folder = QString::fromStdString(job_.Folder).replace(QLatin1Char('\\'), QLatin1Char('/'));
    return folder + QString::fromStdString(job_.Mode) + number + QStringLiteral(".tmp");
  }
  void AddTable(const std::vector<QStringList>& rows) {
    QTextCursor cursor(&document_);
    cursor.movePosition(QTextCursor::End);
    QTextTableFormat format;
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setHeaderRowCount(1);
    QTextTable* table = cursor.insertTable(static_cast<int>(rows.size()), Columns, format);
    for (int row = 0; row < table->rows(); ++row) {
      const QStringList& texts = rows[static_cast<std::size_t>(row)];
      for (int column = 0; column < std::min<int>(Columns, static_cast<int>(texts.size())); ++column) {
        table->cellAt(row, column).firstCursorPosition().insertText(texts[column]);
      }
    }
  }

  BenchJob job_;
  std::vector<QStringList> first_;
  QTextDocument document_;
};

}  // namespace

std::unique_ptr<DocumentRoad> ToolkitRoad(const BenchJob& job) {
  return std::make_unique<TextDocumentRoad>(job);
}

}  // namespace tarvis
