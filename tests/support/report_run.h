// A run with everything around it faked, ready to compose reports in a test.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "functions/catalog.h"
#include "report/engine/composer.h"
#include "report/rptBaseHeader.h"
#include "report/rptTarvis.h"
#include "support/arial_measurer.h"
#include "support/fake_pictures.h"
#include "support/fake_windows.h"
#include "support/test_run.h"

namespace tarvis {

// A4 paper with the margins of the master report.
struct ReportRun : TestRun {
  ReportRun() {
    Run.Header.FileSpec = 3;
    Run.Session.ShowPrmName = Run.Session.ShowPrmUnit = Run.Session.ShowPrmDefault =
        Run.Session.ShowPrmSwitches = 1;
  }

  ReportContext Context() { return {Run, Pictures}; }

  // One function report alone, on paper whose body is `bodyHeight` twips high and that has no margins.
  Document ComposeAlone(const std::string& name, float bodyHeight = 14918) {
    const auto report = CreateFunctionReport(name, Context());
    Run.Session.MasterReport = report.get();
    return Compose(*report, {10000, bodyHeight, 0, 0, 0, 0}, ArialMeasurer());
  }

  // One function report below the common header, with the margins and the footer of the master report taken
  // off the height of the body.
  Document ComposeUnderHeader(const std::string& name, float bodyHeight = 14918) {
    Run.Session.ModuleNames.Resize(0);
    Run.Session.ModuleNames[0] = name;
    Run.Session.ModuleLast = 0;
    rptBaseHeader report(Context(), CreateFunctionReport);
    Run.Session.MasterReport = &report;
    return Compose(report, {10000, bodyHeight, 0, 0, 0, 0}, ArialMeasurer());
  }

  // The whole document of the function in `Mode`, from the data files in the temporary folder.
  Document ComposeMaster(const PageSetup& setup = {}) {
    SelectHeaderOptions(Run, AllFunctions());
    Master = std::make_unique<rptTarvis>(Context(), AllFunctions(), CreateFunctionReport, Windows);
    Run.Session.MasterReport = Master.get();
    return Compose(*Master, setup, ArialMeasurer());
  }

  FakePictureLoader Pictures;
  FakeWindows Windows;
  std::unique_ptr<rptTarvis> Master;
};

// The items of one control: "left,top widthxheight" of its box if it has one, and its texts.
struct Printed {
  Rect Box;
  std::vector<std::string> Texts;
};

inline std::vector<Printed> PrintedOf(const Document& document, const std::string& control) {
  std::vector<Printed> printed;
  std::uint32_t band = 0;
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != control) continue;
    if (printed.empty() || item.Band != band) printed.emplace_back();
    band = item.Band;
    if (item.Kind == ItemKind::Text) {
      printed.back().Texts.emplace_back(document.Texts[item.Source].Text);
    } else {
      printed.back().Box = item.Box;
    }
  }
  return printed;
}

// The first line of that control in each row; "" where it prints none.
using Texts = std::vector<std::string>;
inline Texts ColumnOf(const Document& document, const std::string& control) {
  Texts texts;
  for (const Printed& printed : PrintedOf(document, control)) {
    texts.push_back(printed.Texts.empty() ? "" : printed.Texts[0]);
  }
  return texts;
}

}  // namespace tarvis
