#include "foundation/Utf8.h"

#include <QStringDecoder>

namespace tessara {

std::optional<QString> textFromUtf8(std::string_view utf8)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace tessara
