#include "report/cursor_table.h"

#include "report/cell_styles.h"

namespace tarvis {

CursorTable::CursorTable(Section& ghGuide, Section& detail, const CursorLayout& layout)
    : txtTitleName(ghGuide.AddField("txtTitleName", layout.TitleName, TitleCell, "Name/Unit")),
      txtTitleCurA(ghGuide.AddField("txtTitleCurA", layout.TitleCurA, TitleCell, "Cursor A")),
      txtTitleCurB(ghGuide.AddField("txtTitleCurB", layout.TitleCurB, TitleCell, "Cursor B")),
      txtTitleCurB_A(ghGuide.AddField("txtTitleCurB_A", layout.TitleCurB_A, TitleCell, "B-A")),
      txtValueName(detail.AddField("txtValueName", layout.ValueName, ValueCell)),
      txtValueCurA(detail.AddField("txtValueCurA", layout.ValueCurA, RightAlignedCell)),
      txtValueCurB(detail.AddField("txtValueCurB", layout.ValueCurB, RightAlignedCell)),
      txtValueCurB_A(detail.AddField("txtValueCurB_A", layout.ValueCurB_A, RightAlignedCell)) {}

void CursorTable::Show(const CursorRow& row) {
  txtValueName.Text = row.NameUnit;
  txtValueCurA.Text = row.ValueA;
  txtValueCurB.Text = row.ValueB;
  txtValueCurB_A.Text = row.ValueDiff;
}

}  // namespace tarvis
