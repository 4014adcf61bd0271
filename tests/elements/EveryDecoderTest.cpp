#include "elements/ElementID.h"
#include "elements/FieldVisit.h"
#include "elements/TSInfoElement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

using namespace tessara;

namespace {

/// The most that a byte of a run makes: an element of HT capabilities that lacks all but one byte.
constexpr std::size_t kRowsOfByte = 24;

std::size_t rowsFrom(const Field& field)
{
    std::size_t rows = 1;
    forEachSubfield(field, [&rows](const Field& below) { rows += rowsFrom(below); });
    return rows;
}

std::size_t rowsIn(const TSInfoElement& element)
{
    std::size_t rows = 0;
    for (const Field& field : element.fields())
        rows += rowsFrom(field);
    return rows;
}

/// Decodes an element of each length, all of one value or of any, behind bytes that steer the way
/// through the decoder.
void decodeAllLengths(std::uint8_t id, const QByteArray& head)
{
    std::minstd_rand random(id);
    const std::function<int()> kinds[] = {
        [] { return 0; },
        [] { return 0xff; },
        [] { return 1; },
        [&random] { return static_cast<int>(random() >> 8 & 0xff); },
    };
    for (const auto& byte : kinds) {
        for (qsizetype length = 0; length <= 255; ++length) {
            QByteArray run(2 + length, '\0');
            std::ranges::generate(run, byte);
            run.replace(2, std::min(head.size(), length), head.left(length));
            run[0] = static_cast<char>(id);
            run[1] = static_cast<char>(length);
            const auto elements = informationElements(run);
            ASSERT_EQ(elements.size(), 1U);
            ASSERT_LE(rowsIn(elements[0]), kRowsOfByte * run.size()) << run.toHex().toStdString();
            ASSERT_FALSE(elements[0].ieDump().empty());
        }
    }
}

} // namespace

TEST(EveryDecoder, TakesAnyBytesOfAnyLength)
{
    for (int id = 0; id <= 255; ++id)
        decodeAllLengths(static_cast<std::uint8_t>(id), {});
}

TEST(EveryVendorDecoder, TakesAnyBytesOfAnyLength)
{
    for (const char* const oui : {"004096", "0050f2", "000b86", "00a0f8", "000c42", "506f9a"}) {
        for (char type = 0; type <= 20; ++type)
            decodeAllLengths(ElementID::kVendorSpecific, QByteArray::fromHex(oui) + type);
    }
}

TEST(EveryCount, MayLie)
{
    const struct {
        std::uint8_t id;
        const char* head; ///< a count or a length of too many, or of none
    } cases[] = {
        {ElementID::kRSN, "0100000fac04ffff"},
        {ElementID::kRSN, "0100000fac040100000fac04ffff"},
        {ElementID::kVendorSpecific, "0050f20101000050f202ffff"},
        {ElementID::kVendorSpecific, "0050f20101000050f20201000050f204ffff"},
        {ElementID::kVendorSpecific, "0050f20410210000"},
        {ElementID::kVendorSpecific, "0050f20410490000"},
        {ElementID::kVendorSpecific, "0050f2041047ffff"},
        {ElementID::kVendorSpecific, "000c420001ff"},
        {ElementID::kVendorSpecific, "000c42000100"},
    };
    for (const auto& [id, head] : cases)
        decodeAllLengths(id, QByteArray::fromHex(head));
}
