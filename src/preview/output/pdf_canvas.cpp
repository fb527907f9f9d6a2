#include "preview/output/pdf_canvas.h"

#include <QByteArray>
#include <algorithm>
#include <array>
#include <span>

#include "preview/output/pdf_actual_text.h"
#include "preview/output/pdf_greys.h"
#include "preview/output/pdf_numbers.h"
#include "report/engine/text_measurer.h"
#include "report/engine/utf8.h"

namespace tarvis {
namespace {

constexpr std::string_view EndOfShownText = ")Tj\n";

void AppendRects(std::string& content, std::span<const Rect> boxes) {
  for (const Rect& box : boxes) {
    for (const float value : {box.Left, box.Top, box.Width, box.Height}) AppendNumber(content, value);
    content += "re\n";
  }
}

bool EndsWith(const std::vector<Rect>& boxes, const std::vector<Rect>& last) {
  return boxes.size() >= last.size() && std::equal(last.rbegin(), last.rend(), boxes.rbegin());
}

}  // namespace

PdfCanvas::PdfCanvas(const PdfLook& look, PdfGlyphs& glyphs, PdfPictures& pictures)
    : glyphs_(glyphs), pictures_(pictures), greys_(look.Greys) {
  content_.reserve(std::size_t{20} * 1024);
  // With more decimals than other numbers: an error would grow over the whole page.
  const std::string factor = QByteArray::number(look.Scale / TwipsPerPoint, 'g', 7).toStdString();
  Add(factor + " 0 0 -" + factor + " 0 ");
  AppendNumber(content_, look.Paper.height() / TwipsPerPoint);
  Add("cm\n");
}

// What the content before has set isn't known, but for the matrix.
PdfCanvas::PdfCanvas(PdfGlyphs& glyphs, PdfPictures& pictures)
    : glyphs_(glyphs), pictures_(pictures), greys_(false) {
  ForgetTextState();
}

void PdfCanvas::UseInk(Color color) {
  if (color == ink_) return;
  ink_ = color;
  const auto part = [color](unsigned shift) { return ((color >> shift) & 0xFFU) / 255.0; };
  std::array<double, 3> ink{part(16), part(8), part(0)};
  if (greys_) ink.fill(GreyOf(ink[0], ink[1], ink[2]));
  for (const double value : ink) AppendNumber(content_, value);
  Add("rg\n");
}

void PdfCanvas::UseLineWidth(float width) {
  if (width == lineWidth_) return;
  lineWidth_ = width;
  AppendNumber(content_, width);
  Add("w\n");
}

void PdfCanvas::Fill(const std::vector<Rect>& boxes, Color color) {
  EndPart();
  filled_ = boxes;
  fill_ = color;
}

void PdfCanvas::EndFill(const char* paint) {
  if (filled_.empty()) return;
  OnPaths();
  UseInk(fill_);
  AppendRects(content_, filled_);
  Add(paint);
  OnEndOfPaths();
  filled_.clear();
}

// Boxes that were filled just now are filled and framed as one path, which is much of the content of a table.
void PdfCanvas::Frame(const std::vector<Rect>& boxes, float width) {
  std::span<const Rect> others = boxes;
  EndText();
  if (EndsWith(boxes, filled_)) {
    UseLineWidth(width);
    others = others.first(boxes.size() - filled_.size());
    EndFill("B\n");
  }
  EndPart();
  if (others.empty()) return;
  OnPaths();
  UseLineWidth(width);
  AppendRects(content_, others);
  Add("S\n");
  OnEndOfPaths();
}

void PdfCanvas::Strokes(const std::vector<Rect>& lines, float width) {
  EndPart();
  OnPaths();
  UseLineWidth(width);
  for (const Rect& line : lines) {
    AppendNumber(content_, line.Left);
    AppendNumber(content_, line.Top);
    Add("m ");
    AppendNumber(content_, line.Right());
    AppendNumber(content_, line.Bottom());
    Add("l\n");
  }
  Add("S\n");
  OnEndOfPaths();
}

void PdfCanvas::Text(const TextPiece& piece, const TextStyle& style, const Rect& box) {
  if (piece.Text.empty()) return;
  const double baseline = BaselineOf(piece, style, box);
  const TextFit fit = FitText(piece, box);
  const std::optional<Rect> clip = ClipOfText(fit, style, box);
  EndFill();
  if (clip) {
    EndText();
    Add("q ");
    AppendRects(content_, {&*clip, 1});
    Add("W n\n");
  }
  UseInk(Black);
  BeginText();
  OnText();
  ShowText(piece, style, box.Left, baseline, fit.Stretch);
  if (piece.BlankFollows && ReadsText()) ShowBlank(piece, style, box.Left, baseline, fit.Stretch);
  if (clip) {
    EndText();
    Add("Q\n");
    ForgetTextState();
  }
}

// The operator Q restores what was set before its q.
void PdfCanvas::ForgetTextState() {
  ink_ = 0x1000000;  // no colour
  font_ = -1;
  stretch_ = 0;
  lineWidth_ = -1;
  isThick_ = std::nullopt;
}

void PdfCanvas::ShowText(const TextPiece& piece, const TextStyle& style, double x, double y, double stretch) {
  if (stretch != stretch_) {
    stretch_ = stretch;
    AppendNumber(content_, stretch * 100);
    Add("Tz ");
  }
  if (piece.Flow == TextFlow::Plain) {
    ShowPlain(piece, style, x, y, stretch);
  } else {
    ShowShaped(piece, style, x, y, stretch);
  }
}

void PdfCanvas::ShowPlain(const TextPiece& piece, const TextStyle& style, double x, double y,
                          double stretch) {
  const double em = style.Size * TwipsPerPoint * stretch;
  bool open = false;
  for (std::size_t offset = 0; offset < piece.Text.size();) {
    const char32_t character = NextCharacter(piece.Text, offset);
    const PdfGlyph& glyph = glyphs_.Use(character, style.Bold);
    if (!glyph.Inks) continue;
    if (NamesPrivateCharacters() && IsPrivate(character)) {
      if (open) Add(EndOfShownText);
      open = false;
      AppendActualText(content_, {&character, 1});
      ShowGlyph(glyph, style, x, y);
      Add(EndOfActualText);
      x += glyph.AdvanceEm * em;
      continue;
    }
    if (!open || glyph.Font != font_) {
      if (open) Add(EndOfShownText);
      UseFont(glyph.Font, style.Size);
      MoveTo(x, y);
      Add("(");
      open = true;
    }
    AppendCode(content_, glyph.Code);
    x += glyph.AdvanceEm * em;
  }
  if (open) Add(EndOfShownText);
}

// The blank at which the text was broken shows nothing where the line ends.
void PdfCanvas::ShowBlank(const TextPiece& piece, const TextStyle& style, double x, double y,
                          double stretch) {
  const PdfGlyph& blank = glyphs_.Use(U' ', style.Bold);
  const double width = blank.AdvanceEm * style.Size * TwipsPerPoint;
  if (piece.Flow == TextFlow::RightToLeft) return ShowGlyph(blank, style, x - width * stretch, y);
  if (piece.Flow == TextFlow::LeftToRight) return ShowGlyph(blank, style, x + piece.Advance * stretch, y);
  UseFont(blank.Font, style.Size);
  if (content_.ends_with(EndOfShownText)) {
    content_.resize(content_.size() - EndOfShownText.size());
  } else {
    Add("(");
  }
  AppendCode(content_, blank.Code);
  Add(EndOfShownText);
}

// Clusters come in the order in which they are read: some viewers sort them by their places, others take them
// as they come.
void PdfCanvas::ShowShaped(const TextPiece& piece, const TextStyle& style, double x, double y,
                           double stretch) {
  const std::vector<TextCluster>& clusters =
      KnownLine(piece.Text, style.Bold, piece.Flow, glyphs_.Font()).Clusters;
  std::vector<const TextCluster*> inOrder;
  for (const TextCluster& cluster : clusters) inOrder.push_back(&cluster);
  std::ranges::sort(inOrder, {}, &TextCluster::FirstCharacter);
  for (const TextCluster* cluster : inOrder) ShowCluster(*cluster, style, x, y, stretch);
}

void PdfCanvas::ShowCluster(const TextCluster& cluster, const TextStyle& style, double x, double y,
                            double stretch) {
  const double em = style.Size * TwipsPerPoint;
  const PdfCluster used = glyphs_.Use(cluster);
  const bool isNamed = used.NeedsText || (NamesPrivateCharacters() && HasPrivate(cluster.Text));
  if (isNamed) AppendActualText(content_, cluster.Text);
  for (const PdfPlacedGlyph& placed : used.Glyphs)
    ShowGlyph(placed.Glyph, style, x + placed.X * em * stretch, y + placed.Y * em);
  if (isNamed) Add(EndOfActualText);
}

void PdfCanvas::ShowGlyph(const PdfGlyph& glyph, const TextStyle& style, double x, double y) {
  UseFont(glyph.Font, style.Size);
  MoveTo(x, y);
  Add("(");
  AppendCode(content_, glyph.Code);
  Add(EndOfShownText);
}

void PdfCanvas::UseFont(std::uint16_t font, float size) {
  if (font != font_ || size != size_) {
    font_ = font;
    size_ = size;
    Add("/F");
    AppendNumber(content_, font);
    AppendNumber(content_, size * TwipsPerPoint);
    Add("Tf ");
  }
  UseThickness(glyphs_.Fonts()[font].IsThickened, size);
}

// Where there is no bold font, an outline in the colour of the letters makes them bold, as wide as the
// toolkit makes it.
void PdfCanvas::UseThickness(bool isThick, float size) {
  constexpr float OutlineEm = 1.0F / 24;
  if (isThick) UseLineWidth(size * TwipsPerPoint * OutlineEm);
  if (isThick == isThick_) return;
  isThick_ = isThick;
  Add(isThick ? "2 Tr " : "0 Tr ");
}

// Places are written relative to the last one: shorter, and small numbers compress well.
void PdfCanvas::MoveTo(double x, double y) {
  AppendNumber(content_, x - lineX_);
  AppendNumber(content_, lineY_ - y);
  Add("Td");
  // What was written is rounded; the rounding must not add up over a page.
  lineX_ += std::round((x - lineX_) * 100) / 100;
  lineY_ -= std::round((lineY_ - y) * 100) / 100;
}

void PdfCanvas::BeginText() {
  if (inText_) return;
  Add("BT 1 0 0 -1 0 0 Tm\n");
  inText_ = true;
  lineX_ = 0;
  lineY_ = 0;
}

void PdfCanvas::EndText() {
  if (!inText_) return;
  OnEndOfText();
  Add("ET\n");
  inText_ = false;
}

void PdfCanvas::Picture(const tarvis::Picture& picture, const Rect& box) {
  EndPart();
  const std::size_t number = pictures_.Number(picture, box.Width, box.Height);
  Add("q ");
  AppendRects(content_, {&box, 1});
  Add("W n 20 0 0 -20 ");
  AppendNumber(content_, box.Left);
  // A form is placed by its lower edge; its height is rounded up to whole points.
  const double formHeight = PdfPictureHeight(box.Height);
  AppendNumber(content_, box.Top + TwipsPerPoint * formHeight);
  Add("cm /P" + std::to_string(number) + " Do Q\n");
}

void PdfCanvas::EndPart() {
  EndText();
  EndFill();
}

std::string PdfCanvas::Finish() {
  EndPart();
  return std::move(content_);
}

}  // namespace tarvis
