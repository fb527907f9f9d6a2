// POSIX systems have no code pages by these numbers.
#include "platform/base/code_page_conversion.h"
#include "platform/base/icu_code_page.h"

namespace tarvis {

std::unique_ptr<CodePageConversion> OpenCodePage(int number) {
  return OpenIcuCodePage(number);
}

}  // namespace tarvis
