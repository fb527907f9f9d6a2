#include "dialogs/EditCover.h"

#include <array>
#include <utility>

#include "dialogs/controls/focus_guard.h"
#include "dialogs/controls/help_context.h"
#include "dialogs/controls/input_limits.h"
#include "dialogs/controls/memo_box.h"
#include "dialogs/controls/path_box.h"
#include "run/print_run.h"

namespace tarvis {

enum class FieldLines { One, Several };

// Labels are placed at LabelLeft, at the height of their box.
struct EditCover::FieldPlan {
  int Index;
  const char* Caption;
  Rect Place;
  FieldLines Lines;
  int ByteLimit;   // also the maximum length in characters
  int EnterLimit;  // line breaks from which on Enter is ignored, -1 for never
};

namespace {

constexpr FittedDialog::Plan CoverPlan{.Width = 8505, .Height = 5400, .ButtonsTop = 4750};
constexpr float LabelLeft = 120;
constexpr float LabelWidth = 1350;
constexpr int AddressLines = 2;
constexpr int AddressWidth = 50;  // bytes
constexpr int GreetingLines = 11;
constexpr int GreetingWidth = 84;  // bytes
constexpr int GreetingLimit = GreetingLines * GreetingWidth;
constexpr auto OneLine = FieldLines::One;
constexpr auto SeveralLines = FieldLines::Several;
constexpr int NoLimit = 0;
constexpr int AnyEnter = -1;
constexpr int ZipCode = 3;  // index in its families

constexpr const char* LogoFilter =
    "All Images of |*.BMP;*.DIB;*.JPG;*.GIF;*.WMF;*.EMF;*.ICO;*.CUR|BMP Image (*.BMP)|*.BMP|DIB Image "
    "(*.DIB)|*.DIB|"
    "JPG Image (*.JPG)|*.JPG|GIF Image (*.GIF)|*.GIF|WMF Image (*.WMF)|*.WMF|EMF Image (*.EMF)|*.EMF|"
    "ICO Image (*.ICO)|*.ICO|CUR Image (*.CUR)|*.CUR";

constexpr const char* GreetingHint =
    "Input the Greeting Sentences.\n"
    "Up to 84 characters can be inputted in one line and up to 11 lines can be accepted. ";

}  // namespace

EditCover::EditCover(PrintRun& run, QWidget* parent, EditCoverServices services)
    : FittedDialog("EditCover", "Cover", CoverPlan, parent), run_(run), services_(std::move(services)) {
  setModal(true);
  tabs_ = new TabControl({120, 120, 8265, 4590}, Upper());
  BuildSubmitterTab();
  for (int block = 0; block < 3; ++block) BuildAddresseeTab(block);
  BuildGreetingTab();
  BuildButtons();
  Load();
  guard_ = new FocusGuard(
      *this, [this](const QWidget& left, const QWidget& entered) { return RefuseToLeave(left, entered); });
}

// The focus moves once more while the controls are deleted; that must neither be refused nor start reading a
// picture.
EditCover::~EditCover() {
  logo_->disconnect(this);
  delete guard_;
}

// The order of the boxes is not the order of the keys in the file.
void EditCover::BuildSubmitterTab() {
  static constexpr std::array<FieldPlan, 8> Plans{{
      {0, "Co&mpany Name:", {1500, 555, 4600, 315}, OneLine, 50, AnyEnter},
      {1, "&Department Name:", {1500, 930, 4600, 540}, SeveralLines, 100, 1},
      {2, "&Name:", {1500, 1590, 4600, 315}, OneLine, 50, AnyEnter},
      {3, "&Zip Code:", {1500, 2070, 4600, 315}, OneLine, 50, AnyEnter},
      {4, "&Address:", {1500, 1950, 4600, 540}, SeveralLines, 100, 1},
      {5, "&TEL:", {1500, 2550, 4600, 315}, OneLine, 50, AnyEnter},
      {6, "&FAX:", {1500, 2910, 4600, 315}, OneLine, 50, AnyEnter},
      {7, "&e-mail:", {1500, 3270, 4600, 315}, OneLine, 50, AnyEnter},
  }};
  PrintOptions& options = run_.Options;
  const std::array<std::string*, Plans.size()> texts{&options.DrowCorp, &options.DrowSect, &options.DrowName,
                                                     &options.DrowZip,  &options.DrowAdr,  &options.DrowTEL,
                                                     &options.DrowFAX,  &options.DrowEmail};
  QWidget* tab = tabs_->AddTab("&Submitter");
  for (std::size_t i = 0; i < Plans.size(); ++i) AddField(Plans[i], "txtDrow", "Label1", 0, *texts[i]);
  // The zip code is never seen, but loaded, checked and stored like the others.
  for (const char* family : {"txtDrow", "Label1"})
    tab->findChild<QWidget*>(QString::fromLatin1("%1_%2").arg(QLatin1String(family)).arg(ZipCode))->hide();
  BuildLogo(tab);
  SetReadingOrder(*tab);
}

void EditCover::BuildLogo(QWidget* tab) {
  QLabel* label = MakeLabel(
      "Label1", 8, "&Place to store for the logo files + File name:", {LabelLeft, 3735, 3600, 210}, tab);
  logo_ = new PathBox("txtDrow", 8, "Place to store for the logo files + File name:", NoLimit,
                      {1165, 4005, 4935, 315}, tab);
  label->setBuddy(logo_);
  fields_.push_back({logo_, logo_, 0, &run_.Options.DrowLogo, NoLimit, NoLimit, NoLimit});
  QPushButton* choose = MakeButton("cmdConpare", "&Reference ", {6345, 4005, 915, 345}, tab);
  choose->setAutoDefault(false);
  connect(choose, &QPushButton::clicked, this, &EditCover::ChooseLogo);
  preview_ = new LogoPreview({6345, 2550, 1800, 1350}, services_.Read, tab);
  connect(logo_, &PathBox::textChanged, preview_, &LogoPreview::Forget);
  connect(logo_, &PathBox::editingFinished, this, &EditCover::ShowLogo);
  connect(logo_, &PathBox::FileDropped, this, &EditCover::ShowLogo);
}

void EditCover::BuildAddresseeTab(int block) {
  static constexpr std::array<FieldPlan, 5> Plans{{
      {0, "T&itle", {1500, 705, 5145, 315}, OneLine, 56, AnyEnter},
      {1, "Co&mpany Name:", {1500, 1245, 4600, 315}, OneLine, 50, AnyEnter},
      {2, "&Department Name:", {1500, 1785, 4600, 540}, SeveralLines, 100, 1},
      {3, "&Name:", {1500, 2565, 4600, 315}, OneLine, 50, AnyEnter},
      {4, "&Address:", {1500, 3150, 4600, 540}, SeveralLines, 100, AnyEnter},
  }};
  static constexpr std::array Tabs{"Where to Submit (No.&1)", "Where to Submit (No.&2)",
                                   "Where to Submit (No.&3)"};
  static constexpr std::array Families{"txtUser1", "txtUser2", "txtUser3"};
  static constexpr std::array LabelFamilies{"Label2", "Label3", "Label4"};
  const auto at = static_cast<std::size_t>(block);
  AddresseeBlock& texts = run_.Options.User.at(at);
  const std::array<std::string*, Plans.size()> stored{&texts.Title, &texts.Corp, &texts.Sect, &texts.Name,
                                                      &texts.Adr};
  QWidget* tab = tabs_->AddTab(Tabs.at(at));
  for (std::size_t i = 0; i < Plans.size(); ++i) {
    AddField(Plans[i], Families.at(at), LabelFamilies.at(at), block + 1, *stored[i]);
  }
  SetReadingOrder(*tab);
}

void EditCover::AddField(const FieldPlan& plan, const char* family, const char* labelFamily, int tab,
                         std::string& stored) {
  QWidget* page = tabs_->Page(tab);
  QLabel* label = MakeLabel(labelFamily, plan.Index, plan.Caption,
                            {LabelLeft, plan.Place.Top, LabelWidth, plan.Place.Height}, page,
                            plan.Lines == SeveralLines ? LabelLines::Wrapped : LabelLines::One);
  const std::string name = label->accessibleName().toStdString();
  if (plan.Lines == SeveralLines) {
    auto* box = new MemoBox(family, plan.Index, name.c_str(), plan.ByteLimit, plan.Place, page);
    box->LimitEnterKey(plan.EnterLimit);
    label->setBuddy(box);
    fields_.push_back({box, box, tab, &stored, plan.ByteLimit, AddressLines, AddressWidth});
  } else {
    auto* box = new LineBox(family, plan.Index, name.c_str(), plan.ByteLimit, plan.Place, page);
    label->setBuddy(box);
    fields_.push_back({box, box, tab, &stored, plan.ByteLimit, NoLimit, NoLimit});
  }
}

void EditCover::BuildGreetingTab() {
  QWidget* tab = tabs_->AddTab("&Greeting Sentences");
  lblGreeting_ = MakeLabel("lblGreeting", NoFamily, "", {315, 675, 5775, 825}, tab, LabelLines::Wrapped);
  auto* box =
      new MemoBox("txtGreeting", NoFamily, "Greeting Sentences", GreetingLimit, {135, 1440, 7700, 2100}, tab);
  box->LimitEnterKey(GreetingLines - 1);
  fields_.push_back({box, box, 4, &run_.Options.Greeting, GreetingLimit, GreetingLines, GreetingWidth});
}

void EditCover::BuildButtons() {
  cmdOK_ = AddButton("cmdOK", "&OK", {2340, 4890, 1455, 375});
  cmdOK_->setDefault(true);
  cmdCancel_ = AddButton("cmdCancel", "&Cancel", {4515, 4890, 1455, 375});
  connect(cmdOK_, &QPushButton::clicked, this, &EditCover::OkClicked);
  connect(cmdCancel_, &QPushButton::clicked, this, &EditCover::reject);
}

void EditCover::Load() {
  SetHelpContext(*this, run_.Session.HelpContextId);
  for (const Field& field : fields_) field.Box->SetText(*field.Stored);
  lblGreeting_->setText(QString::fromLatin1(GreetingHint));
  ShowLogo();
}

// Lines are checked only if the bytes have passed, so that one field causes at most one message.
bool EditCover::Check(const Field& field) {
  if (field.ByteLimit == NoLimit) return true;
  if (!CheckByteLimit(run_, field.ByteLimit, *field.Box)) return false;
  return field.MaxLines == NoLimit || CheckLineLimit(run_, field.MaxLines, field.LineWidth, *field.Box);
}

bool EditCover::RefuseToLeave(const QWidget& left, const QWidget& entered) {
  if (&entered == cmdCancel_) return false;
  for (const Field& field : fields_) {
    if (field.Control != &left) continue;
    if (Check(field)) return false;
    tabs_->SetCurrentTab(field.Tab);
    field.Box->GiveFocus();
    return true;
  }
  return false;
}

// All or nothing: a field that fails leaves all options as they were.
void EditCover::OkClicked() {
  if (!guard_->Enter(*cmdOK_)) return;
  for (const Field& field : fields_) {
    if (Check(field)) continue;
    tabs_->SetCurrentTab(field.Tab);
    field.Box->GiveFocus();
    return;
  }
  for (const Field& field : fields_) *field.Stored = field.Box->Text();
  accept();
}

void EditCover::ChooseLogo() {
  const QString file = services_.Choose(this, QString::fromLatin1(LogoFilter), logo_->Text());
  if (file.isEmpty()) return;
  logo_->TypeOver(file);
  ShowLogo();
}

void EditCover::ShowLogo() {
  preview_->ShowFile(logo_->Text());
}

}  // namespace tarvis
