#include "preview/jobs/background_job.h"

#include <QProgressDialog>
#include <QTimer>
#include <QWidget>
#include <atomic>
#include <condition_variable>
#include <mutex>

namespace tarvis {

struct BackgroundJob::State {
  explicit State(BackgroundJob* owner) : Owner(owner) {}

  QString ResultOf(const Work& work);

  std::atomic<bool> IsCancelled = false;
  std::atomic<int> Done = 0;
  std::atomic<int> Total = 0;
  std::mutex Mutex;  // guards the rest
  std::condition_variable Ended;
  bool HasEnded = false;
  BackgroundJob* Owner;  // nullptr once nobody waits for the result
};

namespace {

constexpr int PollInterval = 50;  // milliseconds

}  // namespace

QString BackgroundJob::State::ResultOf(const Work& work) {
  try {
    return work([this](int done, int total) {
      Done = done;
      Total = total;
      return !IsCancelled;
    });
  } catch (const std::exception& failure) {
    return QString::fromUtf8(failure.what());
  }
}

BackgroundJob::BackgroundJob(QString caption, Work work, QWidget* parent)
    : QObject(parent), caption_(std::move(caption)), state_(std::make_shared<State>(this)) {
  QTimer::singleShot(ProgressDelay, this, &BackgroundJob::ShowProgress);
  thread_ = std::thread([state = state_, work = std::move(work)] {
    const QString error = state->ResultOf(work);
    const std::lock_guard lock(state->Mutex);
    state->HasEnded = true;
    state->Ended.notify_all();
    if (state->Owner == nullptr) return;
    QMetaObject::invokeMethod(
        state->Owner, [owner = state->Owner, error] { owner->End(error); }, Qt::QueuedConnection);
  });
}

BackgroundJob::~BackgroundJob() {
  Cancel();
  if (WaitForEnd()) {
    thread_.join();
  } else {
    thread_.detach();
  }
  delete dialog_;
}

bool BackgroundJob::WaitForEnd() {
  std::unique_lock lock(state_->Mutex);
  state_->Owner = nullptr;
  const auto hasEnded = [this] { return state_->HasEnded; };
  if (patience_) return state_->Ended.wait_for(lock, *patience_, hasEnded);
  state_->Ended.wait(lock, hasEnded);
  return true;
}

void BackgroundJob::Cancel() {
  state_->IsCancelled = true;
}

bool BackgroundJob::Cancelled() const {
  return state_->IsCancelled;
}

void BackgroundJob::End(const QString& error) {
  finished_ = true;
  delete dialog_;
  emit Finished(error);
}

void BackgroundJob::ShowProgress() {
  if (finished_) return;
  dialog_ = new QProgressDialog(caption_, tr("Cancel"), 0, 0, qobject_cast<QWidget*>(parent()));
  dialog_->setObjectName(QStringLiteral("progress"));
  dialog_->setWindowModality(Qt::WindowModal);
  dialog_->setAutoClose(false);
  dialog_->setAutoReset(false);
  // Polled, so that quick steps don't flood the window's thread with events.
  auto* poll = new QTimer(dialog_);
  connect(poll, &QTimer::timeout, dialog_, [this] {
    dialog_->setMaximum(state_->Total);
    dialog_->setValue(state_->Done);
  });
  poll->start(PollInterval);
  connect(dialog_, &QProgressDialog::canceled, this, &BackgroundJob::Cancel);
  dialog_->show();
}

}  // namespace tarvis
