#include "preview/output/pdf_contents.h"

#include <deque>
#include <utility>

namespace tarvis {

void PdfContents::Add(const QPDFObjectHandle& stream, std::string content) {
  streams_.push_back(stream);
  compressor_.Add(std::move(content));
}

void PdfContents::Finish() {
  std::deque<std::string> contents = compressor_.Finish();
  const QPDFObjectHandle filter = QPDFObjectHandle::newName("/FlateDecode");
  for (QPDFObjectHandle& stream : streams_) {
    stream.replaceStreamData(contents.front(), filter, QPDFObjectHandle::newNull());
    contents.pop_front();  // the stream has a copy
  }
}

}  // namespace tarvis
