// Work that takes a while, in a thread of its own: after half a second a window shows its progress and can
// cancel it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "preview/output/progress.h"

class QProgressDialog;
class QWidget;

namespace tarvis {

class BackgroundJob : public QObject {
  Q_OBJECT
 public:
  // `work` runs in another thread and returns an error text for the user, empty if all is well or cancelled.
  // It shall own what it uses.
  using Work = std::function<QString(const Progress& progress)>;

  // `caption` says what is being done, for the user.
  BackgroundJob(QString caption, Work work, QWidget* parent);
  // Cancels the work and waits for its end, but no longer than was said.
  ~BackgroundJob() override;

  void Cancel();
  bool Cancelled() const;
  // Work that can get stuck in foreign code, such as that of a print system, is left to itself if it has not
  // ended so long after it was cancelled by the end of this object. It ends with the process, wherever it is
  // by then; if it comes to its end before, nobody gets to know the result.
  void WaitAtMost(std::chrono::milliseconds patience) { patience_ = patience; }

  static constexpr int ProgressDelay = 500;  // milliseconds

 signals:
  // Emitted once, on the thread of this object.
  void Finished(const QString& error);

 private:
  struct State;

  void ShowProgress();
  void End(const QString& error);
  // False if the work has not ended in time.
  bool WaitForEnd();

  QString caption_;
  QPointer<QProgressDialog> dialog_;
  std::shared_ptr<State> state_;  // also of the thread
  std::optional<std::chrono::milliseconds> patience_;
  bool finished_ = false;
  std::thread thread_;
};

}  // namespace tarvis
