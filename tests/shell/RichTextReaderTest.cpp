#include "shell/RichTextReader.h"

#include <QTextDocument>

#include <gtest/gtest.h>

using namespace tessara;

TEST(RichTextReader, ReadsWhatIsWrittenHere)
{
    QTextDocument document;
    document.setHtml(htmlOfRichText("{\\rtf1\\ansi\n\\fs28\\b A & B\\b0\\par\n\\fs22 a \\{b\\} "
                                    "\\u8217?s\\u-10178?\\u-8822?}"));
    EXPECT_EQ(document.toPlainText(), QStringLiteral("A & B\na {b} ’s🦊"));
    document.setHtml(htmlOfRichText("{\\b \\u"));
    EXPECT_EQ(document.toPlainText(), QString()) << "a document that is cut short ends";
}
