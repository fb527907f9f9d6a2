// Further objects for a PDF that is complete, in compressed streams of many objects each. The PDF library's
// own streams hold a hundred objects, and it takes longer for each than all the rest of a PDF takes.
#pragma once

#include <qpdf/QPDFWriter.hh>
#include <string>
#include <vector>

#include "preview/output/content_compressor.h"

namespace tarvis {

class AddedObjects {
 public:
  // `pdf` is what `writer` has written, with a table of objects that is a stream.
  AddedObjects(std::string pdf, QPDFWriter& writer);

  // The first one of so many numbers in a row that no object has.
  [[nodiscard]] int Reserve(int count);
  // Begins the object with this number, which takes the place of another one if there is such; it must not be
  // a stream. Its text is to be appended to what is returned, before the next one begins.
  [[nodiscard]] std::string& Begin(int number);
  // The PDF with all of it. To be called once, as the last one.
  [[nodiscard]] std::string Finish();

 private:
  // Where an object is, as the table of objects says it.
  struct Place {
    enum Kinds : unsigned char { Free = 0, InFile = 1, InStream = 2 };
    unsigned char Kind = Free;
    std::uint32_t Where = 0;  // offset in the file, or number of the stream
    std::uint32_t Index = 0;  // in the stream
  };
  struct ObjectStream {
    int Number = 0;
    int Count = 0;
    std::size_t HeadSize = 0;
  };

  void EndStream();
  std::string Table() const;
  void AddStream(int number, const std::string& dictionary, const std::string& data);

  std::string pdf_;
  std::string trailer_;  // what the old table says of the whole file
  int tableNumber_ = 0;
  std::vector<Place> places_;  // by number
  std::vector<ObjectStream> streams_;
  std::string head_;  // of the stream in progress
  std::string body_;
  // Numbers that count up become a fifth smaller than on level 1; a higher level takes five times as long for
  // another fiftieth.
  static constexpr int LevelOfObjects = 6;
  ContentCompressor compressor_{LevelOfObjects};
};

}  // namespace tarvis
