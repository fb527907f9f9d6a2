// Reads back PDF files with the tools that users have.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace tarvis {

// Standard output and error of a tool.
inline QString RunTool(const char* tool, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QString::fromLatin1(tool), arguments);
  constexpr int Limit = 60'000;  // milliseconds
  if (!process.waitForFinished(Limit)) return QStringLiteral("%1 did not run").arg(QString::fromLatin1(tool));
  return QString::fromUtf8(process.readAll());
}

inline QString PdfText(const QString& path) {
  return RunTool("pdftotext", {QStringLiteral("-layout"), path, QStringLiteral("-")});
}

// A line of what pdfinfo prints, such as "Pages".
inline QString PdfFact(const QString& path, const char* key) {
  for (const QString& line : RunTool("pdfinfo", {path}).split(QLatin1Char('\n'))) {
    if (line.startsWith(QString::fromLatin1(key) + QLatin1Char(':')))
      return line.section(QLatin1Char(':'), 1).trimmed();
  }
  return {};
}

}  // namespace tarvis
