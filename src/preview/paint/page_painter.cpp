#include "preview/paint/page_painter.h"

#include <algorithm>
#include <tuple>

#include "report/engine/text_cache.h"
#include "report/engine/utf8.h"

namespace tarvis {
namespace {

// Whether a line has characters as high as ideographs: Chinese, Japanese and Korean, and their full-width
// signs.
bool HasIdeographs(std::string_view text) {
  constexpr unsigned char FirstByte = 0xE2;  // with which they and all higher characters begin in UTF-8
  const auto mayBegin = [](char byte) { return static_cast<unsigned char>(byte) >= FirstByte; };
  if (std::ranges::none_of(text, mayBegin)) return false;
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t character = NextCharacter(text, offset);
    const bool isLow = character >= 0x2E80 && character <= 0xD7FF;
    const bool isCompatible = character >= 0xF900 && character <= 0xFAFF;
    const bool isWide = character >= 0xFF01 && character <= 0xFFE6;
    const bool isHigh = character >= 0x20000 && character <= 0x3FFFF;
    if (isLow || isCompatible || isWide || isHigh) return true;
  }
  return false;
}

float LineWidth(const Item& item) {
  return static_cast<float>(item.Weight) * LineWeightUnit;
}

// Passes on runs of neighbours with the same `key`, so that their order stays the same.
template <typename Key, typename Paint>
void ByLook(const std::vector<const Item*>& items, Key key, Paint paint) {
  std::vector<Rect> boxes;
  for (std::size_t index = 0; index < items.size(); ++index) {
    boxes.push_back(items[index]->Box);
    if (index + 1 == items.size() || key(*items[index + 1]) != key(*items[index])) {
      paint(boxes, key(*items[index]));
      boxes.clear();
    }
  }
}

// A square in the middle of the control's place, away from the borders of the cell around it.
void PaintTick(const Item& item, Canvas& canvas) {
  const float side = 0.7F * std::min(item.Box.Width, item.Box.Height);
  const float left = item.Box.Left + (item.Box.Width - side) / 2;
  const float top = item.Box.Top + (item.Box.Height - side) / 2;
  const Rect box{left, top, side, side};
  canvas.Fill({box}, White);
  canvas.Frame({box}, LineWeightUnit);
  if (!item.Ticked) return;
  canvas.Strokes({{left + 0.2F * side, top + 0.5F * side, 0.22F * side, 0.27F * side},
                  {left + 0.42F * side, top + 0.77F * side, 0.4F * side, -0.5F * side}},
                 0.12F * side);
}

// Thin lines make frames: each reaches half its width past its ends, so that no corner shows a notch.
void CloseCorners(std::vector<Rect>& lines, float width) {
  for (Rect& line : lines) {
    if (line.Height == 0) {
      line.Left -= width / 2;
      line.Width += width;
    } else if (line.Width == 0) {
      line.Top -= width / 2;
      line.Height += width;
    }
  }
}

// The sides of a box that a page's end has cut, without the side that is open.
std::vector<Rect> OpenFrame(const Rect& box, bool openTop, bool openBottom) {
  std::vector<Rect> sides{{box.Left, box.Top, 0, box.Height}, {box.Right(), box.Top, 0, box.Height}};
  if (!openTop) sides.push_back({box.Left, box.Top, box.Width, 0});
  if (!openBottom) sides.push_back({box.Left, box.Bottom(), box.Width, 0});
  return sides;
}

void PaintBorders(const std::vector<const Item*>& borders, Canvas& canvas) {
  const auto look = [](const Item& item) {
    return std::tuple(LineWidth(item), item.OpenTop, item.OpenBottom);
  };
  ByLook(borders, look, [&](const std::vector<Rect>& boxes, const auto& edges) {
    const auto [width, openTop, openBottom] = edges;
    if (!openTop && !openBottom) {
      canvas.Frame(boxes, width);
      return;
    }
    for (const Rect& box : boxes) {
      std::vector<Rect> sides = OpenFrame(box, openTop, openBottom);
      CloseCorners(sides, width);
      canvas.Strokes(sides, width);
    }
  });
}

void PaintLayer(const Document& document, const PageLayer& layer, Canvas& canvas) {
  ByLook(
      layer.Fills, [](const Item& item) { return item.Fill; },
      [&](const std::vector<Rect>& boxes, Color color) { canvas.Fill(boxes, color); });
  for (const Item* item : layer.Pictures) {
    if (!document.Pictures[item->Source]) continue;
    canvas.BeginItem(*item);
    canvas.Picture(*document.Pictures[item->Source], item->Box);
    canvas.EndItem();
  }
  PaintBorders(layer.Borders, canvas);
  ByLook(layer.Lines, LineWidth, [&](std::vector<Rect> lines, float width) {
    if (width <= LineWeightUnit) CloseCorners(lines, width);
    canvas.Strokes(lines, width);
  });
  for (const Item* item : layer.Ticks) {
    canvas.BeginItem(*item);
    PaintTick(*item, canvas);
    canvas.EndItem();
  }
  for (const Item* item : layer.Texts) {
    const TextPiece& piece = document.Texts[item->Source];
    canvas.BeginItem(*item);
    canvas.Text(piece, document.Styles[piece.Style], item->Box);
    canvas.EndItem();
  }
}

}  // namespace

void PaintPage(const Document& document, std::size_t page, Canvas& canvas) {
  PaintLayers(document, PlanPage(document, page), canvas);
}

void PaintLayers(const Document& document, const std::vector<PageLayer>& layers, Canvas& canvas) {
  for (const PageLayer& layer : layers) PaintLayer(document, layer, canvas);
}

TextFit FitText(const TextPiece& piece, const Rect& box) {
  constexpr float Tolerance = 0.5F;  // twips, for rounding
  constexpr float Narrowest = 0.5F;
  if (piece.Advance <= 0 || box.Width + Tolerance >= piece.Advance) return {};
  const float stretch = box.Width / piece.Advance;
  return {std::max(stretch, Narrowest), stretch < Narrowest};
}

double BaselineOf(const TextPiece& piece, const TextStyle& style, const Rect& box) {
  // Ideographs reach from 0.85 em above the baseline to 0.09 em below it; this puts them in the middle of the
  // line's pitch.
  constexpr double LoweringEm = 0.034;
  const double lowering = HasIdeographs(piece.Text) ? LoweringEm : 0;
  return box.Top + (AscentEm + lowering) * (style.Size * TwipsPerPoint);
}

std::optional<Rect> ClipOfText(const TextFit& fit, const TextStyle& style, const Rect& box) {
  constexpr float Tolerance = 1;  // twips, for rounding
  const float pitch = LinePitch(style.Size);
  const bool isCutBelow = box.Height + Tolerance < pitch;
  if (!fit.Clipped && !isCutBelow) return std::nullopt;
  Rect clip{box.Left, box.Top - pitch, box.Width, pitch + box.Height};
  if (!isCutBelow) clip.Height += pitch;
  if (!fit.Clipped) clip = {clip.Left - pitch, clip.Top, clip.Width + 2 * pitch, clip.Height};
  return clip;
}

}  // namespace tarvis
