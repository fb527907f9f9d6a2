#include "preview/output/svg_device.h"

#include <QStringList>
#include <limits>

#include "preview/output/svg_engine.h"
#include "preview/output/svg_inks.h"
#include "preview/output/xml_text.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

// The least that counts as fine for what is painted: no printer is finer than a twip.
constexpr int DotsPerInch = 1440;
constexpr double MillimetresPerInch = 25.4;
constexpr int BitsPerColor = 24;

std::string Escaped(const QString& text) {
  QStringList lines = text.split(QLatin1Char('\n'));
  for (QString& line : lines) line = XmlLine(line).toHtmlEscaped();
  return lines.join(QLatin1Char('\n')).toStdString();
}

}  // namespace

SvgDevice::SvgDevice(QSizeF size) : size_(size), engine_(std::make_unique<SvgEngine>()) {}

SvgDevice::~SvgDevice() = default;

QPaintEngine* SvgDevice::paintEngine() const {
  return engine_.get();
}

std::string SvgDevice::File(const QString& title, const QString& description) const {
  std::string file = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  file +=
      R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" version="1.1")";
  file += " width=\"" + SvgNumber(size_.width() / DotsPerInch * MillimetresPerInch) + "mm\"";
  file += " height=\"" + SvgNumber(size_.height() / DotsPerInch * MillimetresPerInch) + "mm\"";
  file += " viewBox=\"0 0 " + SvgNumber(size_.width()) + ' ' + SvgNumber(size_.height()) + "\">\n";
  file += "<title>" + Escaped(title) + "</title>\n";
  if (!description.isEmpty()) file += "<desc>" + Escaped(description) + "</desc>\n";
  file += "<defs>\n" + engine_->Definitions() + "</defs>\n" + engine_->Content() + "</svg>\n";
  return file;
}

int SvgDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return PixelAfter(size_.width());
    case PdmHeight:
      return PixelAfter(size_.height());
    case PdmWidthMM:
      return NearestPixel(size_.width() / DotsPerInch * MillimetresPerInch);
    case PdmHeightMM:
      return NearestPixel(size_.height() / DotsPerInch * MillimetresPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return DotsPerInch;
    case PdmDevicePixelRatioScaled:
      return NearestPixel(devicePixelRatioFScale());
    case PdmDepth:
      return BitsPerColor;
    case PdmNumColors:
      return std::numeric_limits<int>::max();
    default:
      return 1;  // the ratio of pixels
  }
}

}  // namespace tarvis
