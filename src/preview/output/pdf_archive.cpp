#include "preview/output/pdf_archive.h"

#include <algorithm>
#include <string>

#include "preview/output/srgb_profile.h"

namespace tarvis {
namespace {

struct CodePageLanguage {
  int CodePage;
  const char* Language;  // as in BCP 47
};
// Code pages of one language. All others are of several, and the captions of reports are English.
constexpr CodePageLanguage Languages[] = {{874, "th"},    {932, "ja"},  {936, "zh-CN"}, {949, "ko"},
                                          {950, "zh-TW"}, {1251, "ru"}, {1253, "el"},   {1254, "tr"},
                                          {1255, "he"},   {1256, "ar"}, {1258, "vi"},   {54936, "zh-CN"}};

std::string LanguageOf(int codePage) {
  const auto* const row = std::find_if(std::begin(Languages), std::end(Languages),
                                       [codePage](const auto& other) { return other.CodePage == codePage; });
  return row == std::end(Languages) ? "en" : row->Language;
}

QPDFObjectHandle OutputIntent(QPDF& pdf) {
  QPDFObjectHandle profile = pdf.newStream(SrgbProfile());
  profile.getDict().replaceKey("/N", QPDFObjectHandle::newInteger(3));
  QPDFObjectHandle intent = QPDFObjectHandle::parse(
      "<< /Type /OutputIntent /S /GTS_PDFA1 /OutputConditionIdentifier (sRGB IEC61966-2.1) "
      "/Info (sRGB IEC61966-2.1) >>");
  intent.replaceKey("/DestOutputProfile", profile);
  return pdf.makeIndirectObject(intent);
}

}  // namespace

void MakeArchive(QPDF& pdf, int codePage) {
  QPDFObjectHandle root = pdf.getRoot();
  root.replaceKey("/OutputIntents", QPDFObjectHandle::newArray({OutputIntent(pdf)}));
  root.replaceKey("/Lang", QPDFObjectHandle::newString(LanguageOf(codePage)));
  root.replaceKey("/ViewerPreferences", QPDFObjectHandle::parse("<< /DisplayDocTitle true >>"));
}

}  // namespace tarvis
