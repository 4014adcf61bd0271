#include "cli/Terminal.h"

#include <QList>

#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <langinfo.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tessara {

namespace {

int widthOf(char32_t character)
{
    return std::max(0, ::wcwidth(static_cast<wchar_t>(character)));
}

} // namespace

bool isStandardOutputTerminal()
{
    return ::isatty(STDOUT_FILENO) != 0;
}

TerminalSize terminalSize()
{
    winsize size{};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return {};
    return {size.ws_col, size.ws_row};
}

void setUpCharacterWidths()
{
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(::nl_langinfo(CODESET), "UTF-8") != 0)
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

int displayWidth(const QString& text)
{
    int width = 0;
    for (const char32_t character : text.toUcs4())
        width += widthOf(character);
    return width;
}

QString fitted(const QString& text, int width, bool alignsRight)
{
    const int needed = displayWidth(text);
    if (needed <= width) {
        const QString padding(width - needed, u' ');
        return alignsRight ? padding + text : text + padding;
    }
    QString cut;
    int used = 0;
    for (const char32_t character : text.toUcs4()) {
        if (used + widthOf(character) > width - 1)
            break;
        used += widthOf(character);
        cut += QChar::fromUcs4(character);
    }
    return width < 1 ? QString() : cut + u'…' + QString(width - 1 - used, u' ');
}

} // namespace tessara
