#pragma once

#include <QString>

namespace tessara {

/// A plain text as a tool tip, which takes text for HTML if it looks like that: names come from the
/// air.
inline QString toolTipOf(const QString& text)
{
    // The element makes it HTML for certain; escaped text alone would show its entities.
    return text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace tessara
