#include "preview/print_server.h"

#include <QElapsedTimer>
#include <QJsonDocument>

#include "support/source_folder.h"

namespace tarvis {

PrintServer& PrintServer::Instance() {
  static PrintServer server;
  return server;
}

void PrintServer::Start() {
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(QStringLiteral("python3"),
                 {QString::fromStdString(SourceFolder() + "/tests/preview/print_server.py")});
  const QString line = ReadLine();
  qputenv("CUPS_SERVER", line.section(QLatin1Char(' '), 0, 0).toUtf8());
  qputenv("CUPS_USER", line.section(QLatin1Char(' '), 1, 1).trimmed().toUtf8());
}

void PrintServer::Stop() {
  process_.closeWriteChannel();
  process_.waitForFinished();
}

QJsonObject PrintServer::NextJob(const QString& received, const QString& printed) {
  process_.write(QStringLiteral("job %1 %2\n").arg(received, printed).toUtf8());
  return QJsonDocument::fromJson(ReadLine().toUtf8()).object();
}

bool PrintServer::Order(const char* command) {
  process_.write(command + QByteArray("\n"));
  return ReadLine().trimmed() == QLatin1String("done");
}

QString PrintServer::ReadLine() {
  constexpr int Limit = 60'000;  // milliseconds
  QElapsedTimer timer;
  timer.start();
  while (!process_.canReadLine() && process_.state() != QProcess::NotRunning && timer.elapsed() < Limit) {
    process_.waitForReadyRead(1000);
  }
  return QString::fromUtf8(process_.readLine());
}

}  // namespace tarvis
