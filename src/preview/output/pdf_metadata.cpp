#include "preview/output/pdf_metadata.h"

#include <QTimeZone>

#include "preview/output/xml_text.h"

namespace tarvis {
namespace {

constexpr const char* Creator = "Tarvis";
constexpr const char* Producer = "Tarvis " TARVIS_VERSION;

QPDFObjectHandle TextString(const QString& text) {
  return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

void AddDictionary(QPDF& pdf, const PdfInfo& info) {
  QPDFObjectHandle data = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  if (!info.Title.isEmpty()) data.replaceKey("/Title", TextString(info.Title));
  if (!info.Author.isEmpty()) data.replaceKey("/Author", TextString(info.Author));
  data.replaceKey("/Creator", TextString(QString::fromLatin1(Creator)));
  data.replaceKey("/Producer", TextString(QString::fromLatin1(Producer)));
  if (info.Created.isValid()) {
    const QString date = PdfDate(info.Created);
    data.replaceKey("/CreationDate", TextString(date));
    data.replaceKey("/ModDate", TextString(date));
  }
  pdf.getTrailer().replaceKey("/Info", data);
}

QString Element(const char* name, const QString& content) {
  return QStringLiteral("<%1>%2</%1>\n").arg(QString::fromLatin1(name), content);
}

// Archives must say what a property means that their own standard doesn't know; readers look for it in a
// description of its own.
QString DescriptionOfAccess() {
  return QStringLiteral(
      "<rdf:Description rdf:about=\"\" xmlns:pdfaExtension=\"http://www.aiim.org/pdfa/ns/extension/\" "
      "xmlns:pdfaSchema=\"http://www.aiim.org/pdfa/ns/schema#\" "
      "xmlns:pdfaProperty=\"http://www.aiim.org/pdfa/ns/property#\">\n"
      "<pdfaExtension:schemas><rdf:Bag><rdf:li rdf:parseType=\"Resource\">\n"
      "<pdfaSchema:schema>PDF/UA identification schema</pdfaSchema:schema>\n"
      "<pdfaSchema:namespaceURI>http://www.aiim.org/pdfua/ns/id/</pdfaSchema:namespaceURI>\n"
      "<pdfaSchema:prefix>pdfuaid</pdfaSchema:prefix>\n"
      "<pdfaSchema:property><rdf:Seq><rdf:li rdf:parseType=\"Resource\">\n"
      "<pdfaProperty:name>part</pdfaProperty:name>\n"
      "<pdfaProperty:valueType>Integer</pdfaProperty:valueType>\n"
      "<pdfaProperty:category>internal</pdfaProperty:category>\n"
      "<pdfaProperty:description>Part of ISO 14289 to which the document keeps</pdfaProperty:description>\n"
      "</rdf:li></rdf:Seq></pdfaSchema:property>\n"
      "</rdf:li></rdf:Bag></pdfaExtension:schemas>\n</rdf:Description>\n");
}

QString Properties(const PdfInfo& info, const PdfConformance& conformance) {
  QString xml = Element("pdfaid:part", QString::number(conformance.Part));
  xml += Element("pdfaid:conformance", QString(QLatin1Char(conformance.Level)));
  if (conformance.IsAccessible) xml += Element("pdfuaid:part", QStringLiteral("1"));
  if (!info.Title.isEmpty())
    xml += Element("dc:title", QStringLiteral("<rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt>")
                                   .arg(info.Title.toHtmlEscaped()));
  if (!info.Author.isEmpty())
    xml += Element("dc:creator",
                   QStringLiteral("<rdf:Seq><rdf:li>%1</rdf:li></rdf:Seq>").arg(info.Author.toHtmlEscaped()));
  xml += Element("xmp:CreatorTool", QString::fromLatin1(Creator));
  xml += Element("pdf:Producer", QString::fromLatin1(Producer));
  if (info.Created.isValid()) {
    const QString date = info.Created.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss'Z'"));
    xml += Element("xmp:CreateDate", date);
    xml += Element("xmp:ModifyDate", date);
  }
  return xml;
}

// The first line holds a byte order mark, by which readers that know no PDF find the packet and its encoding.
QString Packet(const QString& properties, bool isAccessible) {
  const QString access =
      isAccessible ? QStringLiteral(" xmlns:pdfuaid=\"http://www.aiim.org/pdfua/ns/id/\"") : QString();
  return QStringLiteral(
             "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
             "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
             "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
             "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
             "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" "
             "xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\"") +
         access + QStringLiteral(">\n") + properties + QStringLiteral("</rdf:Description>\n") +
         (isAccessible ? DescriptionOfAccess() : QString()) +
         QStringLiteral("</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"r\"?>\n");
}

// The writer of PDFs leaves this stream uncompressed, as archives ask for.
void AddXmp(QPDF& pdf, const PdfInfo& info, const PdfConformance& conformance) {
  QPDFObjectHandle stream =
      pdf.newStream(Packet(Properties(info, conformance), conformance.IsAccessible).toStdString());
  stream.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
  stream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
  pdf.getRoot().replaceKey("/Metadata", stream);
}

}  // namespace

QString PdfDate(const QDateTime& date) {
  return date.toUTC().toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'"));
}

void AddMetadata(QPDF& pdf, const PdfInfo& info, const PdfConformance& conformance) {
  const PdfInfo clean{XmlLine(info.Title), XmlLine(info.Author), info.Created, {}};
  AddDictionary(pdf, clean);
  AddXmp(pdf, clean, conformance);
}

}  // namespace tarvis
