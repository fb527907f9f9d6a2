#include "preview/output/pdf_added_objects.h"

#include <stdexcept>
#include <string_view>

namespace tarvis {
namespace {

// As many as readers can be asked to take apart for one of them.
constexpr int MostObjects = 400;
constexpr std::size_t MostBytes = std::size_t{64} * 1024;

// From `begin` to the end of `end`, both included.
std::string Part(std::string_view text, std::string_view begin, std::string_view end) {
  const std::size_t first = text.find(begin);
  const std::size_t last = text.find(end, first + begin.size());
  if (first == text.npos || last == text.npos) throw std::logic_error("a PDF without a table of objects");
  return std::string(text.substr(first, last + end.size() - first));
}

void AppendBytes(std::string& out, std::uint32_t value, int count) {
  for (int shift = 8 * (count - 1); shift >= 0; shift -= 8)
    out += static_cast<char>((value >> shift) & 0xFFU);
}

constexpr int WhereBytes = 4;
constexpr int IndexBytes = 2;
constexpr std::size_t RowBytes = 1 + WhereBytes + IndexBytes;

// Rows as differences to those above them, which compress to almost nothing.
std::string Predicted(std::string_view rows) {
  constexpr char Up = 2;
  std::string predicted;
  for (std::size_t at = 0; at < rows.size(); ++at) {
    if (at % RowBytes == 0) predicted += Up;
    const char above = at < RowBytes ? '\0' : rows[at - RowBytes];
    predicted += static_cast<char>(rows[at] - above);
  }
  return predicted;
}

}  // namespace

AddedObjects::AddedObjects(std::string pdf, QPDFWriter& writer) : pdf_(std::move(pdf)) {
  for (const auto& [object, entry] : writer.getWrittenXRefTable()) {
    const auto number = static_cast<std::size_t>(object.getObj());
    if (number >= places_.size()) places_.resize(number + 1);
    if (entry.getType() == Place::InFile) {
      places_[number] = {Place::InFile, static_cast<std::uint32_t>(entry.getOffset())};
    } else if (entry.getType() == Place::InStream) {
      places_[number] = {Place::InStream, static_cast<std::uint32_t>(entry.getObjStreamNumber()),
                         static_cast<std::uint32_t>(entry.getObjStreamIndex())};
    }
  }
  constexpr std::string_view Start = "startxref\n";
  const std::size_t table = std::stoul(pdf_.substr(pdf_.rfind(Start) + Start.size()));
  const std::string old = Part(std::string_view(pdf_).substr(table), "", "stream\n");
  tableNumber_ = std::stoi(old);
  trailer_ = Part(old, "/Info ", "R") + Part(old, "/Root ", "R") + Part(old, "/ID ", "]");
  pdf_.resize(table);
}

int AddedObjects::Reserve(int count) {
  const std::size_t first = places_.size();
  places_.resize(first + static_cast<std::size_t>(count));
  return static_cast<int>(first);
}

std::string& AddedObjects::Begin(int number) {
  if (!streams_.empty() && (streams_.back().Count == MostObjects || body_.size() > MostBytes)) EndStream();
  if (body_.empty()) streams_.push_back({Reserve(1)});
  ObjectStream& stream = streams_.back();
  places_[static_cast<std::size_t>(number)] = {Place::InStream, static_cast<std::uint32_t>(stream.Number),
                                               static_cast<std::uint32_t>(stream.Count)};
  ++stream.Count;
  if (!body_.empty()) body_ += '\n';
  head_ += std::to_string(number) + ' ' + std::to_string(body_.size()) + ' ';
  return body_;
}

void AddedObjects::EndStream() {
  streams_.back().HeadSize = head_.size();
  compressor_.Add(head_ + body_);
  head_.clear();
  body_.clear();
}

void AddedObjects::AddStream(int number, const std::string& dictionary, const std::string& data) {
  places_[static_cast<std::size_t>(number)] = {Place::InFile, static_cast<std::uint32_t>(pdf_.size())};
  pdf_ += std::to_string(number) + " 0 obj\n<<" + dictionary + "/Filter/FlateDecode/Length " +
          std::to_string(data.size()) + ">>\nstream\n";
  pdf_ += data;
  pdf_ += "\nendstream\nendobj\n";
}

std::string AddedObjects::Table() const {
  std::string rows;
  for (const Place& place : places_) {
    rows += static_cast<char>(place.Kind);
    AppendBytes(rows, place.Where, WhereBytes);
    AppendBytes(rows, place.Index, IndexBytes);
  }
  return rows;
}

std::string AddedObjects::Finish() {
  if (!body_.empty()) EndStream();
  std::deque<std::string> contents = compressor_.Finish();
  for (const ObjectStream& stream : streams_) {
    AddStream(stream.Number,
              "/Type/ObjStm/N " + std::to_string(stream.Count) + "/First " + std::to_string(stream.HeadSize),
              contents.front());
    contents.pop_front();
  }
  const std::size_t table = pdf_.size();
  places_[0] = {Place::Free, 0, 0xFFFF};
  places_[static_cast<std::size_t>(tableNumber_)] = {Place::InFile, static_cast<std::uint32_t>(table)};
  ContentCompressor compressor;
  compressor.Add(Predicted(Table()));
  AddStream(tableNumber_,
            "/Type/XRef/W[1 " + std::to_string(WhereBytes) + " " + std::to_string(IndexBytes) + "]/Size " +
                std::to_string(places_.size()) + "/DecodeParms<</Predictor 12/Columns " +
                std::to_string(RowBytes) + ">>" + trailer_,
            compressor.Finish().front());
  pdf_ += "startxref\n" + std::to_string(table) + "\n%%EOF\n";
  return std::move(pdf_);
}

}  // namespace tarvis
