#include "elements/TSInfoElement.h"
#include "elements/FixedVendors.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::Pair;

namespace {

std::vector<TSInfoElement> elementsOf(const char* hex)
{
    return informationElements(QByteArray::fromHex(hex));
}

TSInfoElement elementOf(const char* hex)
{
    return std::move(elementsOf(hex).at(0));
}

/// Identifier and length of each.
std::vector<std::pair<int, std::size_t>> cut(const char* hex)
{
    std::vector<std::pair<int, std::size_t>> elements;
    for (const TSInfoElement& element : elementsOf(hex))
        elements.emplace_back(element.ieID(), element.ieLength());
    return elements;
}

std::string composed(const Field& field)
{
    DumpBuffer lines;
    composeField(field, 1, lines);
    return std::string(lines.text());
}

} // namespace

TEST(InformationElements, AreCutFromTheRunInOrder)
{
    EXPECT_THAT(cut(""), ElementsAre());
    EXPECT_THAT(cut("000141 030106 0000 030107"),
                ElementsAre(Pair(0, 1), Pair(3, 1), Pair(0, 0), Pair(3, 1)));
    // What the end of the run cuts off keeps the length that it tells.
    EXPECT_THAT(cut("030106 30"), ElementsAre(Pair(3, 1), Pair(48, 0)));
    EXPECT_THAT(cut("030106 30ff"), ElementsAre(Pair(3, 1), Pair(48, 255)));
    EXPECT_THAT(cut("0004 4142"), ElementsAre(Pair(0, 4)));
}

TEST(TSInfoElement, IsDecodedOnce)
{
    const TSInfoElement element = elementOf("030106");
    const Field* const rows = element.fields().data();
    EXPECT_EQ(element.ieSummary(), "Current channel: 6");
    EXPECT_EQ(element.fields().data(), rows);
}

TEST(TSInfoElement, KeepsItsRowsWhenItIsMoved)
{
    TSInfoElement element = elementOf("030106");
    const Field& channel = element.fields()[2];
    const TSInfoElement moved = std::move(element);
    EXPECT_EQ(moved.fields().data() + 2, &channel);
    EXPECT_EQ(channel.fieldValue, "6");
}

TEST(TSInfoElement, TellsAnEmptyListFromNoList)
{
    const TSInfoElement rsn = elementOf("300e 0100 000fac04 0000 0000 0000");
    EXPECT_EQ(rsn.fields()[2].fieldName, "RSN Version");
    EXPECT_FALSE(rsn.fields()[2].fieldSubfields);
    EXPECT_EQ(rsn.fields()[6].fieldName, "Pairwise Cipher Suite List");
    ASSERT_TRUE(rsn.fields()[6].fieldSubfields);
    EXPECT_TRUE(std::get<std::span<const Field>>(*rsn.fields()[6].fieldSubfields).empty());
}

TEST(TSInfoElement, IsIdentifiedByItsVendorAndType)
{
    EXPECT_EQ(elementOf("0a00").ieIdentifier(), "id=10");
    EXPECT_EQ(elementOf("dd04 0050f201").ieIdentifier(), "id=221,oui=00-50-F2,type=1");
    EXPECT_EQ(elementOf("dd02 ab50").ieIdentifier(), "id=221,oui=AB-50-00,type=0");
    EXPECT_EQ(elementOf("dd00").ieIdentifier(), "id=221");

    const TSInfoElement cisco = elementOf("9605 00409600ff");
    EXPECT_EQ(cisco.ieIdentifier(), "id=150");
    cisco.fields();
    EXPECT_EQ(cisco.ieIdentifier(), "id=221,oui=00-40-96,type=0");
    const TSInfoElement empty = elementOf("9600");
    empty.fields();
    EXPECT_EQ(empty.ieIdentifier(), "id=150");
}

TEST(TSInfoElement, NeedsNoVendorDirectory)
{
    const TSInfoElement wmm = elementOf("dd07 0050f202000100");
    EXPECT_EQ(wmm.ieName(), "Vendor Specific");
    EXPECT_EQ(wmm.fields()[2].fieldNotes, "((null))");
    EXPECT_EQ(wmm.ieSummary(), "Wireless Multimedia (WMM)");
    const FixedVendors vendors;
    EXPECT_EQ(wmm.ieName(), "Vendor Specific (Microsoft)"); // asked each time
}

TEST(ComposeField, WritesWhatIsThere)
{
    const Field rows[] = {subEntryWithName("Bits", ".... ..1."), entryWithName("Leaf", "7")};
    const std::span<const Field> below(rows);
    const struct {
        Field field;
        const char* lines;
    } cases[] = {
        {entryWithName("Name", "5", "dBm"), "\n    Name: 5 dBm"},
        {entryWithName("Name", "5"), "\n    Name: 5"},
        {entryWithName("Name", {}, "dBm"), "\n    Name"},
        {entryWithName("Name", "", "dBm"), "\n    Name:  dBm"},
        {subEntryWithName("Bit", ".... ...1", "Set"), "\n    .... ...1 Bit: Set"},
        {subEntryWithName("Bit", ".... ...1"), "\n    .... ...1 Bit"},
        {subEntryWithName({}, ".... ...1", "Set"), "\n    .... ...1"},
        {subEntryWithName("Bit", {}, "Set"), ""},
        {entryWithName("Group", {}, {}, below),
         "\n    Group\n        .... ..1. Bits\n        Leaf: 7"},
        {entryWithName({}, "5", {}, below), "\n        .... ..1. Bits\n        Leaf: 7"},
    };
    for (const auto& [field, lines] : cases)
        EXPECT_EQ(composed(field), lines);
}
