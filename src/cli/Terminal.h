#pragma once

#include <QString>

namespace tessara {

/// Size of a terminal in characters.
struct TerminalSize {
    int columns = 80;
    int rows = 24;
};

bool isStandardOutputTerminal();
TerminalSize terminalSize();

/// Lets texts have the widths of their characters, whatever the locale of the session.
void setUpCharacterWidths();

/// Terminal columns that a harmless text takes: 2 for wide characters, 0 for combining ones.
int displayWidth(const QString& text);

/// The text in exactly `width` columns: padded with blanks, or cut with an ellipsis.
QString fitted(const QString& text, int width, bool alignsRight);

} // namespace tessara
