// The contents of a PDF's pages and pictures, on their way into its streams.
#pragma once

#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

#include "preview/output/content_compressor.h"

namespace tarvis {

class PdfContents {
 public:
  // `content` becomes that of `stream`, once it is compressed.
  void Add(const QPDFObjectHandle& stream, std::string content);
  // Fills all streams. To be called once, as the last one. Throws what the compression threw.
  void Finish();

 private:
  std::vector<QPDFObjectHandle> streams_;
  ContentCompressor compressor_;
};

}  // namespace tarvis
