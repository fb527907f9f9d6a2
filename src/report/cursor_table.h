// The table of cursor values below a graph: name and unit, cursor A, cursor B and their difference.
#pragma once

#include "report/engine/section.h"
#include "run/trace_data.h"

namespace tarvis {

// In twips, titles relative to the guide, values relative to the row.
struct CursorLayout {
  Rect TitleName;
  Rect TitleCurA;
  Rect TitleCurB;
  Rect TitleCurB_A;
  Rect ValueName;
  Rect ValueCurA;
  Rect ValueCurB;
  Rect ValueCurB_A;
};

// Fields in the report's own guide and row sections.
struct CursorTable {
  CursorTable(Section& ghGuide, Section& detail, const CursorLayout& layout);

  void Show(const CursorRow& row);

  Field& txtTitleName;
  Field& txtTitleCurA;
  Field& txtTitleCurB;
  Field& txtTitleCurB_A;
  Field& txtValueName;
  Field& txtValueCurA;
  Field& txtValueCurB;
  Field& txtValueCurB_A;
};

}  // namespace tarvis
