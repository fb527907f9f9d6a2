// Text as XML can hold it.
#pragma once

#include <QString>

namespace tarvis {

// One line in NFC. XML has no form for most control characters and for what is no character; a blank is in
// their place. Signs that XML uses itself are left as they are.
[[nodiscard]] QString XmlLine(const QString& text);

}  // namespace tarvis
