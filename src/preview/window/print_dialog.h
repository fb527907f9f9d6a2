// The toolkit's print dialog, extended by what it can't do by itself.
#pragma once

#include <QPrintDialog>

#include "preview/output/page_choice.h"

class QPrinter;

namespace tarvis {

class PrintDialog : public QPrintDialog {
  Q_OBJECT
 public:
  // What is chosen is set in `printer`, which must outlive the dialog, when the dialog is accepted. `pdf` is
  // the path that is proposed for printing into a file.
  PrintDialog(QPrinter& printer, int pageCount, const QString& pdf, QWidget* parent);

  // Asked for after the dialog was accepted. `currentPage` is an index.
  PageChoice Choice(int currentPage) const;
  // Whether a PDF is wanted in place of paper; its path is the printer's output file.
  bool IntoPdf() const;

  void setVisible(bool visible) override;

 protected:
  void accept() override;

 private:
  void OfferPdf(const QString& path);
  void OfferAllPages();
  void CheckFile();
  QPageRanges TypedRanges() const;

  QString agreed_;  // the path for which the user has already agreed that it is overwritten
};

}  // namespace tarvis
