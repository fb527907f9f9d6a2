#include "preview/output/pdf_resources.h"

#include <algorithm>
#include <bit>
#include <qpdf/Buffer.hh>
#include <set>
#include <utility>

#include "preview/output/pdf_fonts.h"
#include "preview/output/pdf_helper_file.h"
#include "preview/output/pdf_rounding.h"
#include "preview/output/pdf_to_unicode.h"

namespace tarvis {
namespace {

std::string TextOf(QPDFObjectHandle stream) {
  const std::shared_ptr<Buffer> bytes = stream.getStreamData();
  return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

// How the toolkit shows a character that no font has: it writes each glyph by itself, in a text in
// hexadecimal digits.
constexpr std::string_view BoxOfToolkit = "<0000> Tj";
constexpr std::string_view FontChoice = " Tf";

struct TakenForm {
  QPDFObjectHandle Stream;
  bool IsRounded = true;
};

// The same content with boxes of the font /Box. The toolkit chooses a font at the begin of each text.
std::string WithBoxes(std::string_view content) {
  std::string changed;
  std::string_view rest = content;
  std::string_view font;  // with its size, as it was chosen
  for (std::size_t box = rest.find(BoxOfToolkit); box != rest.npos; box = rest.find(BoxOfToolkit)) {
    const std::string_view before = rest.substr(0, box);
    const std::size_t choice = before.rfind(FontChoice);
    if (choice != before.npos) {
      const std::size_t name = before.rfind('/', choice);
      font = before.substr(name, choice - name);
    }
    const std::string_view size = font.substr(std::min(font.find(' '), font.size()));
    changed.append(before).append("/Box").append(size).append(" Tf <0001> Tj ");
    changed.append(font).append(FontChoice);
    rest.remove_prefix(box + BoxOfToolkit.size());
  }
  return changed.append(rest);
}

bool HasBoxes(std::string_view content) {
  return content.find(BoxOfToolkit) != content.npos;
}

// A helper page as a form, with no more digits than can be seen.
// `boxes` is the font /Box, if there are any.
TakenForm TakeForm(QPDF& pdf, QPDFPageObjectHelper& page, const QPDFObjectHandle& boxes,
                   PdfContents& contents, Inks inks) {
  std::string text = WithBoxes(TextOf(page.getObjectHandle().getKey("/Contents")));
  std::optional<std::string> rounded = RoundedContent(text, inks);
  QPDFObjectHandle form = pdf.newStream();
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", page.getMediaBox().shallowCopy());
  QPDFObjectHandle resources = pdf.copyForeignObject(page.getAttribute("/Resources", false));
  if (boxes.isInitialized()) resources.getKey("/Font").replaceKey("/Box", boxes);
  dictionary.replaceKey("/Resources", resources);
  const bool isRounded = rounded.has_value();
  contents.Add(form, rounded ? std::move(*rounded) : std::move(text));
  return {form, isRounded};
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

// Glyphs of a font that represent no single character get a text, too: archives ask for it.
void CompleteTexts(QPDFObjectHandle font) {
  QPDFObjectHandle map = font.getKey("/ToUnicode");
  if (!map.isStream()) return;
  map.replaceStreamData(CompletedMap(TextOf(map), GlyphCount(font)), QPDFObjectHandle::newNull(),
                        QPDFObjectHandle::newNull());
}

void CompleteTexts(QPDFObjectHandle resources, std::set<QPDFObjGen>& done) {
  for (const auto& [name, font] : resources.getKey("/Font").getDictAsMap()) {
    if (done.insert(font.getObjGen()).second) CompleteTexts(font);
  }
}

struct TakenForms {
  QPDFObjectHandle Dictionary;
  std::set<QPDFObjGen> Rounded;
};

TakenForms MakeForms(QPDF& pdf, PdfPictures& pictures, ReportFont& font, PdfContents& contents, Inks inks) {
  TakenForms forms{QPDFObjectHandle::newDictionary(), {}};
  if (pictures.Count() == 0) return forms;
  HelperFile file(pictures.Finish());
  std::vector<QPDFPageObjectHelper> pages = file.Pages();
  std::set<QPDFObjGen> completed;
  QPDFObjectHandle boxes;  // made where it is needed first
  for (std::size_t number = 0; number < pictures.Count(); ++number) {
    QPDFPageObjectHelper& page = pages.at(number + 1);
    const bool hasBoxes = HasBoxes(TextOf(page.getObjectHandle().getKey("/Contents")));
    if (hasBoxes && !boxes.isInitialized()) boxes = MakeBoxFont(pdf, font);
    TakenForm form = TakeForm(pdf, page, hasBoxes ? boxes : QPDFObjectHandle(), contents, inks);
    if (form.IsRounded) forms.Rounded.insert(form.Stream.getObjGen());
    CompleteTexts(form.Stream.getDict().getKey("/Resources"), completed);
    forms.Dictionary.replaceKey("/P" + std::to_string(number), form.Stream);
  }
  return forms;
}

}  // namespace

PdfResources MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, PdfPictures& pictures, ReportFont& font,
                           PdfContents& contents, Inks inks) {
  const TakenForms forms = MakeForms(pdf, pictures, font, contents, inks);
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/Font", MakeFonts(pdf, glyphs, font));
  resources.replaceKey("/XObject", forms.Dictionary);
  return {pdf.makeIndirectObject(resources), forms.Rounded};
}

}  // namespace tarvis
