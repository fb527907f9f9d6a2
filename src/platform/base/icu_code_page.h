// Code pages as ICU converts them.
#pragma once

#include <memory>

#include "platform/base/code_page_conversion.h"

namespace tarvis {

// As OpenCodePage, on every system.
std::unique_ptr<CodePageConversion> OpenIcuCodePage(int number);

}  // namespace tarvis
