#include "dialogs/pages/item_page.h"

#include <QFrame>
#include <algorithm>
#include <array>
#include <cassert>
#include <string_view>

#include "dialogs/controls/help_context.h"
#include "dialogs/controls/input_limits.h"
#include "printfiles/print_options_file.h"
#include "run/print_run.h"
#include "session/page_options.h"
#include "session/title_limit.h"

namespace tarvis {

namespace {

constexpr Rect PageBounds{180, 840, 5055, 3050};
constexpr Rect TabBounds{0, 0, 4935, 3015};
constexpr float RuleGap = 90;  // twips between a heading and its rule, and between rule and tab edge

// Of the option keys of the tables.
enum class OnlyElement { Comments = 1 };

struct HeaderBoxPlan {
  const char* Caption;
  HeaderElement Element;
  Rect Place;
};

// The title's text box lies on the end of the first box.
constexpr std::array<HeaderBoxPlan, 4> HeaderBoxes{{
    {"&Title", &HeaderOptions::Title, {330, 660, 1215, 255}},
    {"&Models Info", &HeaderOptions::ModelsInfo, {330, 1020, 1215, 255}},
    {"Printing &Date", &HeaderOptions::PrintDate, {330, 1380, 1215, 255}},
    {"&File Name", &HeaderOptions::FileName, {330, 1710, 1215, 255}},
}};

// The decoration to the right of a heading.
void AddRule(const QLabel& heading) {
  auto* rule = new QFrame(heading.parentWidget());
  rule->setFrameShape(QFrame::HLine);
  rule->setFrameShadow(QFrame::Sunken);
  const int left = heading.geometry().right() + Pixels(RuleGap, heading);
  const int right = Pixels(TabBounds.Width - RuleGap, heading);
  rule->setGeometry(left, heading.geometry().center().y(), right - left, 2);
}

}  // namespace

TickBox& BoxNamed(std::span<const BoundBox> boxes, const char* name, int index) {
  const auto found = std::find_if(boxes.begin(), boxes.end(), [&](const BoundBox& box) {
    return box.Index == index && std::string_view(box.Name) == name;
  });
  assert(found != boxes.end());
  return *found->Box;
}

ItemPage::ItemPage(PrintRun& run, const PageFrame& frame, QWidget* parent)
    : QWidget(parent), run_(run), page_(frame.Page), header_(HeaderOf(run.Options, frame.Page)) {
  NameControl(*this, frame.Name, NoFamily, QString::fromLatin1(frame.Title));
  Place(*this, PageBounds);
  hide();
  tabs_ = new TabControl(TabBounds, this);
  BuildFirstTab(frame);
  for (const char* caption : frame.OtherTabs) tabs_->AddTab(caption);
}

void ItemPage::BuildFirstTab(const PageFrame& frame) {
  QWidget* tab = tabs_->AddTab("&Header && Footer");
  AddLabels(tab, {{"Label2", "Header Info", {150, 390, 835, 180}},
                  {"Label3", "Footer Info", {150, 2220, 780, 180}}});
  AddHeaderBoxes(tab);
  txtTitle_->setText(QString::fromLatin1(frame.Title));
  chkFooter_ = new TickBox("chkFooter", NoFamily, "Pa&ges", {330, 2460, 1215, 255}, tab);
  chkFooter_->SetValue(1);
  connect(txtTitle_, &LineBox::textChanged, this, &ItemPage::TitleChanged);
  connect(chkFooter_, &TickBox::ValueChanged, this, [this] { header_.Pages = chkFooter_->Value(); });
}

void ItemPage::AddHeaderBoxes(QWidget* tab) {
  for (const HeaderBoxPlan& plan : HeaderBoxes) {
    auto* box = new TickBox("chkHeader", static_cast<int>(chkHeader_.size()), plan.Caption, plan.Place, tab);
    box->SetValue(1);
    connect(box, &TickBox::ValueChanged, this, [this, box, &plan] { header_.*plan.Element = box->Value(); });
    chkHeader_.push_back(box);
    if (plan.Element == &HeaderOptions::Title) AddTitleBox(tab);
  }
}

void ItemPage::AddTitleBox(QWidget* tab) {
  txtTitle_ = new LineBox("txtTitle", NoFamily, "Title text", TitleLimit, {1305, 660, 3330, 315}, tab);
  const TickBox& title = HeaderBox(&HeaderOptions::Title);
  connect(&title, &TickBox::ValueChanged, this, [this, &title] { txtTitle_->setEnabled(title.IsOn()); });
}

TickBox& ItemPage::HeaderBox(HeaderElement element) const {
  const auto plan = std::find_if(HeaderBoxes.begin(), HeaderBoxes.end(),
                                 [&](const HeaderBoxPlan& box) { return box.Element == element; });
  return *chkHeader_.at(static_cast<std::size_t>(plan - HeaderBoxes.begin()));
}

// A text above the limit is cut and written back, which calls this again: the nested call stores the title.
void ItemPage::TitleChanged() {
  if (TrimToByteLimit(run_, TitleLimit, *txtTitle_)) header_.TitleText = txtTitle_->Text();
}

void ItemPage::Load() {
  SetHelpContext(*tabs_, run_.Session.HelpContextId);
  ResetTab();
  for (const HeaderBoxPlan& plan : HeaderBoxes) {
    Show(HeaderBox(plan.Element), header_.*plan.Element);
    if (plan.Element == &HeaderOptions::Title) txtTitle_->SetText(header_.TitleText);
  }
  Show(*chkFooter_, header_.Pages);
  // A file that can't be read is reported when it is printed; until then its boxes are grey.
  static_cast<void>(LoadOverlap(run_, page_));
  LoadItems();
}

void ItemPage::AddLabels(QWidget* tab, std::initializer_list<ItemLabel> labels) {
  for (const ItemLabel& label : labels)
    AddRule(*MakeLabel(label.Name, NoFamily, label.Caption, label.Place, tab));
}

std::vector<BoundBox> ItemPage::AddBoxes(QWidget* tab, std::initializer_list<ItemBox> boxes,
                                         std::span<std::int16_t> elements) {
  std::vector<BoundBox> made;
  for (const ItemBox& plan : boxes) {
    auto* box = new TickBox(plan.Name, plan.Index, plan.Caption, plan.Place, tab);
    std::int16_t& element = elements[static_cast<std::size_t>(plan.Element.Value - 1)];
    box->SetValue(1);
    connect(box, &TickBox::ValueChanged, this, [box, &element] { element = box->Value(); });
    made.push_back({plan.Name, plan.Index, box, &element});
  }
  SetReadingOrder(*tab);
  return made;
}

std::vector<BoundBox> ItemPage::AddComments(std::int16_t& element) {
  QWidget* tab = tabs_->Page(1);
  AddLabels(tab, {{"Label1", "Others", {150, 600, 495, 210}}});
  return AddBoxes(tab, {{"chkItemEtc", NoFamily, "Comment&s", OnlyElement::Comments, {330, 840, 1485, 255}}},
                  {&element, 1});
}

void ItemPage::LoadBoxes(const std::vector<BoundBox>& boxes) {
  for (const BoundBox& bound : boxes) Show(*bound.Box, *bound.Element);
}

void ItemPage::Show(TickBox& box, const std::int16_t& element) {
  try {
    box.SetValue(element);
  } catch (const RunTimeFailure& failure) {
    throw failure.AtKey(OptionPlace(run_, element));
  }
}

}  // namespace tarvis
