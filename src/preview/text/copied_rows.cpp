#include "preview/text/copied_rows.h"

#include <algorithm>

namespace tarvis {
namespace {

QString Escaped(QString text) {
  text = text.toHtmlEscaped();
  return text.replace(QLatin1Char('\n'), QStringLiteral("<br>"));
}

bool IsTableRow(const CopiedRow& row) {
  return row.Cells.size() > 1;
}

// Every row gets as many cells as the longest one has.
QString Table(CopiedRows::const_iterator first, CopiedRows::const_iterator end) {
  const auto byCells = [](const CopiedRow& a, const CopiedRow& b) { return a.Cells.size() < b.Cells.size(); };
  const std::size_t columns = std::max_element(first, end, byCells)->Cells.size();
  QString html = QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"2\">\n");
  for (auto row = first; row != end; ++row) {
    html += QStringLiteral("<tr>");
    for (std::size_t column = 0; column < columns; ++column) {
      const QString text = column < row->Cells.size() ? Escaped(row->Cells[column]) : QString();
      html += QStringLiteral("<td>") + text + QStringLiteral("</td>");
    }
    html += QStringLiteral("</tr>\n");
  }
  return html + QStringLiteral("</table>\n");
}

}  // namespace

QString ToPlainText(const CopiedRows& rows) {
  QString text;
  for (const CopiedRow& row : rows) {
    if (&row != &rows.front()) text += QLatin1Char('\n');
    for (const QString& cell : row.Cells) {
      if (&cell != &row.Cells.front()) text += QLatin1Char('\t');
      text += cell;
    }
  }
  return text;
}

QString ToHtml(const CopiedRows& rows) {
  QString html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body>\n");
  for (auto row = rows.begin(); row != rows.end();) {
    if (IsTableRow(*row)) {
      const auto end = std::find_if_not(row, rows.end(), IsTableRow);
      html += Table(row, end);
      row = end;
    } else {
      for (const QString& cell : row->Cells)
        html += QStringLiteral("<p>") + Escaped(cell) + QStringLiteral("</p>\n");
      ++row;
    }
  }
  return html + QStringLiteral("</body></html>\n");
}

}  // namespace tarvis
