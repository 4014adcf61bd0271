#include "foundation/HarmlessText.h"

#include <QList>

namespace tessara {

QString harmless(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const char32_t character : text.toUcs4()) {
        switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            result += QChar(QChar::ReplacementCharacter);
            break;
        default:
            result += QChar::fromUcs4(character);
        }
    }
    return result;
}

} // namespace tessara
