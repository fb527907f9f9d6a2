#include "preview/jobs/background_job.h"

#include <QProgressDialog>
#include <QTimer>
#include <QWidget>

namespace tarvis {

namespace {

constexpr int PollInterval = 50;  // milliseconds

}  // namespace

BackgroundJob::BackgroundJob(QString caption, Work work, QWidget* parent)
    : QObject(parent), caption_(std::move(caption)) {
  QTimer::singleShot(ProgressDelay, this, &BackgroundJob::ShowProgress);
  thread_ = std::thread([this, work = std::move(work)] {
    QString error;
    try {
      error = work([this](int done, int total) {
        done_ = done;
        total_ = total;
        return !cancelled_;
      });
    } catch (const std::exception& failure) {
      error = QString::fromUtf8(failure.what());
    }
    QMetaObject::invokeMethod(
        this,
        [this, error] {
          finished_ = true;
          delete dialog_;
          emit Finished(error);
        },
        Qt::QueuedConnection);
  });
}

BackgroundJob::~BackgroundJob() {
  cancelled_ = true;
  thread_.join();
  delete dialog_;
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
    dialog_->setMaximum(total_);
    dialog_->setValue(done_);
  });
  poll->start(PollInterval);
  connect(dialog_, &QProgressDialog::canceled, this, &BackgroundJob::Cancel);
  dialog_->show();
}

}  // namespace tarvis
