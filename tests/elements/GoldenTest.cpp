#include "elements/FixedVendors.h"
#include "elements/TSInfoElement.h"

#include <QDir>
#include <QFile>

#include <fmt/format.h>
#include <gtest/gtest.h>

using namespace tessara;

namespace {

/// As the golden files have it: control characters, and a blank at the end of a line, as "\x00".
std::string visible(const QString& line)
{
    std::string text;
    for (const char c : line.toStdString()) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x20 || byte == 0x7f ? fmt::format("\\x{:02x}", byte) : std::string(1, c);
    }
    if (text.ends_with(' '))
        text.replace(text.size() - 1, 1, "\\x20");
    return text;
}

std::string visibleDump(const TSInfoElement& element)
{
    std::string text;
    for (const QString& line : QString::fromStdString(element.ieDump()).split(u'\n'))
        text += visible(line) + '\n';
    return text;
}

} // namespace

// Each file holds blocks with an empty line between them: a comment, an element in hexadecimal, and
// the lines of its dump as the tables and layouts of the standard and the vendors have them.
TEST(GoldenDumps, AreWhatTheDecoderWrites)
{
    const FixedVendors vendors;
    const QDir folder(QStringLiteral(TESSARA_GOLDEN_DUMPS));
    int count = 0;
    for (const QString& name : folder.entryList({QStringLiteral("*.txt")})) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        for (QString block : QString::fromUtf8(file.readAll()).split(QStringLiteral("\n\n"))) {
            if (block.startsWith(u'#'))
                block = block.section(u'\n', 1);
            const QString bytes = block.section(u'\n', 0, 0);
            const auto elements = informationElements(QByteArray::fromHex(bytes.toLatin1()));
            ASSERT_EQ(elements.size(), 1U) << bytes.toStdString();
            EXPECT_EQ(visibleDump(elements[0]),
                      block.section(u'\n', 1).trimmed().toStdString() + '\n')
                << name.toStdString() << ": " << bytes.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 0);
}
