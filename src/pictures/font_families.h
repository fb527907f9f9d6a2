// Which fonts have the characters of a code page, in the letter forms of its readers. Chinese, Japanese and
// Korean share their ideographs but write them in different forms, so the desktop's own choice may be another
// language's.
#pragma once

#include <QStringList>

namespace tarvis {

// Families for what Arial doesn't have, best first; those that are not installed are passed over. None for a
// code page whose script is that of many languages: there the desktop chooses by script.
QStringList FamiliesOf(int codePage);

}  // namespace tarvis
