// The ways of a document out of the preview: paper and PDF.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "preview/output/background_job.h"
#include "preview/output/printing.h"
#include "report/engine/document.h"

class QWidget;

namespace tarvis {

class DocumentOutput : public QObject {
  Q_OBJECT
 public:
  // Dialogs and messages stand on `window`, which owns this. `currentPage` tells the index of the page that
  // is being read.
  DocumentOutput(std::shared_ptr<const Document> document, QString author, std::function<int()> currentPage,
                 QWidget* window);
  // Cancels what is under way and waits for it.
  ~DocumentOutput() override;

  void Print();
  void SavePdf();
  // Whether a print or an export is under way.
  bool IsBusy() const { return job_ != nullptr; }
  // Ends what is under way and waits for it.
  void Cancel() { job_.reset(); }

 private:
  QString ProposedPath() const;
  void WritePdf(PdfSheets sheets, const QString& path);
  bool AskForScale(const QSizeF& missing, PrintScale& scale);
  // `failure` is shown with the error text if `work` fails.
  void StartJob(const QString& caption, const QString& failure, BackgroundJob::Work work);
  void ShowFailure(const QString& failure, const QString& reason);

  std::shared_ptr<const Document> document_;
  QString author_;
  std::function<int()> currentPage_;
  QWidget* window_;
  std::unique_ptr<BackgroundJob> job_;
};

}  // namespace tarvis
