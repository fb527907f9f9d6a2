#include "preview/output/print_system.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QPrintEngine>
#include <QPrinter>
#include <QStringList>
#include <algorithm>
#include <array>

namespace tarvis {
namespace {

// A function of the client library; null where there is none.
template <typename Function>
Function* ClientFunction(const char* name) {
  constexpr int Version = 2;
  return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), Version, name));
}

struct Refusal {
  int Status;        // as the print system's protocol numbers it
  const char* Text;  // ours, where the client library has only the system error that it met last
};

constexpr std::array<Refusal, 4> Refusals = {{
    {0x0406, QT_TRANSLATE_NOOP("Printing", "The print system doesn't know this printer any more.")},
    {0x0500, QT_TRANSLATE_NOOP("Printing", "The print system doesn't answer.")},
    {0x0502, QT_TRANSLATE_NOOP("Printing", "The print system doesn't answer.")},
    {0x0506, QT_TRANSLATE_NOOP("Printing", "The printer accepts no documents at present.")},
}};

}  // namespace

// These functions read and set state of the calling thread.

QString RefusalOfLastJob() {
  constexpr int FirstErrorStatus = 0x0200;
  auto* const status = ClientFunction<int()>("cupsLastError");
  auto* const words = ClientFunction<const char*()>("cupsLastErrorString");
  if (status == nullptr || words == nullptr || status() < FirstErrorStatus) return {};
  const auto* const ours = std::ranges::find(Refusals, status(), &Refusal::Status);
  if (ours != Refusals.end()) return QCoreApplication::translate("Printing", ours->Text);
  return QString::fromUtf8(words());
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
