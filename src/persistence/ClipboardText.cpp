#include "persistence/ClipboardText.h"

#include "foundation/Localized.h"
#include "model/NetworkRow.h"
#include "model/TimeText.h"

#include <QMimeData>
#include <QStringList>

namespace tessara {

namespace {

QString valueOf(const NetworkRow& row, const Column& column, const CellContext& context)
{
    const QStringView identifier = column.identifier;
    // Here the time itself: how long ago it is means nothing in another document.
    if (identifier == u"SEEN" || identifier == u"LAST_SEEN") {
        const auto time = row.lastSeenValue();
        return time ? timeText(*time) : QString();
    }
    const QString value = column.text(row, context);
    const bool isSignal = identifier.startsWith(u"RSSI") || identifier.startsWith(u"NOISE");
    return isSignal && context.dBm ? value + QLatin1String(" dBm") : value;
}

} // namespace

QString textOfRows(const std::vector<const NetworkRow*>& rows,
                   const std::vector<const Column*>& columns, const CellContext& context)
{
    QStringList blocks;
    for (const NetworkRow* row : rows) {
        QStringList lines;
        for (const Column* column : columns) {
            const QString value = valueOf(*row, *column, context); // an empty cell has none
            if (!value.isEmpty())
                lines.append(QStringLiteral("%1: %2").arg(localized(column->title), value));
        }
        blocks.append(lines.join(u'\n'));
    }
    return blocks.join(QLatin1String("\n\n"));
}

QByteArray richText(const QString& text)
{
    QByteArray rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier;}}\n"
                     "\\uc1\\f0\\fs24 "; // half points
    for (const QChar character : text) {
        const char16_t c = character.unicode();
        if (c == u'\n')
            rtf += "\\par\n";
        else if (c == u'\\' || c == u'{' || c == u'}')
            rtf.append('\\').append(static_cast<char>(c));
        else if (c >= u' ' && c <= u'~')
            rtf += static_cast<char>(c);
        else // UTF-16, signed, and a question mark for readers without Unicode
            rtf += "\\u" + QByteArray::number(static_cast<qint16>(c)) + "\\'3f";
    }
    return rtf + "}\n";
}

std::unique_ptr<QMimeData> clipboardData(const QString& text)
{
    auto data = std::make_unique<QMimeData>();
    const QByteArray rtf = richText(text);
    data->setData(QStringLiteral("text/rtf"), rtf);
    data->setData(QStringLiteral("application/rtf"), rtf);
    data->setText(text);
    return data;
}

} // namespace tessara
