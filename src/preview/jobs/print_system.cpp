#include "preview/jobs/print_system.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QPageLayout>
#include <QPrintEngine>
#include <QPrinter>
#include <QStringList>
#include <cstddef>
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

struct JobOption {
  const char* Name;
  const char* Value;
};

// What the client library needs to take a document piece by piece. Its default connection is a null pointer.
struct StreamedJob {
  int (*Create)(void* connection, const char* queue, const char* title, int count, void* options) =
      ClientFunction<int(void*, const char*, const char*, int, void*)>("cupsCreateJob");
  int (*Start)(void* connection, const char* queue, int job, const char* name, const char* format,
               int isLast) =
      ClientFunction<int(void*, const char*, int, const char*, const char*, int)>("cupsStartDocument");
  int (*Write)(void* connection, const char* bytes, std::size_t count) =
      ClientFunction<int(void*, const char*, std::size_t)>("cupsWriteRequestData");
  int (*Finish)(void* connection,
                const char* queue) = ClientFunction<int(void*, const char*)>("cupsFinishDocument");
  int (*Cancel)(const char* queue, int job) = ClientFunction<int(const char*, int)>("cupsCancelJob");

  bool IsThere() const { return Create && Start && Write && Finish && Cancel; }
  // Whether the server has taken all of it.
  bool Send(std::string_view document, const char* queue, int job, const char* title) const;
};

bool StreamedJob::Send(std::string_view document, const char* queue, int job, const char* title) const {
  constexpr int GoOn = 100;             // of the protocol below
  constexpr std::size_t Piece = 65536;  // bytes
  constexpr auto KindIsSeen = "application/octet-stream";
  int status = Start(nullptr, queue, job, title, KindIsSeen, 1);
  for (std::size_t sent = 0; sent < document.size() && status == GoOn; sent += Piece) {
    const std::string_view piece = document.substr(sent, Piece);
    status = Write(nullptr, piece.data(), piece.size());
  }
  // What is below the errors is taken, also where an option was ignored or another one substituted.
  return status == GoOn && Finish(nullptr, queue) < FirstErrorStatus;
}

}  // namespace

// These functions read and set state of the calling thread.

bool TakesPdf(const QPrinter& printer) {
  return printer.outputFormat() == QPrinter::NativeFormat && printer.outputFileName().isEmpty() &&
         printer.printEngine()->property(JobOptions).isValid() && StreamedJob().IsThere();
}

QString HandOverPdf(std::string_view pdf, const QPrinter& printer) {
  std::vector<QByteArray> words;
  for (const QString& word : JobOptionsOf(printer)) words.push_back(word.toLocal8Bit());
  std::vector<JobOption> options;
  for (std::size_t index = 0; index + 1 < words.size(); index += 2)
    options.push_back({words[index].constData(), words[index + 1].constData()});
  // A queue can have several names, with its own one in front of a stroke.
  const QByteArray queue = printer.printerName().section(QLatin1Char('/'), 0, 0).toLocal8Bit();
  const QByteArray title = printer.docName().toLocal8Bit();
  const StreamedJob stream;
  const int job = stream.Create(nullptr, queue.constData(), title.constData(),
                                static_cast<int>(options.size()), options.data());
  if (job != 0 && stream.Send(pdf, queue.constData(), job, title.constData())) return {};
  QString refusal = RefusalOfLastJob(printer.printerName());
  if (refusal.isEmpty()) refusal = PrintSystemText("The print system doesn't answer.");
  if (job != 0) stream.Cancel(queue.constData(), job);
  return refusal;
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
