#pragma once

#include <QByteArray>
#include <QString>

namespace tessara {

/// A document of the program's own in RTF, as HTML: paragraphs, bold text, sizes and characters by
/// their numbers. What else there may be in such a document is passed over.
QString htmlOfRichText(const QByteArray& rtf);

} // namespace tessara
