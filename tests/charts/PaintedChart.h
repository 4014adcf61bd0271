#pragma once

#include "charts/TSSignalStrengthView.h"
#include "support/RecordingPaintDevice.h"

#include <string>
#include <vector>

namespace tessara {

/// What a chart paints at its size.
inline Painting paintingOf(TSSignalStrengthView& view)
{
    RecordingPaintDevice device(view.size());
    QPainter painter(&device);
    view.paint(painter);
    painter.end();
    return device.painting();
}

/// The texts of it, in the order of painting.
inline std::vector<std::string> textsOf(TSSignalStrengthView& view)
{
    std::vector<std::string> texts;
    for (const Painted& item : paintingOf(view).texts())
        texts.push_back(item.text.toStdString());
    return texts;
}

} // namespace tessara
