// Raster operations, as far as they matter when a picture is drawn once, from bottom to top, on white paper.
#pragma once

#include <QImage>
#include <optional>

namespace tarvis {

// The binary raster operations of pens and brushes, by their number (1 to 16).
inline constexpr std::uint32_t CopyPen = 13;
inline constexpr std::uint32_t XorPen = 7;

// The colour that drawing with `color` leaves on white, or nothing where the operation never changes
// anything.
std::optional<QColor> ColorOnWhite(std::uint32_t rop2, QColor color);

// Ternary operations that records name often.
inline constexpr std::uint32_t SourceCopy = 0x00CC0020;
inline constexpr std::uint32_t SourcePaint = 0x00EE0086;
inline constexpr std::uint32_t MergePaint = 0x00BB0226;
inline constexpr std::uint32_t SourceAnd = 0x008800C6;
inline constexpr std::uint32_t SourceInvert = 0x00660046;
inline constexpr std::uint32_t PatternCopy = 0x00F00021;

bool UsesSource(std::uint32_t rop3);

// The same for an area drawn with a ternary operation without a source.
std::optional<QColor> PatternOnWhite(std::uint32_t rop3, QColor pattern);

// The visible part of `source` drawn with an operation: pixels that don't change what lies below become
// transparent.
QImage SourceOnWhite(std::uint32_t rop3, const QImage& source, QColor pattern);

}  // namespace tarvis
