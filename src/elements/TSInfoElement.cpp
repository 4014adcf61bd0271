#include "elements/TSInfoElement.h"

#include "elements/CapitalizedText.h"
#include "elements/ElementDecoder.h"
#include "elements/ElementDecoders.h"
#include "elements/ElementID.h"
#include "elements/ElementNames.h"
#include "elements/ElementVendor.h"
#include "elements/FieldVisit.h"
#include "foundation/Localized.h"

#include <QLocale>

#include <fmt/format.h>

#include <algorithm>

namespace tessara {

TSInfoElement::TSInfoElement(std::uint8_t id, QByteArray data)
    : m_ieID(id)
    , m_ieData(std::move(data))
{
}

TSInfoElement::TSInfoElement(TSInfoElement&&) noexcept = default;
TSInfoElement& TSInfoElement::operator=(TSInfoElement&&) noexcept = default;
TSInfoElement::~TSInfoElement() = default;

Bytes TSInfoElement::bytes() const
{
    return {reinterpret_cast<const std::uint8_t*>(m_ieData.constData()), ieLength()};
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

} // namespace

std::string TSInfoElement::ieName() const
{
    if (m_ieID != ElementID::kVendorSpecific)
        return std::string(nameOfElement(m_ieID).value_or("Unknown"));
    const auto vendor = vendorOfOUI(bytes());
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
    return localized(description).toStdString();
}

std::string TSInfoElement::ieIdentifier() const
{
    // An element of Cisco's own identifier takes the vendors' form, with their identifier in it,
    // once it is decoded; it is meant so.
    const bool isVendors =
        m_ieID == ElementID::kVendorSpecific || (m_ieID == ElementID::kCiscoCCX4 && m_decoder);
    if (!isVendors || m_ieData.isEmpty())
        return fmt::format("id={}", m_ieID);
    const ByteReader reader(bytes());
    return fmt::format("id={},oui={:02X}-{:02X}-{:02X},type={}", ElementID::kVendorSpecific,
                       reader.u8OrZero(0), reader.u8OrZero(1), reader.u8OrZero(2),
                       reader.u8OrZero(3));
}

// Decoding ----------------------------------------------------------------------------------------

void TSInfoElement::decode() const
{
    if (m_decoder)
        return;
    m_decoder = std::make_unique<ElementDecoder>(bytes());
    ElementDecoder& e = *m_decoder;
    std::span<const Field> decoded;
    if (!m_ieData.isEmpty())
        decoded = decoderForElement(m_ieID)(e);
    FieldList& rows = e.list(2 + decoded.size());
    rows.push_back(entryWithName("Element ID", e.decimal(m_ieID)));
    rows.push_back(
        entryWithName("Length", e.decimal(static_cast<std::int64_t>(ieLength())), "bytes"));
    rows.insert(rows.end(), decoded.begin(), decoded.end());
    m_ieFields = rows;
}

std::string_view TSInfoElement::ieSummary() const
{
    decode();
    return m_decoder->summary();
}

std::span<const Field> TSInfoElement::fields() const
{
    decode();
    return m_ieFields;
}

// Text --------------------------------------------------------------------------------------------

void composeField(const Field& field, std::string_view indent, DumpBuffer& lines)
{
    const bool isEntry = field.fieldName.has_value();
    if (const FieldText first = isEntry ? field.fieldName : field.fieldSubfieldName) {
        constexpr std::size_t kPunctuation = 8; // bytes, at most
        lines.makeRoom(kPunctuation + indent.size() + first.size() + field.fieldValue.size() +
                       field.fieldNotes.size());
        lines.put('\n');
        lines.put(indent);
        lines.put(*first);
        if (field.fieldValue) {
            if (isEntry)
                lines.put(':');
            lines.put(' ');
            lines.put(*field.fieldValue);
        }
        if (field.fieldValue && field.fieldNotes) {
            if (!isEntry)
                lines.put(':');
            lines.put(' ');
            lines.put(*field.fieldNotes);
        }
    }
    if (!field.fieldSubfields)
        return;
    const std::string deeper = std::string(indent) + "    ";
    forEachSubfield(field, [&](const Field& row) { composeField(row, deeper, lines); });
}

std::string TSInfoElement::ieDump() const
{
    const std::string name = ieName();
    const std::string_view summary = ieSummary();
    DumpBuffer dump;
    dump.makeRoom(name.size() + 3 + summary.size());
    dump.put(name);
    if (!summary.empty()) {
        dump.put(" - ");
        dump.put(summary);
    }
    for (const Field& field : fields())
        composeField(field, "    ", dump);
    return std::string(dump.text());
}

// Runs --------------------------------------------------------------------------------------------

std::vector<TSInfoElement> informationElements(const QByteArray& run)
{
    std::vector<TSInfoElement> elements;
    for (qsizetype offset = 0; offset < run.size();) {
        const auto id = static_cast<std::uint8_t>(run[offset]);
        const auto length =
            offset + 1 < run.size() ? static_cast<std::uint8_t>(run[offset + 1]) : 0;
        QByteArray data = run.mid(offset + 2, length);
        if (data.size() < length)
            data = data.leftJustified(length, '\0');
        elements.emplace_back(id, std::move(data));
        offset += 2 + length;
    }
    return elements;
}

} // namespace tessara
