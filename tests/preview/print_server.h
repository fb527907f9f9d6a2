// A print server on the loopback address with one queue, shared by all tests of the program.
#pragma once

#include <QProcess>
#include <QString>

namespace tarvis {

class PrintServer {
 public:
  static PrintServer& Instance();

  // Starts the server and has this process print to it; to be called before anything asks for printers.
  void Start();
  void Stop();

  // Waits until one more job is done. `received` gets the document as this process handed it over, `printed`
  // what came out of the queue.
  bool WaitForJob(const QString& received, const QString& printed);

 private:
  QString ReadLine();

  QProcess process_;
  int jobs_ = 0;
};

}  // namespace tarvis
