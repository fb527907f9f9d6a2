// The parts of PNG files.
#pragma once

#include <QByteArray>

#include "pictures/byte_reader.h"

namespace tarvis {

// A PNG file without the chunks that nobody sees. Texts among them are packed: of a file of 400 KB they can
// take gigabytes once it is read. Any other file comes back as it is; the result may refer to `file`.
QByteArray ShownChunks(Bytes file);

}  // namespace tarvis
