#include "filtering/ThresholdKeys.h"

#include <QStringView>

namespace tessara {

std::optional<std::int64_t> thresholdOfKey(QChar key)
{
    constexpr QStringView kDigits = u"0123456789";
    constexpr QStringView kLetters = u"qwertyuio"; // the row below, from 1 to 9
    if (const qsizetype digit = kDigits.indexOf(key); digit >= 0)
        return digit * 10;
    if (const qsizetype letter = kLetters.indexOf(key.toLower()); letter >= 0)
        return (letter + 1) * 10 + 5;
    return std::nullopt;
}

} // namespace tessara
