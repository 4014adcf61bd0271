#include "elements/CapitalizedText.h"

namespace tessara {

namespace {

/// Punctuation inside of words (Unicode Standard, 3.13, case-ignorable).
constexpr QStringView kIgnorable = u"'.:\u00b7\u2018\u2019\u2024\u2027";

} // namespace

QString capitalized(const QString& text)
{
    QString result;
    result.reserve(text.size());
    bool isInsideWord = false;
    for (const QChar c : text) {
        result += isInsideWord ? c.toLower() : c.toTitleCase();
        if (!kIgnorable.contains(c))
            isInsideWord = c.isLetter();
    }
    return result;
}

} // namespace tessara
