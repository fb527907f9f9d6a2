#include "preview/output/pdf_greys.h"

#include <charconv>
#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDFTokenizer.hh>
#include <set>
#include <string>
#include <vector>

#include "preview/output/pdf_numbers.h"

namespace tarvis {
namespace {

using Token = QPDFTokenizer::Token;

// Independent of any locale, unlike the library's own way.
double NumberOf(const std::string& text) {
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

bool IsNumber(const Token& token) {
  return token.getType() == QPDFTokenizer::tt_integer || token.getType() == QPDFTokenizer::tt_real;
}

// Gives each operator that sets a colour three equal numbers.
class GreyInks : public QPDFObjectHandle::TokenFilter {
 public:
  void handleToken(const Token& token) override {
    if (token.getType() == QPDFTokenizer::tt_space || token.getType() == QPDFTokenizer::tt_comment) return;
    if (token.getType() == QPDFTokenizer::tt_word) return FinishOperator(token);
    operands_.push_back(token);
    if (token.getType() == QPDFTokenizer::tt_inline_image) WriteOperands();
  }
  void handleEOF() override { WriteOperands(); }

 private:
  void FinishOperator(const Token& name) {
    static const std::set<std::string> Inks{"rg", "RG", "sc", "SC", "scn", "SCN"};
    if (Inks.contains(name.getValue())) MakeGrey();
    WriteOperands();
    writeToken(name);
    write("\n");
  }
  // A pattern follows its colour as a name.
  void MakeGrey() {
    if (operands_.size() < 3 || !IsNumber(operands_[0]) || !IsNumber(operands_[1]) || !IsNumber(operands_[2]))
      return;
    std::string number;
    AppendNumber(number, GreyOf(NumberOf(operands_[0].getValue()), NumberOf(operands_[1].getValue()),
                                NumberOf(operands_[2].getValue())));
    write(number + number + number);
    operands_.erase(operands_.begin(), operands_.begin() + 3);
  }
  void WriteOperands() {
    for (const Token& operand : operands_) {
      writeToken(operand);
      write(" ");
    }
    operands_.clear();
  }

  std::vector<Token> operands_;
};

void TurnPictureIntoGreys(QPDFObjectHandle picture) {
  const std::shared_ptr<Buffer> colours = picture.getStreamData(qpdf_dl_all);
  const unsigned char* bytes = colours->getBuffer();
  std::string greys(colours->getSize() / 3, '\0');
  for (std::size_t index = 0; index < greys.size(); ++index) {
    const unsigned char* dot = bytes + 3 * index;
    greys[index] = static_cast<char>(static_cast<unsigned char>(GreyOf(dot[0], dot[1], dot[2]) + 0.5));
  }
  picture.getDict().replaceKey("/ColorSpace", QPDFObjectHandle::newName("/DeviceGray"));
  picture.getDict().removeKey("/DecodeParms");
  picture.replaceStreamData(greys, QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
}

// The two end colours of a gradient's step.
void TurnStepIntoGreys(QPDFObjectHandle step) {
  for (const char* key : {"/C0", "/C1"}) {
    QPDFObjectHandle ink = step.getKey(key);
    if (!ink.isArray() || ink.getArrayNItems() != 3) continue;
    const QPDFObjectHandle grey = QPDFObjectHandle::newReal(
        GreyOf(NumberOf(ink.getArrayItem(0).unparse()), NumberOf(ink.getArrayItem(1).unparse()),
               NumberOf(ink.getArrayItem(2).unparse())),
        4);
    step.replaceKey(key, QPDFObjectHandle::newArray({grey, grey, grey}));
  }
}

bool Has(QPDFObjectHandle dictionary, const char* key, const char* name) {
  QPDFObjectHandle value = dictionary.getKey(key);
  return value.isName() && value.getName() == name;
}

void TurnStreamIntoGreys(QPDFObjectHandle stream) {
  QPDFObjectHandle dictionary = stream.getDict();
  if (Has(dictionary, "/Subtype", "/Image")) {
    if (Has(dictionary, "/ColorSpace", "/DeviceRGB")) TurnPictureIntoGreys(stream);
  } else if (Has(dictionary, "/Subtype", "/Form") || dictionary.getKey("/PatternType").isInteger()) {
    stream.addTokenFilter(std::make_shared<GreyInks>());
  }
}

}  // namespace

void TurnIntoGreys(QPDF& pdf, const std::set<QPDFObjGen>& greyForms) {
  for (QPDFObjectHandle& object : pdf.getAllObjects()) {
    if (object.isStream() && !greyForms.contains(object.getObjGen())) TurnStreamIntoGreys(object);
    if (object.isDictionary() && object.getKey("/FunctionType").isInteger()) TurnStepIntoGreys(object);
  }
}

}  // namespace tarvis
