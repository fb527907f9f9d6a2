// Work that takes a while, in a thread of its own: after half a second a window shows its progress and can
// cancel it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <atomic>
#include <functional>
#include <thread>

#include "preview/output/progress.h"

class QProgressDialog;
class QWidget;

namespace tarvis {

class BackgroundJob : public QObject {
  Q_OBJECT
 public:
  // `work` runs in another thread and returns an error text for the user, empty if all is well or cancelled.
  using Work = std::function<QString(const Progress& progress)>;

  // `caption` says what is being done, for the user.
  BackgroundJob(QString caption, Work work, QWidget* parent);
  // Cancels the work and waits for its end.
  ~BackgroundJob() override;

  void Cancel() { cancelled_ = true; }
  bool Cancelled() const { return cancelled_; }

  static constexpr int ProgressDelay = 500;  // milliseconds

 signals:
  // Emitted once, on the thread of this object.
  void Finished(const QString& error);

 private:
  void ShowProgress();

  QString caption_;
  QPointer<QProgressDialog> dialog_;
  std::atomic<bool> cancelled_ = false;
  std::atomic<int> done_ = 0;
  std::atomic<int> total_ = 0;
  bool finished_ = false;
  std::thread thread_;
};

}  // namespace tarvis
