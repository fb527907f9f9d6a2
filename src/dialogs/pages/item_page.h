// What all item pages share: the tab control, the tab "Header && Footer", and the load when a page appears.
#pragma once

#include <QWidget>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <type_traits>
#include <vector>

#include "dialogs/controls/controls.h"
#include "dialogs/controls/tab_control.h"
#include "dialogs/controls/text_box.h"
#include "run/print_options.h"
#include "session/function_list.h"

namespace tarvis {

struct PrintRun;

// The first tab of a page, and the captions of the others.
struct PageFrame {
  const char* Name;
  PageId Page;
  const char* Title;  // initial text of the title box, and the accessible name of the page
  std::initializer_list<const char*> OtherTabs;
};

struct ItemLabel {
  const char* Name;
  const char* Caption;
  Rect Place;
};

using HeaderElement = std::int16_t HeaderOptions::*;

// An element of whichever option key a page edits.
struct ElementNumber {
  template <typename Element, std::enable_if_t<std::is_enum_v<Element>, int> = 0>
  constexpr ElementNumber(Element element) : Value(static_cast<int>(element)) {}

  int Value;  // counted from 1
};

// A check box of printing items and the element of the option key that it drives.
struct ItemBox {
  const char* Name;
  int Index;  // NoFamily for a single box
  const char* Caption;
  ElementNumber Element;
  Rect Place;
};

// A box on its tab with its element.
struct BoundBox {
  const char* Name;
  int Index;
  TickBox* Box;
  std::int16_t* Element;
};

// The box of that name, which must be among `boxes`.
TickBox& BoxNamed(std::span<const BoundBox> boxes, const char* name, int index = NoFamily);

inline constexpr const char* PrintingItemsTab = "&Printing Items";

// Holds no state of its own: every click and change writes through to the options of the run. It is hidden
// until the dialog shows it.
class ItemPage : public QWidget {
  Q_OBJECT

 public:
  // The load handling: applies the options to the controls. To be called each time the page becomes visible.
  // A title above its limit raises its message; an element that no check box can hold throws RunTimeFailure.
  void Load();

  TabControl& Tabs() const { return *tabs_; }

  // To be called when the focus has moved from `control` of this page to another control of the dialog.
  virtual void ControlLeft(const QWidget& /*control*/) {}
  // Whether what the user has typed lets him leave the page.
  [[nodiscard]] virtual bool MayLeave() const { return true; }
  // Moves the focus back to the fault and shows a message. To be called on a page that the user may not
  // leave.
  virtual void ReturnToFault() {}

 protected:
  ItemPage(PrintRun& run, const PageFrame& frame, QWidget* parent);

  // Between help context and header options; the printing items.
  virtual void ResetTab() {}
  virtual void LoadItems() = 0;

  PrintRun& Run() const { return run_; }
  HeaderOptions& Header() const { return header_; }
  // The box of an element of the header options.
  TickBox& HeaderBox(HeaderElement element) const;

  void AddLabels(QWidget* tab, std::initializer_list<ItemLabel> labels);
  // The boxes in the order given, each writing through to its element of `elements` on a click. Starts
  // checked.
  std::vector<BoundBox> AddBoxes(QWidget* tab, std::initializer_list<ItemBox> boxes,
                                 std::span<std::int16_t> elements);
  // The second tab of a page whose only printing item is its comments.
  std::vector<BoundBox> AddComments(std::int16_t& element);
  // Applies the elements to boxes made by AddBoxes, in their order.
  void LoadBoxes(const std::vector<BoundBox>& boxes);
  // Applies an element of the options to its box. A value that no box can show is a RunTimeFailure with its
  // place in the options file.
  void Show(TickBox& box, const std::int16_t& element);

 private:
  void BuildFirstTab(const PageFrame& frame);
  void AddHeaderBoxes(QWidget* tab);
  void AddTitleBox(QWidget* tab);
  void TitleChanged();

  PrintRun& run_;
  PageId page_;
  HeaderOptions& header_;
  TabControl* tabs_ = nullptr;
  std::vector<TickBox*> chkHeader_;
  LineBox* txtTitle_ = nullptr;
  TickBox* chkFooter_ = nullptr;
};

}  // namespace tarvis
