// What keeps a document from being made, apart from the failures that the print module knows.
#pragma once

#include <stdexcept>

namespace tarvis {

// A wrong call, or a place that nothing can be written to. Reported in one line; the exit status is then 1.
class PdfError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tarvis
