// A column of a table by the names of its controls: the title in the guide, and the value in each row.
#pragma once

namespace tarvis {

// Left edge and width are in twips.
struct NamedColumn {
  const char* TitleControl;
  const char* Title;
  const char* ValueControl;
  float Left;
  float Width;
};

}  // namespace tarvis
