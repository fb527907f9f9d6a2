#include "preview/jobs/print_system.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QPageLayout>
#include <QPrintEngine>
#include <QPrinter>
#include <QStringList>
#include <QTemporaryFile>
#include <memory>
#include <vector>

namespace tarvis {
namespace {

// A function of the client library; null where there is none.
template <typename Function>
Function* ClientFunction(const char* name) {
  constexpr int Version = 2;
  return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), Version, name));
}

// Of the print system's protocol.
constexpr int FirstErrorStatus = 0x0200;
constexpr int NoSuchPrinter = 0x0406;
// The client library reports this, with the system error that occurred last, whatever made it fail by itself:
// the printer is gone, or the server is.
constexpr int FailedInTheLibrary = 0x0500;

QString PrintSystemText(const char* text) {
  return QCoreApplication::translate("Printing", text);
}

// A connection to the print server; null if none can be made.
std::unique_ptr<void, void (*)(void*)> ConnectToServer() {
  constexpr int Milliseconds = 5000;
  constexpr int Blocking = 1;
  constexpr int AnyFamily = 0;  // of addresses
  auto* const server = ClientFunction<const char*()>("cupsServer");
  auto* const port = ClientFunction<int()>("ippPort");
  auto* const encryption = ClientFunction<int()>("cupsEncryption");
  auto* const connect =
      ClientFunction<void*(const char*, int, void*, int, int, int, int, int*)>("httpConnect2");
  auto* const close = ClientFunction<void(void*)>("httpClose");
  if (server == nullptr || port == nullptr || encryption == nullptr || connect == nullptr || close == nullptr)
    return {nullptr, [](void*) {}};
  return {connect(server(), port(), nullptr, AnyFamily, encryption(), Blocking, Milliseconds, nullptr),
          close};
}

// Whether a server that answers knows no printer of this name.
bool IsPrinterGone(void* connection, const QString& printer) {
  auto* const find = ClientFunction<void*(void*, const char*, const char*)>("cupsGetNamedDest");
  auto* const status = ClientFunction<int()>("cupsLastError");
  auto* const free = ClientFunction<void(int, void*)>("cupsFreeDests");
  if (find == nullptr || status == nullptr || free == nullptr) return false;
  void* const found = find(connection, printer.toUtf8().constData(), nullptr);
  if (found != nullptr) free(1, found);
  return found == nullptr && status() == NoSuchPrinter;
}

// The toolkit's property for the options of this print system: a list in which names and values alternate.
constexpr auto JobOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);

// Of the print system's protocol.
QString SidesOf(const QPrinter& printer) {
  const bool isUpright = printer.pageLayout().orientation() == QPageLayout::Portrait;
  const QString longEdge = QStringLiteral("two-sided-long-edge");
  const QString shortEdge = QStringLiteral("two-sided-short-edge");
  switch (printer.duplex()) {
    case QPrinter::DuplexNone:
      break;
    case QPrinter::DuplexAuto:
      return isUpright ? longEdge : shortEdge;
    case QPrinter::DuplexLongSide:
      return longEdge;
    case QPrinter::DuplexShortSide:
      return shortEdge;
  }
  return QStringLiteral("one-sided");
}

// Names and values in turn, as the toolkit hands them over with what it paints.
QStringList JobOptionsOf(const QPrinter& printer) {
  QStringList options{QStringLiteral("media"), printer.pageLayout().pageSize().key(), QStringLiteral("sides"),
                      SidesOf(printer)};
  if (printer.copyCount() > 1) {
    options << QStringLiteral("copies") << QString::number(printer.copyCount());
    if (printer.collateCopies()) options << QStringLiteral("Collate") << QStringLiteral("True");
  }
  if (printer.pageLayout().orientation() == QPageLayout::Landscape)
    options << QStringLiteral("landscape") << QString();
  return options + printer.printEngine()->property(JobOptions).toStringList();
}

using PrintFile = int(const char* printer, const char* file, const char* title, int count, void* options);

}  // namespace

// These functions read and set state of the calling thread.

bool TakesPdf(const QPrinter& printer) {
  return printer.outputFormat() == QPrinter::NativeFormat && printer.outputFileName().isEmpty() &&
         printer.printEngine()->property(JobOptions).isValid() &&
         ClientFunction<PrintFile>("cupsPrintFile") != nullptr;
}

QString HandOverPdf(std::string_view pdf, const QPrinter& printer) {
  QTemporaryFile file;
  const bool isThere =
      file.open() && file.write(pdf.data(), static_cast<qint64>(pdf.size())) >= 0 && file.flush();
  if (!isThere) return PrintSystemText("There is no room for the print job: %1").arg(file.errorString());
  struct Option {
    const char* Name;
    const char* Value;
  };
  std::vector<QByteArray> words;
  for (const QString& word : JobOptionsOf(printer)) words.push_back(word.toLocal8Bit());
  std::vector<Option> options;
  for (std::size_t index = 0; index + 1 < words.size(); index += 2)
    options.push_back({words[index].constData(), words[index + 1].constData()});
  // A queue can have several names, with its own one in front of a stroke.
  const QByteArray queue = printer.printerName().section(QLatin1Char('/'), 0, 0).toLocal8Bit();
  ClientFunction<PrintFile>("cupsPrintFile")(queue.constData(), file.fileName().toLocal8Bit().constData(),
                                             printer.docName().toLocal8Bit().constData(),
                                             static_cast<int>(options.size()), options.data());
  return {};
}

QString RefusalOfLastJob(const QString& printer) {
  auto* const status = ClientFunction<int()>("cupsLastError");
  auto* const words = ClientFunction<const char*()>("cupsLastErrorString");
  if (status == nullptr || words == nullptr || status() < FirstErrorStatus) return {};
  const QString theirs = QString::fromUtf8(words());
  if (status() != FailedInTheLibrary) return theirs;
  const auto connection = ConnectToServer();
  if (connection == nullptr) return PrintSystemText("The print system doesn't answer.");
  if (IsPrinterGone(connection.get(), printer))
    return PrintSystemText("The print system doesn't know this printer any more.");
  return theirs;
}

void DropJobsOfThisThread() {
  auto* const useServer = ClientFunction<void(const char*)>("cupsSetServer");
  if (useServer != nullptr) useServer("/dev/null");  // nothing listens there
}

void TakeOverChoiceOfPages(QPrinter& printer) {
  const QStringList given = printer.printEngine()->property(JobOptions).toStringList();
  QStringList kept;
  for (qsizetype i = 0; i + 1 < given.size(); i += 2) {
    if (given[i] != QStringLiteral("page-set") && given[i] != QStringLiteral("page-ranges"))
      kept << given[i] << given[i + 1];
  }
  printer.printEngine()->setProperty(JobOptions, kept);
}

}  // namespace tarvis
