#include "preview/output/pdf_attachments.h"

#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>

#include "preview/output/pdf_metadata.h"

namespace tarvis {

void AttachData(QPDF& pdf, const std::vector<NamedBytes>& files, const QDateTime& changed) {
  if (files.empty()) return;
  QPDFEmbeddedFileDocumentHelper attachments(pdf);
  QPDFObjectHandle associated = QPDFObjectHandle::newArray();
  for (const NamedBytes& file : files) {
    QPDFEFStreamObjectHelper stream = QPDFEFStreamObjectHelper::createEFStream(pdf, file.Bytes);
    stream.setSubtype("text/plain");
    if (changed.isValid()) stream.setModDate(PdfDate(changed).toStdString());
    QPDFFileSpecObjectHelper specification = QPDFFileSpecObjectHelper::createFileSpec(pdf, file.Name, stream);
    specification.setDescription("Data of this document as the host wrote them");
    specification.getObjectHandle().replaceKey("/AFRelationship", QPDFObjectHandle::newName("/Data"));
    attachments.replaceEmbeddedFile(file.Name, specification);
    associated.appendItem(specification.getObjectHandle());
  }
  pdf.getRoot().replaceKey("/AF", associated);
}

}  // namespace tarvis
