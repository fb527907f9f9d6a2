// The pen and the brush of a device context, as the draw list takes them.
#pragma once

#include <optional>

#include "pictures/metafile/context/device_context.h"

namespace tarvis {

// Nothing where the pen is none, or where the raster operation leaves white paper as it is.
std::optional<ListPen> CurrentPen(const DeviceContext& context);
// The same for any brush, with the colours and the raster operation of the context.
std::optional<ListBrush> BrushFor(const MetaBrush& brush, const DcState& state);

}  // namespace tarvis
