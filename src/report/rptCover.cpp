#include "report/rptCover.h"

#include <algorithm>
#include <cmath>

#include "printfiles/print_options_file.h"
#include "report/picture_file.h"
#include "text/date_text.h"
#include "text/file_name.h"
#include "text/text.h"

namespace tarvis {
namespace {

constexpr std::int16_t GreetingRows = 12;
constexpr std::size_t GreetingBytes = 84;
constexpr std::size_t NameBytes = 50;
constexpr std::size_t BlockBytes = 100;  // section and address of the addressee
constexpr std::size_t UserTitleBytes = 56;
// So many bytes fill the width of the sender block.
constexpr int FullLineBytes = 27;
constexpr const char* LineEnd = "\r\n";

// The caption goes on a line of its own, also below an empty text, and the value below it.
void AppendCaptioned(std::string& text, const char* caption, const std::string& value) {
  if (value.empty()) return;
  text += LineEnd;
  text += caption;
  text = JoinLine(text, value);
}

// SelectCover counts from 1; another number is an index out of range.
const AddresseeBlock& Addressee(PrintRun& run) {
  const PrintOptions& options = run.Options;
  const int index = options.SelectCover - 1;
  if (index < 0 || index >= static_cast<int>(options.User.size())) {
    throw RunTimeFailure("no such addressee", OptionPlace(run, options.SelectCover));
  }
  return options.User[static_cast<std::size_t>(index)];
}

}  // namespace

std::string JoinLine(const std::string& text, const std::string& addition) {
  if (addition.empty()) return text;
  if (text.empty()) return addition;
  return text + LineEnd + addition;
}

int LongestLineBytes(const CodePage& page, std::string_view text) {
  std::size_t longest = 0;
  for (std::string_view line = NextTextLine(text); !line.empty(); line = NextTextLine(text)) {
    longest = std::max(longest, page.ByteLength(line));
  }
  return static_cast<int>(longest);
}

rptCover::rptCover(ReportContext context)
    : ActiveReport("rptCover", 9000), Run(context.Run), Pictures(context.Pictures) {
  ghWork.Format = [this] {
    if (Run.Session.MasterReport != nullptr) Run.Session.MasterReport->TOC.Add("Cover");
  };
  Label5.SharesBaselineOf = &txtUserTitle;
  Label6.SharesBaselineOf = &txtUserDear;
}

void rptCover::ActiveReport_ReportStart() {
  GreetingIndex = 0;
  GreetingRest = Run.Options.Greeting;
  FillAddressee();
  if (Run.Session.ActiveHeader.PrintDate == 1) txtDate.Text = LongDateText(Run.Now());
  LoadLogo();
  FillSender();
  ShiftSender();
}

void rptCover::FillAddressee() {
  const AddresseeBlock& block = Addressee(Run);
  const auto left = [&](const std::string& text, std::size_t bytes) {
    return LeftBytes(Run.CodePage, text, bytes);
  };
  std::string text = left(block.Name, NameBytes);
  text = JoinLine(text, left(block.Sect, BlockBytes));
  text = JoinLine(text, left(block.Corp, NameBytes));
  AppendCaptioned(text, "address:", left(block.Adr, BlockBytes));
  txtUserAria.Text = text;
  txtDrowName.Text = left(Run.Options.DrowName, NameBytes);
  txtUserDear.Text = left(block.Name, NameBytes);
  txtUserTitle.Text = left(block.Title, UserTitleBytes);
}

// Nothing of it is cut, and the zip code is not printed. Unlike the addressee's, the sender's address begins
// no empty line above itself.
void rptCover::FillSender() {
  const PrintOptions& options = Run.Options;
  std::string text = JoinLine(JoinLine(options.DrowName, options.DrowSect), options.DrowCorp);
  if (!options.DrowAdr.empty()) text = JoinLine(JoinLine(text, "address:"), options.DrowAdr);
  AppendCaptioned(text, "FAX:", options.DrowFAX);
  AppendCaptioned(text, "TEL:", options.DrowTEL);
  AppendCaptioned(text, "E-mail:", options.DrowEmail);
  txtDrowAria.Text = text;
}

// Moves the sender block to the right as far as its longest line allows, but no further than two thirds.
void rptCover::ShiftSender() {
  const int bytes = LongestLineBytes(Run.CodePage, txtDrowAria.Text);
  float shift = 0;
  if (bytes < FullLineBytes) {
    shift = std::nearbyint(txtDrowAria.Width - txtDrowAria.Width / FullLineBytes * static_cast<float>(bytes));
  }
  const float limit = PrintWidth * 2 / 3;
  if (txtDrowAria.Left + shift > limit) shift = limit - txtDrowAria.Left;
  txtDrowAria.Left += shift;
}

void rptCover::LoadLogo() {
  const std::string& path = Run.Options.DrowLogo;
  if (path.empty()) return;
  imgLogo.Picture = LoadPictureOrFail({Run, Pictures}, Name, path, Failure::LogoNotFound);
  imgLogo.AlternateText = "Logo: " + std::string(FileNameOf(path));
}

// An overlong line goes on in the next row. What is left after the last row is not printed.
void rptCover::ActiveReport_FetchData(bool& endOfData) {
  if (GreetingIndex == GreetingRows) {
    endOfData = true;
    return;
  }
  std::string_view rest = GreetingRest;
  std::string line(NextTextLine(rest));
  std::string next(rest);
  if (Run.CodePage.ByteLength(line) > GreetingBytes) {
    const std::string bytes = Run.CodePage.FromUtf8(line);
    next = Run.CodePage.ToUtf8(std::string_view(bytes).substr(GreetingBytes)) + LineEnd + next;
    line = LeftBytes(Run.CodePage, line, GreetingBytes);
  }
  GreetingRest = next;
  txtGreeting.Text = line;
  ++GreetingIndex;
  endOfData = false;
}

void rptCover::ActiveReport_ReportEnd() {
  ++Run.Session.FinishedReports;
}

}  // namespace tarvis
