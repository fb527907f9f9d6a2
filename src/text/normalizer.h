// The normal forms of Unicode, as ICU has them.
#pragma once

#include <unicode/normalizer2.h>

#include "text/run_time_failure.h"

namespace tarvis {

// `instance` is one of ICU's functions for a form, such as icu::Normalizer2::getNFCInstance.
inline const icu::Normalizer2& NormalizerOf(const icu::Normalizer2* (*instance)(UErrorCode&)) {
  UErrorCode error = U_ZERO_ERROR;
  const icu::Normalizer2* form = instance(error);
  if (U_FAILURE(error)) throw RunTimeFailure("no rules for the normal forms of text");
  return *form;
}

}  // namespace tarvis
