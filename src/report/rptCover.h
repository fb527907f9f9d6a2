// The cover letter: date, logo, addressee and sender, subject, salutation, a frame of twelve greeting lines.
#pragma once

#include <cstdint>
#include <string>

#include "report/report_context.h"
#include "run/print_run.h"

namespace tarvis {

// `addition` on a line of its own below `text`; an empty one of the two is left out.
std::string JoinLine(const std::string& text, const std::string& addition);

// The greatest length of a line, in bytes of the code page. An empty line ends the measuring.
int LongestLineBytes(const CodePage& page, std::string_view text);

class rptCover : public ActiveReport {
 public:
  explicit rptCover(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;
  void ActiveReport_ReportEnd() override;

 private:
  static constexpr CellStyle Letter{.Size = 10};
  static constexpr CellStyle Sender{.Size = 10, .WithinPaper = true};
  static constexpr CellStyle Subject{.Size = 12};
  static constexpr CellStyle SubjectCaption{.Size = 14, .Bold = true};

  void FillAddressee();
  void FillSender();
  void ShiftSender();
  void LoadLogo();

  PrintRun& Run;
  PictureLoader& Pictures;
  std::int16_t GreetingIndex = 0;  // rows printed so far
  std::string GreetingRest;        // what is not printed yet

  // Neighbouring sections close the frame: the lines of each reach past its end into the next.
  Section& ghWork = AddSection(SectionKind::GroupHeader, "ghWork", 0);
  Section& ghCover = AddSection(SectionKind::GroupHeader, "ghCover", 7350);
  Field& txtDate = ghCover.AddField("txtDate", {142, 142, 2834, 283}, Letter);
  Image& imgLogo = ghCover.AddImage("imgLogo", {6094, 142, 2835, 1275}, Fit::KeepTopRight);
  Field& txtUserAria = ghCover.AddField("txtUserAria", {142, 1559, 4110, 4819}, Letter);
  Field& txtDrowAria = ghCover.AddField("txtDrowAria", {4394, 1559, 4550, 4819}, Sender);
  Label& Label5 = ghCover.AddLabel("Label5", {142, 6378, 1417, 425}, "SUBJECT:", SubjectCaption);
  Field& txtUserTitle = ghCover.AddField("txtUserTitle", {1559, 6378, 6661, 283}, Subject);
  Line& Line1 = ghCover.AddLine("Line1", 142, 6803, 142, 7370);
  Line& Line2 = ghCover.AddLine("Line2", 142, 6803, 8929, 6803);
  Line& Line3 = ghCover.AddLine("Line3", 8929, 6803, 8929, 7370);
  Label& Label6 = ghCover.AddLabel("Label6", {283, 6945, 709, 283}, "Dear:", Letter);
  Field& txtUserDear = ghCover.AddField("txtUserDear", {992, 6945, 7370, 425}, Letter);

  Section& Detail = AddSection(SectionKind::Detail, "Detail", 285);
  Field& txtGreeting = Detail.AddField("txtGreeting", {709, 0, 7653, 283}, Letter);
  Line& Line4 = Detail.AddLine("Line4", 142, 0, 142, 425);
  Line& Line5 = Detail.AddLine("Line5", 8929, 0, 8929, 425);

  Section& GroupFooter1 = AddSection(SectionKind::GroupFooter, "GroupFooter1", 2355);
  Line& Line6 = GroupFooter1.AddLine("Line6", 142, 0, 142, 142);
  Line& Line7 = GroupFooter1.AddLine("Line7", 8929, 0, 8929, 142);
  Line& Line8 = GroupFooter1.AddLine("Line8", 142, 142, 8929, 142);
  Label& Label14 = GroupFooter1.AddLabel("Label14", {283, 709, 1418, 283}, "Sincerely yours,", Letter);
  Field& txtDrowName = GroupFooter1.AddField("txtDrowName", {283, 1559, 5103, 425}, Letter);
  Section& GroupFooter2 = AddSection(SectionKind::GroupFooter, "GroupFooter2", 0);
};

}  // namespace tarvis
