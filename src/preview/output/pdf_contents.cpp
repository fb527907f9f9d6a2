#include "preview/output/pdf_contents.h"

#include <deque>
#include <utility>

namespace tarvis {

void PdfContents::Add(const QPDFObjectHandle& stream, std::string content) {
  streams_.push_back(stream);
  compressor_.Add(std::move(content));
}

void PdfContents::Finish() {
  const std::deque<std::string> contents = compressor_.Finish();
  const QPDFObjectHandle filter = QPDFObjectHandle::newName("/FlateDecode");
  for (std::size_t index = 0; index < streams_.size(); ++index)
    streams_[index].replaceStreamData(contents[index], filter, QPDFObjectHandle::newNull());
}

}  // namespace tarvis
