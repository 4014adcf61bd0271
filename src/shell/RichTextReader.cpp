#include "shell/RichTextReader.h"

namespace tessara {

namespace {

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isNumberPart(char c)
{
    return c == '-' || (c >= '0' && c <= '9');
}

class Reader {
public:
    explicit Reader(const QByteArray& rtf)
        : m_rtf(rtf)
    {
    }

    QString html()
    {
        while (m_place < m_rtf.size()) {
            const char c = m_rtf[m_place++];
            if (c == '\\')
                readControl();
            else if (c != '{' && c != '}' && c != '\n' && c != '\r')
                put(QLatin1Char(c));
        }
        return m_html + QLatin1String("</span></p>");
    }

private:
    void put(QChar character)
    {
        if (m_skipped > 0) // what readers without Unicode would show instead
            --m_skipped;
        else
            m_html += QString(character).toHtmlEscaped();
    }

    QByteArray take(bool (*isPart)(char))
    {
        const qsizetype start = m_place;
        while (m_place < m_rtf.size() && isPart(m_rtf[m_place]))
            ++m_place;
        return m_rtf.sliced(start, m_place - start);
    }

    void readControl()
    {
        const QByteArray word = take(isLetter);
        if (word.isEmpty()) { // a character that would else be a command
            if (m_place < m_rtf.size())
                put(QLatin1Char(m_rtf[m_place++]));
            return;
        }
        const QByteArray number = take(isNumberPart);
        if (m_place < m_rtf.size() && m_rtf[m_place] == ' ')
            ++m_place; // ends the word
        if (word == "par") {
            m_html += QLatin1String("<br>");
        } else if (word == "b") {
            m_html += number == "0" ? QLatin1String("</b>") : QLatin1String("<b>");
        } else if (word == "fs") { // in half points
            m_html +=
                QStringLiteral("</span><span style=\"font-size:%1pt\">").arg(number.toInt() / 2.0);
        } else if (word == "u" && !number.isEmpty()) {
            put(QChar(static_cast<char16_t>(number.toInt())));
            m_skipped = 1;
        }
    }

    const QByteArray& m_rtf;
    qsizetype m_place = 0;
    int m_skipped = 0;
    QString m_html = QStringLiteral("<p><span>");
};

} // namespace

QString htmlOfRichText(const QByteArray& rtf)
{
    return Reader(rtf).html();
}

} // namespace tessara
