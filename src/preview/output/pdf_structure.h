// The structure of a tagged PDF: headings, paragraphs, tables and figures as the composer knows them, each
// with the pieces of page content that show it.
#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>
#include <string>
#include <vector>

#include "preview/output/pdf_added_objects.h"
#include "preview/output/pdf_pages.h"
#include "preview/output/pdf_sheets.h"
#include "preview/output/pdf_tag_plan.h"
#include "preview/output/structure_elements.h"

namespace tarvis {

// A sheet of the file.
struct StructureSheet {
  std::uint32_t Index = 0;
  int Page = 0;                         // of the document
  QPDFObjGen Object;                    // its page
  ElementId EndOfElements = 0;          // that were added for it and for those before it
  std::vector<ElementId> Parents = {};  // the element of each piece of its content
};

class PdfStructure {
 public:
  // Prepares `pdf`, whose pages are the sheets. The order of reading is that of the document, whatever the
  // order of the sheets; further copies of pages are read after the first ones.
  PdfStructure(QPDF& pdf, const PdfTagPlan& plan, const PdfSheets& sheets, const PdfMarks& marks);

  // `pdf` is what `writer` has written of the prepared PDF. Returns it with the structure.
  [[nodiscard]] std::string AddTo(std::string pdf, QPDFWriter& writer) const;

 private:
  void WriteRoot(AddedObjects& objects, const StructureNumbers& numbers, int firstList) const;

  QPDFObjectHandle root_;
  StructureElements elements_;
  std::vector<StructureSheet> sheets_;
  std::vector<std::uint32_t> inOrder_;  // indexes of sheets_ as they are read
};

}  // namespace tarvis
