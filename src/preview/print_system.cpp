#include "preview/print_system.h"

#include <QLibrary>

namespace tarvis {
namespace {

// A function of the client library; null where there is none.
template <typename Function>
Function* ClientFunction(const char* name) {
  constexpr int Version = 2;
  return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), Version, name));
}

}  // namespace

// What these functions tell and set is a matter of the calling thread.

QString RefusalOfLastJob() {
  constexpr int FirstErrorStatus = 0x0200;
  auto* const status = ClientFunction<int()>("cupsLastError");
  auto* const words = ClientFunction<const char*()>("cupsLastErrorString");
  if (status == nullptr || words == nullptr || status() < FirstErrorStatus) return {};
  return QString::fromUtf8(words());
}

void DropJobsOfThisThread() {
  auto* const useServer = ClientFunction<void(const char*)>("cupsSetServer");
  if (useServer != nullptr) useServer("/dev/null");  // nobody listens there
}

}  // namespace tarvis
