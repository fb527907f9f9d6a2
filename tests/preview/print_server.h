// A print server on the loopback address with one queue, shared by all tests of the program.
#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QString>

namespace tarvis {

class PrintServer {
 public:
  static PrintServer& Instance();

  // Starts the server and has this process print to it; to be called before anything asks for printers.
  void Start();
  void Stop();

  // Waits for the next job. `received` gets the document as this process handed it over, `printed` what came
  // out of the queue. Returns what was asked for along with the document, empty if no job came.
  QJsonObject NextJob(const QString& received, const QString& printed);

  // The queue is taken away and set up again; so is the whole server. True if that worked.
  bool RemoveQueue() { return Order("remove"); }
  bool RestoreQueue() { return Order("restore"); }
  bool StopServer() { return Order("stop"); }
  bool StartServer() { return Order("start"); }
  // The server answers nobody, and goes on later; in between, waits until somebody has asked it for
  // something.
  bool PauseServer() { return Order("pause"); }
  bool IsAwaited() { return Order("await"); }
  bool ResumeServer() { return Order("resume"); }

 private:
  bool Order(const char* command);
  QString ReadLine();

  QProcess process_;
};

}  // namespace tarvis
