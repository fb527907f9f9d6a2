#include "preview/window/commands.h"

#include <array>

#include "report/engine/active_report.h"

namespace tarvis {
namespace {

using enum Command;
constexpr auto Bar = Shown::Toolbar;
constexpr auto Menu = Shown::MenuOnly;
constexpr auto Push = ActionKind::Push;
constexpr auto Toggle = ActionKind::Toggle;
constexpr auto First = InGroup::First;
constexpr auto Next = InGroup::Next;

// Icons are outlines on a square of 16: M x y moves, L x y draws, Z closes, R x y w h is a rectangle,
// O x y w h an ellipse.
constexpr std::array<CommandEntry, 31> Table{{
    {Print, "print", "&Print…", "Ctrl+P",
     "M4 6 L4 2 L12 2 L12 6 R2 6 12 6 M4 10 L4 14 L12 14 L12 10 M4.5 10 L11.5 10", Bar, Push, Next, 0},
    {SavePdf, "savePdf", "&Save as PDF…", "Ctrl+S",
     "M3 2 L9 2 L13 6 L13 14 L3 14 Z M9 2 L9 6 L13 6 M8 7.5 L8 12 M6 10 L8 12 L10 10", Bar, Push, Next, 0},
    {SidePane, "sidePane", "Side pa&ne", "F7",
     "R2 3 12 10 M6.5 3 L6.5 13 M3.5 5.5 L5 5.5 M3.5 8 L5 8 M3.5 10.5 L5 10.5", Bar, Toggle, First, 0},
    {FirstPage, "firstPage", "&First page", "Ctrl+Home", "M3.5 3 L12.5 3 M8 13 L8 6 M4.5 9.5 L8 6 L11.5 9.5",
     Bar, Push, First, 0},
    {PreviousPage, "previousPage", "Pre&vious page", "Ctrl+PgUp", "M8 13 L8 4 M4 8 L8 4 L12 8", Bar, Push,
     Next, 0},
    {NextPage, "nextPage", "Ne&xt page", "Ctrl+PgDown", "M8 3 L8 12 M4 8 L8 12 L12 8", Bar, Push, Next, 0},
    {LastPage, "lastPage", "&Last page", "Ctrl+End", "M3.5 13 L12.5 13 M8 3 L8 10 M4.5 6.5 L8 10 L11.5 6.5",
     Bar, Push, Next, 0},
    {GoToPage, "goToPage", "&Go to page…", "Ctrl+G", "", Menu, Push, Next, 0},
    {Back, "back", "&Back", "Alt+Left; Back", "M13 8 L3 8 M7 4 L3 8 L7 12", Bar, Push, First, 0},
    {Forward, "forward", "For&ward", "Alt+Right; Forward", "M3 8 L13 8 M9 4 L13 8 L9 12", Bar, Push, Next, 0},
    {ZoomOut, "zoomOut", "Zoom &out", "Ctrl+-", "O2 2 9 9 M9.7 9.7 L14 14 M4.5 6.5 L8.5 6.5", Bar, Push,
     First, 0},
    {ZoomIn, "zoomIn", "Zoom &in",
     "Ctrl++; Ctrl+=", "O2 2 9 9 M9.7 9.7 L14 14 M4.5 6.5 L8.5 6.5 M6.5 4.5 L6.5 8.5", Bar, Push, Next, 0},
    {FitPage, "fitPage", "Fit pa&ge", "Ctrl+0", "R4 2 8 12 M6 6 L8 4 L10 6 M6 10 L8 12 L10 10 M8 4 L8 12",
     Bar, Toggle, Next, 0},
    {ActualSize, "actualSize", "&Actual size", "Ctrl+1",
     "R3 2 10 12 M5.3 6.2 L6.6 5.2 L6.6 11 M9.4 6.2 L10.7 5.2 L10.7 11 M8.5 7.3 L8.5 7.9 M8.5 9.6 L8.5 10.2",
     Bar, Push, Next, 0},
    {FitWidth, "fitWidth", "Fit wi&dth", "Ctrl+2",
     "R3 2 10 12 M6.5 6 L4.7 8 L6.5 10 M9.5 6 L11.3 8 L9.5 10 M4.7 8 L11.3 8", Bar, Toggle, Next, 0},
    {Continuous, "continuous", "&Continuous pages", "F8",
     "M4 1.5 L4 6.5 L12 6.5 L12 1.5 M4 14.5 L4 9 L12 9 L12 14.5", Bar, Toggle, Next, 0},
    {FacingPages, "facingPages", "Fa&cing pages", "Ctrl+3", "", Menu, Toggle, Next, 0},
    {ManyColumns, "manyColumns", "As many columns as f&it", "Ctrl+4", "", Menu, Toggle, Next, 0},
    {Overview, "overview", "O&verview", "F9", "", Menu, Toggle, Next, 0},
    {FullScreen, "fullScreen", "F&ull screen", "F11", "", Menu, Toggle, Next, 0},
    {Find, "find", "Fin&d…", "Ctrl+F", "O2 2 9 9 M9.7 9.7 L14 14", Bar, Push, First, 0},
    {FindNext, "findNext", "Find ne&xt", "F3", "", Menu, Push, Next, 0},
    {FindPrevious, "findPrevious", "Find pre&vious", "Shift+F3", "", Menu, Push, Next, 0},
    {Copy, "copy", "Cop&y", "Ctrl+C", "R5 2 8 9 M5 5 L3 5 L3 14 L11 14 L11 11", Menu, Push, First, 0},
    {CopyGraph, "copyGraph", "Copy grap&h", "Ctrl+Shift+C", "", Menu, Push, Next, 0},
    {SaveGraph, "saveGraph", "Save g&raph as…", "Ctrl+Shift+S", "", Menu, Push, Next, 0},
    {SelectAll, "selectAll", "Select a&ll", "Ctrl+A", "", Menu, Push, Next, 0},
    {SelectColumn, "selectColumn", "Select colu&mn", "Ctrl+Space", "", Menu, Push, Next, 0},
    {MarkArea, "markArea", "Mar&k area", "Ctrl+M", "", Menu, Toggle, Next, 0},
    {ZoomToArea, "zoomToArea", "&Zoom to area", "Ctrl+5", "", Menu, Push, Next, 0},
    {Close, "close", "Clos&e", "Ctrl+W; Ctrl+Q", "M4 4 L12 12 M12 4 L4 12", Bar, Push, First, CloseTool},
}};

}  // namespace

std::span<const CommandEntry> CommandTable() {
  return Table;
}

}  // namespace tarvis
