#include "elements/TSInfoElement.h"

#include "elements/BitLines.h"
#include "elements/CapitalizedText.h"
#include "elements/ElementDecoder.h"
#include "elements/ElementDecoders.h"
#include "elements/ElementID.h"
#include "elements/ElementNames.h"
#include "elements/ElementVendor.h"
#include "elements/FieldVisit.h"

#include <QLocale>

#include <fmt/format.h>

#include <algorithm>

namespace tessara {

TSInfoElement::TSInfoElement(std::uint8_t id, Bytes data, std::shared_ptr<ElementDecoder> decoder)
    : m_ieID(id)
    , m_ieData(data)
    , m_decoder(std::move(decoder))
{
}

// Names -------------------------------------------------------------------------------------------

namespace {

/// The vendor's name, short enough for a row of a table: up to its first blank, comma or full
/// stop.
QString shortVendor(const QString& vendor)
{
    if (vendor == QStringLiteral("Wi-Fi Alliance"))
        return vendor;
    const auto end = std::ranges::find_if(
        vendor, [](QChar c) { return c.isSpace() || c == QChar(u',') || c == QChar(u'.'); });
    return vendor.left(end - vendor.begin());
}

std::string_view nameWithoutVendor(std::uint8_t id)
{
    return nameOfElement(id).value_or("Unknown");
}

} // namespace

std::string TSInfoElement::ieName() const
{
    if (m_ieID != ElementID::kVendorSpecific)
        return std::string(nameWithoutVendor(m_ieID));
    const auto vendor = vendorOfOUI(m_ieData);
    if (!vendor)
        return "Vendor Specific";
    return fmt::format("Vendor Specific ({})", capitalized(shortVendor(*vendor)).toStdString());
}

std::string TSInfoElement::ieDescription() const
{
    // A regional form of English does not count, and it is meant so.
    const QStringList languages = QLocale::system().uiLanguages();
    const char* description = descriptionOfElement(m_ieID);
    if (!description || languages.value(0) != QStringLiteral("en"))
        return {};
    return description;
}

std::string TSInfoElement::ieIdentifier() const
{
    // An element of Cisco's own identifier takes the vendors' form, with their identifier in it,
    // once it is decoded; it is meant so.
    const bool isVendors =
        m_ieID == ElementID::kVendorSpecific || (m_ieID == ElementID::kCiscoCCX4 && m_isDecoded);
    if (!isVendors || m_ieData.empty())
        return fmt::format("id={}", m_ieID);
    const ByteReader reader(m_ieData);
    return fmt::format("id={},oui={:02X}-{:02X}-{:02X},type={}", ElementID::kVendorSpecific,
                       reader.u8OrZero(0), reader.u8OrZero(1), reader.u8OrZero(2),
                       reader.u8OrZero(3));
}

// Decoding ----------------------------------------------------------------------------------------

void TSInfoElement::decode() const
{
    if (m_isDecoded)
        return;
    ElementDecoder& e = *m_decoder;
    e.begin(m_ieData);
    std::span<const Field> decoded;
    if (!m_ieData.empty())
        decoded = decoderForElement(m_ieID)(e);
    const std::span<Field> rows = e.allocateFields(2 + decoded.size());
    rows[0] = entryWithName("Element ID", e.decimal(m_ieID));
    rows[1] = entryWithName("Length", e.decimal(static_cast<std::int64_t>(ieLength())), "bytes");
    std::ranges::copy(decoded, rows.begin() + 2);
    m_ieFields = rows;
    m_ieSummary = e.summary();
    m_isDecoded = true;
}

std::string_view TSInfoElement::ieSummary() const
{
    decode();
    return m_ieSummary;
}

std::span<const Field> TSInfoElement::fields() const
{
    decode();
    return m_ieFields;
}

// Text --------------------------------------------------------------------------------------------

void composeField(const Field& field, std::size_t depth, DumpBuffer& lines)
{
    const bool isEntry = field.fieldName.has_value();
    if (const FieldText first = isEntry ? field.fieldName : field.fieldSubfieldName) {
        constexpr std::size_t kPunctuation = 4; // bytes, at most
        char* out = lines.roomFor(kLineStart + kPunctuation + first.size() +
                                  field.fieldValue.size() + field.fieldNotes.size());
        out = putLineStart(out, depth);
        out = put(out, *first);
        if (field.fieldValue) {
            out = put(out, isEntry ? ": " : " ");
            out = put(out, *field.fieldValue);
        }
        if (field.fieldValue && field.fieldNotes) {
            out = put(out, isEntry ? " " : ": ");
            out = put(out, *field.fieldNotes);
        }
        lines.setEnd(out);
    }
    if (!field.fieldSubfields)
        return;
    if (const auto* bits = std::get_if<BitRows>(&*field.fieldSubfields)) {
        BitLines::of(bits->bitFields).append(depth + 1, bits->value, lines);
        return;
    }
    for (const Field& row : std::get<std::span<const Field>>(*field.fieldSubfields))
        composeField(row, depth + 1, lines);
}

void TSInfoElement::appendDump(DumpBuffer& text) const
{
    const bool hasVendor = m_ieID == ElementID::kVendorSpecific;
    const std::string vendorName = hasVendor ? ieName() : std::string();
    const std::string_view name = hasVendor ? vendorName : nameWithoutVendor(m_ieID);
    const std::string_view summary = ieSummary();
    char* out = put(text.roomFor(name.size() + 3 + summary.size()), name);
    if (!summary.empty())
        out = put(put(out, " - "), summary);
    text.setEnd(out);
    for (const Field& field : fields())
        composeField(field, 1, text);
}

std::string TSInfoElement::ieDump() const
{
    DumpBuffer dump;
    appendDump(dump);
    return std::string(dump.text());
}

// Runs --------------------------------------------------------------------------------------------

std::vector<TSInfoElement> informationElements(const QByteArray& run)
{
    constexpr std::size_t kRowsOfARun = 16384; // bytes, about what most beacons need
    const auto decoder = std::make_shared<ElementDecoder>(kRowsOfARun);
    const auto size = static_cast<std::size_t>(run.size());
    const Bytes bytes = decoder->zeroPadded(
        {reinterpret_cast<const std::uint8_t*>(run.constData()), size}, size + 1 + kLongestContent);
    std::vector<TSInfoElement> elements;
    for (std::size_t offset = 0; offset < size;) {
        const std::size_t length = bytes[offset + 1];
        elements.emplace_back(bytes[offset], bytes.subspan(offset + 2, length), decoder);
        offset += 2 + length;
    }
    return elements;
}

} // namespace tessara
