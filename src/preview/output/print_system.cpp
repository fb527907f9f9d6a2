#include "preview/output/print_system.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QPrintEngine>
#include <QPrinter>
#include <QStringList>
#include <memory>

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

QString Text(const char* text) {
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

}  // namespace

// These functions read and set state of the calling thread.

QString RefusalOfLastJob(const QString& printer) {
  auto* const status = ClientFunction<int()>("cupsLastError");
  auto* const words = ClientFunction<const char*()>("cupsLastErrorString");
  if (status == nullptr || words == nullptr || status() < FirstErrorStatus) return {};
  const QString theirs = QString::fromUtf8(words());
  if (status() != FailedInTheLibrary) return theirs;
  const auto connection = ConnectToServer();
  if (connection == nullptr) return Text("The print system doesn't answer.");
  if (IsPrinterGone(connection.get(), printer))
    return Text("The print system doesn't know this printer any more.");
  return theirs;
}

void DropJobsOfThisThread() {
  auto* const useServer = ClientFunction<void(const char*)>("cupsSetServer");
  if (useServer != nullptr) useServer("/dev/null");  // nothing listens there
}

void TakeOverChoiceOfPages(QPrinter& printer) {
  // Names and values alternate; the number is the toolkit's property for the options of this print system.
  constexpr auto JobOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
  const QStringList given = printer.printEngine()->property(JobOptions).toStringList();
  QStringList kept;
  for (qsizetype i = 0; i + 1 < given.size(); i += 2) {
    if (given[i] != QStringLiteral("page-set") && given[i] != QStringLiteral("page-ranges"))
      kept << given[i] << given[i + 1];
  }
  printer.printEngine()->setProperty(JobOptions, kept);
}

}  // namespace tarvis
