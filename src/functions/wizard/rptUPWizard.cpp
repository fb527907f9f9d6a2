#include "functions/wizard/rptUPWizard.h"

#include "report/picture_file.h"
#include "report/reading_line.h"
#include "text/file_name.h"

namespace tarvis {
namespace {

// Relay rows and output names are on one grid; the pictures are higher than its pitch and overlap.
constexpr float RowPitch = 330;

void Place(Control& control, const Rect& place) {
  control.Left = place.Left;
  control.Top = place.Top;
  control.Width = place.Width;
  control.Height = place.Height;
}

// Places a column of controls, each `pitch` twips below the one before.
template <typename Controls>
void PlaceColumn(const Controls& controls, Rect place, float pitch = RowPitch) {
  for (Control* control : controls) {
    Place(*control, place);
    place.Top += pitch;
  }
}

}  // namespace

rptUPWizard::rptUPWizard(ReportContext context)
    : FunctionReport("rptUPWizard", 10350, context, "Electrical Schematic Diagram", 690, Entry::Plain,
                     Keep::None) {
  Shape4.Weight = 2;
  Detail.Format = [this] { Detail_Format(); };
  OrderReading();
}

// Each relay with its number and its name, then each output; an output number belongs to two names.
void rptUPWizard::OrderReading() {
  std::size_t line = 0;
  for (std::size_t index = 0; index < Relays; ++index)
    ReadOnLine(++line, {imgRy[index], txtRyNumber[index], txtRyName[index]});
  for (std::size_t index = 0; index < OutNames; ++index) {
    ReadOnLine(++line, {txtOutName[index]});
    if (index % 2 == 0) ReadOnLine(line, {txtOutNumber[index / 2]});
  }
}

void rptUPWizard::ActiveReport_ReportStart() {
  FillRelays();
  FillOutNumbers();
  FillOutNames();
  FillServoName();
  FillControl();
  FillRatio();
  FillBase();
}

// Slots count from 1; the file's last relay, output number and output name are not printed.
void rptUPWizard::FillRelays() {
  const auto relay = [&](std::size_t index) -> const WizardRelay& {
    return Run.UPWizard.Ry[static_cast<int>(index) + 1];
  };
  for (std::size_t index = 0; index < Relays; ++index) txtRyName[index]->Text = relay(index).Name;
  for (std::size_t index = 0; index < Relays; ++index) txtRyNumber[index]->Text = relay(index).Number;
  for (std::size_t index = 0; index < Relays; ++index) {
    if (relay(index).Picture.empty()) continue;
    LoadWizardPicture(*imgRy[index], relay(index).Picture);
    imgRy[index]->AlternateText = FileNameOf(relay(index).Picture);
  }
}

void rptUPWizard::FillOutNumbers() {
  for (std::size_t index = 0; index < OutNumbers; ++index) {
    txtOutNumber[index]->Text = Run.UPWizard.OutNum[static_cast<int>(index) + 1].Text;
  }
}

void rptUPWizard::FillOutNames() {
  for (std::size_t index = 0; index < OutNames; ++index) {
    txtOutName[index]->Text = Run.UPWizard.OutStr[static_cast<int>(index) + 1].Text;
  }
}

void rptUPWizard::FillServoName() {
  txtServoName.Text = Run.Header.MechaInfo;
}

// Captions are the host's; an empty one prints empty.
void rptUPWizard::FillControl() {
  lblControl.SetCaption(Run.UPWizard.ControlCaption);
  txtControl.Text = Run.UPWizard.Control;
}

void rptUPWizard::FillRatio() {
  lblPGRatio.SetCaption(Run.UPWizard.RatioCaption);
  txtPGRatio.Text = Run.UPWizard.Ratio;
  txtPGRatioUnit.Text = Run.UPWizard.RatioUnit;
}

// No path is a missing picture here, unlike for a relay.
void rptUPWizard::FillBase() {
  LoadWizardPicture(imgBase, Run.UPWizard.Base);
  imgBase.AlternateText = Label1.Caption() + ": " + std::string(FileNameOf(Run.UPWizard.Base));
}

void rptUPWizard::LoadWizardPicture(Image& image, const std::string& path) {
  image.Picture = LoadPictureOrFail(path, Failure::ParameterWizardPictureNotFound);
}

void rptUPWizard::Detail_Format() {
  PlaceRelayPictures();
  PlaceRelayNumbers();
  PlaceRelayNames();
  PlaceOutNumbers();
  PlaceOutNames();
  PlaceServoName();
  PlaceControl();
  PlaceRatio();
}

void rptUPWizard::PlaceRelayPictures() {
  PlaceColumn(imgRy, {1260, 5280, 2700, 420});
}

void rptUPWizard::PlaceRelayNumbers() {
  PlaceColumn(txtRyNumber, {3695, 5390, 1000, 280});
}

void rptUPWizard::PlaceRelayNames() {
  PlaceColumn(txtRyName, {1800, 5300, 1800, 285});
}

void rptUPWizard::PlaceOutNumbers() {
  PlaceColumn(txtOutNumber, {4600, 5390, 1000, 280}, 2 * RowPitch);
}

void rptUPWizard::PlaceOutNames() {
  PlaceColumn(txtOutName, {5710, 5390, 4000, 280});
}

void rptUPWizard::PlaceServoName() {
  Place(txtServoName, {2710, 850, 3900, 430});
}

void rptUPWizard::PlaceControl() {
  Place(lblControl, {860, 8300, 1450, 285});
  Place(txtControl, {860, 8800, 6400, 285});
}

void rptUPWizard::PlaceRatio() {
  Place(lblPGRatio, {6960, 3400, 1600, 285});
  Place(txtPGRatio, {6960, 3685, 850, 285});
  Place(txtPGRatioUnit, {7810, 3685, 700, 285});
}

}  // namespace tarvis
