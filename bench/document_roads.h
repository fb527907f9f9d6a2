// Two ways to make the same document from the host's files, measured against each other.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <memory>
#include <string>

class QPrinter;

namespace tarvis {

// The files that are printed: `Mode` is "User" or "Sim".
struct BenchJob {
  std::string Mode;
  std::string Folder;  // ends in a backslash
  std::int16_t Overlapped = 0;
};

// The steps in the order in which a user waits for them.
class DocumentRoad {
 public:
  virtual ~DocumentRoad() = default;

  virtual void Read() = 0;     // the first data file
  virtual void Compose() = 0;  // all pages; the tarvis road reads every file again, as the program does
  virtual int PageCount() const = 0;
  virtual void PaintPage(int page) = 0;  // into a picture of 96 dots to the inch
  virtual void SavePdf(const QString& path) = 0;
  virtual void Print(QPrinter& printer) = 0;  // pages for a printer that is no queue are painted
};

std::unique_ptr<DocumentRoad> TarvisRoad(const BenchJob& job);
// One row of a text table for each parameter, or each line of a simulation, in the toolkit's text document.
std::unique_ptr<DocumentRoad> ToolkitRoad(const BenchJob& job);

// Times one step after the other.
class Stopwatch {
 public:
  Stopwatch() { timer_.start(); }

  // Milliseconds since the last call, divided by `times`.
  void Report(const char* step, int times = 1) {
    Note(step, Milliseconds() / times);
    timer_.start();
  }
  double Milliseconds() const { return static_cast<double>(timer_.nsecsElapsed()) / 1e6; }
  void Note(const char* what, double value) {
    json_ += (json_.empty() ? "{" : ", ") + ("\"" + std::string(what)) + "\": " + std::to_string(value);
  }
  std::string Json() const { return json_ + "}"; }

 private:
  QElapsedTimer timer_;
  std::string json_;
};

}  // namespace tarvis
