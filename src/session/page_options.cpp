#include "session/page_options.h"

#include <algorithm>
#include <span>

#include "printfiles/data_file_scan.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

// Elements of SimOption where nothing is compared.
constexpr auto WithoutComparison = static_cast<std::size_t>(SimElement::Comments);

using Marks = std::vector<const std::int16_t*>;
using HeaderOfPage = HeaderOptions PrintOptions::*;

Marks Pointers(std::span<const std::int16_t> elements) {
  Marks marks;
  for (const std::int16_t& element : elements) marks.push_back(&element);
  return marks;
}

struct PageEntry {
  PageId Page;
  HeaderOfPage Header;
  const char* OverlapFile;
  Marks (*List)(const PrintOptions&);
};

constexpr std::array<PageEntry, 10> Pages{{
    {PageId::InfUser, &PrintOptions::UserHeader, nullptr,
     [](const PrintOptions& options) { return Pointers(options.UserOption); }},
    {PageId::InfTrace, &PrintOptions::TraceHeader, "Trace.tmp",
     [](const PrintOptions& options) { return Pointers(options.TraceOption); }},
    {PageId::InfRealTrace, &PrintOptions::RealTraceHeader, nullptr,
     [](const PrintOptions& options) { return Pointers(options.RealTraceOption); }},
    {PageId::InfWizard, &PrintOptions::PrmWizHeader, nullptr, [](const PrintOptions&) { return Marks(); }},
    {PageId::InfMecha, &PrintOptions::MechaHeader, nullptr,
     [](const PrintOptions& options) { return Pointers(options.MechaOption); }},
    {PageId::InfSim, &PrintOptions::SimHeader, nullptr,
     [](const PrintOptions& options) {
       return Pointers(std::span(options.SimOption).first(WithoutComparison));
     }},
    {PageId::InfSimOverlap, &PrintOptions::SimHeader, "Sim.tmp",
     [](const PrintOptions& options) { return Pointers(options.SimOption); }},
    {PageId::InfIdxTbl, &PrintOptions::IdxTblHeader, nullptr,
     [](const PrintOptions& options) { return Marks{&options.IdxTblOption.Comment}; }},
    {PageId::InfZoneTbl, &PrintOptions::ZoneTblHeader, nullptr,
     [](const PrintOptions& options) { return Marks{&options.ZoneTblOption}; }},
    {PageId::InfJogTbl, &PrintOptions::JogTblHeader, nullptr,
     [](const PrintOptions& options) { return Marks{&options.JogTblOption}; }},
}};

const PageEntry& EntryOf(PageId page) {
  return *std::ranges::find(Pages, page, &PageEntry::Page);
}

}  // namespace

HeaderOptions& HeaderOf(PrintOptions& options, PageId page) {
  return options.*EntryOf(page).Header;
}

std::array<const std::int16_t*, 5> MarksOf(const HeaderOptions& header) {
  return {&header.Title, &header.ModelsInfo, &header.PrintDate, &header.FileName, &header.Pages};
}

std::vector<const std::int16_t*> MarksOf(const PrintOptions& options, PageId page) {
  return EntryOf(page).List(options);
}

bool LoadOverlap(PrintRun& run, PageId page) {
  const char* file = EntryOf(page).OverlapFile;
  return file == nullptr || ScanOverlap(run, file);
}

}  // namespace tarvis
