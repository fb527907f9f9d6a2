// The electrical schematic diagram of the parameter wizard: one page of pictures and texts at fixed places.
#pragma once

#include <array>
#include <string>

#include "report/function_report.h"

namespace tarvis {

class rptUPWizard : public FunctionReport {
 public:
  explicit rptUPWizard(ReportContext context);

  void ActiveReport_ReportStart() override;

 private:
  static constexpr std::size_t Relays = 7;
  static constexpr std::size_t OutNumbers = 3;
  static constexpr std::size_t OutNames = 6;
  static constexpr CellStyle ServoName{.Size = 10, .Alignment = Align::Centre};

  void OrderReading();
  void FillRelays();
  void FillOutNumbers();
  void FillOutNames();
  void FillServoName();
  void FillControl();
  void FillRatio();
  void FillBase();
  void LoadWizardPicture(Image& image, const std::string& path);

  void Detail_Format();
  void PlaceRelayPictures();
  void PlaceRelayNumbers();
  void PlaceRelayNames();
  void PlaceOutNumbers();
  void PlaceOutNames();
  void PlaceServoName();
  void PlaceControl();
  void PlaceRatio();

  // From back to front: the pictures, each over the one below it on the page, the frames, the texts. What has
  // no place here gets it in Detail_Format.
  Section& Detail = AddGrowing(SectionKind::Detail, "Detail", 9990);
  Image& imgBase = Detail.AddImage("imgBase", {705, 765, 7650, 7365}, Fit::Fill);
  Image& imgRy7 = Detail.AddImage("imgRy7", {}, Fit::Fill);
  Image& imgRy6 = Detail.AddImage("imgRy6", {}, Fit::Fill);
  Image& imgRy5 = Detail.AddImage("imgRy5", {}, Fit::Fill);
  Image& imgRy4 = Detail.AddImage("imgRy4", {}, Fit::Fill);
  Image& imgRy3 = Detail.AddImage("imgRy3", {}, Fit::Fill);
  Image& ImgRy2 = Detail.AddImage("ImgRy2", {}, Fit::Fill);
  Image& imgRy1 = Detail.AddImage("imgRy1", {}, Fit::Fill);
  const std::array<Image*, Relays> imgRy{&imgRy1, &ImgRy2, &imgRy3, &imgRy4, &imgRy5, &imgRy6, &imgRy7};

  Shape& Shape4 = Detail.AddShape("Shape4", {142, 425, 8787, 9213});
  Shape& Shape2 = Detail.AddShape("Shape2", {709, 8220, 1842, 426});
  Shape& Shape3 = Detail.AddShape("Shape3", {709, 8646, 6661, 567});
  Shape& Shape1 = Detail.AddShape("Shape1", {6803, 3260, 1701, 850}, White);

  Field& txtServoName = Detail.AddField("txtServoName", {}, ServoName, "KRDX-Q7TN");
  Label& lblControl = Detail.AddLabel("lblControl", {}, "Control Method");
  Field& txtControl = Detail.AddField("txtControl", {});
  Label& lblPGRatio = Detail.AddLabel("lblPGRatio", {}, "Encoder Dividing Ratio");
  Field& txtPGRatio = Detail.AddField("txtPGRatio", {}, RightAlignedText);
  Field& txtPGRatioUnit = Detail.AddField("txtPGRatioUnit", {}, {}, "[P/R]");
  const std::array<Field*, Relays> txtRyNumber{
      &Detail.AddField("txtRyNumber1", {}), &Detail.AddField("txtRyNumber2", {}),
      &Detail.AddField("txtRyNumber3", {}), &Detail.AddField("txtRyNumber4", {}),
      &Detail.AddField("txtRyNumber5", {}), &Detail.AddField("txtRyNumber6", {}),
      &Detail.AddField("txtRyNumber7", {})};
  const std::array<Field*, Relays> txtRyName{&Detail.AddField("txtRyName1", {}, RightAlignedText),
                                             &Detail.AddField("txtRyName2", {}, RightAlignedText),
                                             &Detail.AddField("txtRyName3", {}, RightAlignedText),
                                             &Detail.AddField("txtRyName4", {}, RightAlignedText),
                                             &Detail.AddField("txtRyName5", {}, RightAlignedText),
                                             &Detail.AddField("txtRyName6", {}, RightAlignedText),
                                             &Detail.AddField("txtRyName7", {}, RightAlignedText)};
  const std::array<Field*, OutNumbers> txtOutNumber{&Detail.AddField("txtOutNumber1", {}, RightAlignedText),
                                                    &Detail.AddField("txtOutNumber2", {}, RightAlignedText),
                                                    &Detail.AddField("txtOutNumber3", {}, RightAlignedText)};
  const std::array<Field*, OutNames> txtOutName{
      &Detail.AddField("txtOutName1", {}), &Detail.AddField("txtOutName2", {}),
      &Detail.AddField("txtOutName3", {}), &Detail.AddField("txtOutName4", {}),
      &Detail.AddField("txtOutName5", {}), &Detail.AddField("txtOutName6", {})};

  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
