// The ways of a document out of the preview: paper, PDF, and files of single graphs.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

#include "preview/jobs/background_job.h"
#include "preview/jobs/printing.h"
#include "preview/output/graph_forms.h"
#include "preview/window/preview_memory.h"
#include "report/engine/document.h"

class QWidget;

namespace tarvis {

// Where the document comes from, as far as it is written into files that are made of it.
struct DocumentOrigin {
  QString Author;    // of a PDF
  QString DataFile;  // the file that the host's data come from, as the host names it; may be empty
  // The files that the document is made of, where they can be had; throws RunTimeFailure if they have
  // changed.
  std::function<std::vector<NamedBytes>()> ReadData = {};
};

class DocumentOutput : public QObject {
  Q_OBJECT
 public:
  // `window` is the parent of dialogs and messages, and owns this. `currentPage` returns the index of the
  // page that is being read.
  DocumentOutput(std::shared_ptr<const Document> document, DocumentOrigin origin,
                 std::shared_ptr<PreviewMemory> memory, std::function<int()> currentPage, QWidget* window);
  // Cancels what is under way and waits for it.
  ~DocumentOutput() override;

  // Both do nothing while one of them is under way.
  void Print();
  void SavePdf();
  // As SVG or PNG.
  void SaveGraph(const PlacedGraph& graph);
  // Whether a print or an export is under way.
  bool IsBusy() const { return job_ != nullptr; }
  // Ends what is under way and waits for it.
  void Cancel();

 signals:
  // A file is complete.
  void Saved(const QString& path);
  // A print or an export begins or is over.
  void BusyChanged();

 private:
  // In the folder where the last file was saved; `title` and `ending` are parts of the name.
  QString ProposedPath(const QString& title, const QString& ending) const;
  QString ProposedPdf() const;
  void NoteSaved(const QString& path);
  // With what was chosen when a PDF was saved last. Nothing if the data can't be attached, after a message.
  std::optional<PdfInfo> Info();
  void WritePdf(PdfSheets sheets, const QString& path);
  bool AskForScale(const QSizeF& missing, PrintScale& scale);
  // `failure` is shown with the error text if `work` fails; `done` is called if it comes to its end.
  void StartJob(
      const QString& caption, const QString& failure, BackgroundJob::Work work,
      const std::function<void()>& done = [] {});
  void ShowFailure(const QString& failure, const QString& reason);

  std::shared_ptr<const Document> document_;
  DocumentOrigin origin_;
  std::shared_ptr<PreviewMemory> memory_;
  std::function<int()> currentPage_;
  QWidget* window_;
  std::unique_ptr<BackgroundJob> job_;
};

}  // namespace tarvis
