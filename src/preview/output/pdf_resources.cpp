#include "preview/output/pdf_resources.h"

#include <bit>
#include <map>
#include <qpdf/Buffer.hh>
#include <set>
#include <utility>

#include "preview/output/pdf_fonts.h"
#include "preview/output/pdf_helper_file.h"
#include "preview/output/pdf_picture_glyphs.h"
#include "preview/output/pdf_rounding.h"
#include "preview/output/pdf_to_unicode.h"

namespace tarvis {
namespace {

std::string TextOf(QPDFObjectHandle stream) {
  const std::shared_ptr<Buffer> bytes = stream.getStreamData();
  return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

// How many glyphs the toolkit has put into a font: it writes a bit for each, the highest first.
std::size_t GlyphCount(QPDFObjectHandle font) {
  QPDFObjectHandle descriptor = font.getKey("/DescendantFonts").getArrayItem(0).getKey("/FontDescriptor");
  QPDFObjectHandle set = descriptor.getKey("/CIDSet");
  if (!set.isStream()) return 0;
  const std::shared_ptr<Buffer> bytes = set.getStreamData();
  for (std::size_t end = bytes->getSize(); end > 0; --end) {
    const unsigned bits = bytes->getBuffer()[end - 1];
    if (bits != 0) return end * 8 - static_cast<std::size_t>(std::countr_zero(bits));
  }
  return 0;
}

// The fonts of pictures. Glyphs that represent no single character get a text, too: archives ask for it.
class PictureFonts {
 public:
  TextsByFont Complete(QPDFObjectHandle resources) {
    TextsByFont texts;
    for (const auto& [name, font] : resources.getKey("/Font").getDictAsMap()) {
      const auto [known, isNew] = texts_.try_emplace(font.getObjGen());
      if (isNew) known->second = CompletedTextsOf(font);
      texts[name] = known->second;
    }
    return texts;
  }

 private:
  static std::vector<std::u32string> CompletedTextsOf(QPDFObjectHandle font) {
    QPDFObjectHandle map = font.getKey("/ToUnicode");
    if (!map.isStream()) return {};
    std::vector<std::u32string> texts = CompletedTexts(TextOf(map), GlyphCount(font));
    map.replaceStreamData(ToUnicodeMap(0, texts), QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
    return texts;
  }

  std::map<QPDFObjGen, std::vector<std::u32string>> texts_;
};

struct TakenForm {
  QPDFObjectHandle Stream;
  bool IsRounded = true;
};

class FormTaker {
 public:
  // All must outlive it.
  FormTaker(QPDF& pdf, ReportFont& font, PdfContents& contents, const PictureContent& wanted)
      : pdf_(pdf), font_(font), contents_(contents), wanted_(wanted) {}

  // A helper page as a form, with no more digits than can be seen.
  TakenForm Take(QPDFPageObjectHelper& page) {
    std::string content = TextOf(page.getObjectHandle().getKey("/Contents"));
    QPDFObjectHandle resources = pdf_.copyForeignObject(page.getAttribute("/Resources", false));
    const TextsByFont texts = fonts_.Complete(resources);
    if (HasBoxes(content)) {
      content = WithBoxes(content);
      resources.getKey("/Font").replaceKey("/Box", Boxes());
    }
    std::optional<std::string> rounded = RoundedContent(content, wanted_.Ink);
    const bool isRounded = rounded.has_value();
    if (isRounded) content = std::move(*rounded);
    if (wanted_.NamesPrivateCharacters) content = WithPrivateNamed(content, texts);
    QPDFObjectHandle form = NewForm(page.getMediaBox(), resources);
    contents_.Add(form, std::move(content));
    return {form, isRounded};
  }

 private:
  // Made where it is needed first.
  const QPDFObjectHandle& Boxes() {
    if (!boxes_.isInitialized()) boxes_ = MakeBoxFont(pdf_, font_);
    return boxes_;
  }

  QPDFObjectHandle NewForm(QPDFObjectHandle box, const QPDFObjectHandle& resources) {
    QPDFObjectHandle form = pdf_.newStream();
    QPDFObjectHandle dictionary = form.getDict();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    dictionary.replaceKey("/BBox", box.shallowCopy());
    dictionary.replaceKey("/Resources", resources);
    return form;
  }

  QPDF& pdf_;
  ReportFont& font_;
  PdfContents& contents_;
  const PictureContent& wanted_;
  PictureFonts fonts_;
  QPDFObjectHandle boxes_;
};

struct TakenForms {
  QPDFObjectHandle Dictionary;
  std::set<QPDFObjGen> Rounded;
};

TakenForms MakeForms(QPDF& pdf, PdfPictures& pictures, ReportFont& font, PdfContents& contents,
                     const PictureContent& wanted) {
  TakenForms forms{QPDFObjectHandle::newDictionary(), {}};
  if (pictures.Count() == 0) return forms;
  HelperFile file(pictures.Finish());
  std::vector<QPDFPageObjectHelper> pages = file.Pages();
  FormTaker taker(pdf, font, contents, wanted);
  for (std::size_t number = 0; number < pictures.Count(); ++number) {
    const TakenForm form = taker.Take(pages.at(number + 1));
    if (form.IsRounded) forms.Rounded.insert(form.Stream.getObjGen());
    forms.Dictionary.replaceKey("/P" + std::to_string(number), form.Stream);
  }
  return forms;
}

}  // namespace

PdfResources MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, PdfPictures& pictures, ReportFont& font,
                           PdfContents& contents, const PictureContent& wanted) {
  const TakenForms forms = MakeForms(pdf, pictures, font, contents, wanted);
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/Font", MakeFonts(pdf, glyphs, font));
  resources.replaceKey("/XObject", forms.Dictionary);
  return {pdf.makeIndirectObject(resources), forms.Rounded};
}

}  // namespace tarvis
