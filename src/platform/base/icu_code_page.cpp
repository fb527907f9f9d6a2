#include "platform/base/icu_code_page.h"

#include <unicode/ucnv.h>

#include <stdexcept>

namespace tarvis {
namespace {

void Expect(UErrorCode error) {
  if (U_FAILURE(error))
    throw std::runtime_error(std::string("code page conversion failed: ") + u_errorName(error));
}

class IcuConversion : public CodePageConversion {
 public:
  explicit IcuConversion(UConverter* converter) : converter_(converter, ucnv_close) {
    // It also makes half a character the usual replacement, where some converters have a control character.
    ucnv_setSubstChars(converter, "?", 1, &opened_);
    ucnv_setFromUCallBack(converter, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &opened_);
  }

  std::u16string Decode(std::string_view bytes) const override {
    std::u16string units(bytes.size() * 2, u'\0');
    UErrorCode error = opened_;
    const std::int32_t length =
        ucnv_toUChars(converter_.get(), units.data(), static_cast<std::int32_t>(units.size()), bytes.data(),
                      static_cast<std::int32_t>(bytes.size()), &error);
    Expect(error);
    units.resize(static_cast<std::size_t>(length));
    return units;
  }

  std::optional<std::string> Encode(std::u16string_view units) const override {
    std::string bytes(static_cast<std::size_t>(
                          UCNV_GET_MAX_BYTES_FOR_STRING(units.size(), ucnv_getMaxCharSize(converter_.get()))),
                      '\0');
    UErrorCode error = opened_;
    const std::int32_t length =
        ucnv_fromUChars(converter_.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()), units.data(),
                        static_cast<std::int32_t>(units.size()), &error);
    if (error == U_INVALID_CHAR_FOUND) return std::nullopt;
    Expect(error);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
  }

 private:
  std::unique_ptr<UConverter, decltype(&ucnv_close)> converter_;
  UErrorCode opened_ = U_ZERO_ERROR;  // an encoding that has no "?" as one byte can be opened and not used
};

}  // namespace

std::unique_ptr<CodePageConversion> OpenIcuCodePage(int number) {
  UErrorCode error = U_ZERO_ERROR;
  UConverter* const converter = ucnv_open(("windows-" + std::to_string(number)).c_str(), &error);
  if (U_FAILURE(error)) return nullptr;
  return std::make_unique<IcuConversion>(converter);
}

}  // namespace tarvis
