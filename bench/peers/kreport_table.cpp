// The table by KReport, from a report definition and a source of data: kreport_table ROWS OUT.pdf
#include <KReportDataSource>
#include <KReportPreRenderer>
#include <KReportRendererBase>
#include <QApplication>
#include <QDomDocument>
#include <QPainter>
#include <QPrinter>

#include "table.h"

namespace {

// Margins of this version are pixels of a screen, though they are given in points; sizes of fonts are whole
// points.
double margin(double points) {
  return points * 96 / 72;
}

QString definition() {
  const double bottom = PAGE_HEIGHT - TABLE_TOP - (ROWS_PER_PAGE + 0.5) * ROW_HEIGHT;
  QString fields;
  for (int column = 0; column < COLUMNS; ++column) {
    fields += QString(R"(<report:field report:name="c%1" report:item-data-source="%1" svg:x="%2pt" svg:y="0pt"
      svg:width="%3pt" svg:height="%4pt" report:horizontal-align="left" report:vertical-align="center">
      <report:text-style fo:font-family="%5" fo:font-size="8" fo:background-opacity="0%"/>
      <report:line-style report:line-style="solid" report:line-color="#000000" report:line-weight="1"/>
      </report:field>)")
                  .arg(column)
                  .arg(double(lefts[column] - lefts[0]))
                  .arg(double(lefts[column + 1] - lefts[column]))
                  .arg(double(ROW_HEIGHT))
                  .arg(FONT_NAME);
  }
  return QString(R"(<report:content><report:page-style report:page-size="A4" fo:margin-left="%1pt"
    fo:margin-right="20pt" fo:margin-top="%2pt" fo:margin-bottom="%3pt">predefined</report:page-style><report:body>
    <report:detail><report:section report:section-type="detail" svg:height="%4pt">%5</report:section></report:detail>
    </report:body></report:content>)")
      .arg(margin(lefts[0]))
      .arg(margin(TABLE_TOP))
      .arg(margin(bottom))
      .arg(double(ROW_HEIGHT))
      .arg(fields);
}

class Rows : public KReportDataSource {
 public:
  explicit Rows(int count) : count_(count) { moveTo(0); }

  bool open() override { return true; }
  bool close() override { return true; }
  bool moveNext() override { return moveTo(row_ + 1); }
  bool movePrevious() override { return moveTo(row_ - 1); }
  bool moveFirst() override { return moveTo(0); }
  bool moveLast() override { return moveTo(count_ - 1); }
  qint64 at() const override { return row_; }
  qint64 recordCount() const override { return count_; }
  int fieldNumber(const QString& field) const override { return field.isEmpty() ? -1 : field.toInt(); }
  QStringList fieldNames() const override { return {"0", "1", "2", "3", "4"}; }
  QVariant value(int column) const override {
    return column < 0 ? QVariant() : QVariant(QString::fromLatin1(texts_[column]));
  }
  QVariant value(const QString& field) const override { return value(fieldNumber(field)); }
  QStringList dataSourceNames() const override { return {}; }

 private:
  bool moveTo(qint64 row) {
    if (row < 0 || row >= count_) return false;
    row_ = row;
    write_row(int(row), texts_);
    return true;
  }

  int count_;
  qint64 row_ = 0;
  char texts_[COLUMNS][TEXT_SIZE];
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  QDomDocument design;
  if (!design.setContent(definition())) return 1;
  KReportPreRenderer report(design.documentElement());
  report.setDataSource(new Rows(atoi(argv[1])));  // which takes it over
  if (!report.isValid() || !report.generateDocument()) return 1;
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromLocal8Bit(argv[2]));
  printer.setPageSize(QPageSize(QPageSize::A4));
  KReportRendererContext context;
  QPainter painter;
  context.setPrinter(&printer);
  context.setPainter(&painter);
  KReportRendererFactory factory;
  KReportRendererBase* renderer = factory.createInstance("print");
  return renderer != nullptr && renderer->render(context, report.document()) ? 0 : 1;
}
