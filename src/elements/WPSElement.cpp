#include "elements/WPSElement.h"

#include "elements/FieldVisit.h"
#include "elements/JoinedText.h"
#include "foundation/Utf8.h"

#include <algorithm>

namespace tessara {

namespace {

constexpr ValueText kResponseTypes[] = {
    {0, "Enrollee, Info Only"},
    {1, "Enrollee, Open 802.1X"},
    {2, "Registrar"},
    {3, "AP"},
};
constexpr ValueText kRFBands[] = {{1, "2.4 GHz"}, {2, "5 GHz"}, {3, "2.4 and 5 GHz"}};
constexpr ValueText kSetupStates[] = {{1, "Not configured"}, {2, "Configured"}};

constexpr auto kConfigurationMethods = bitFields<16>({
    flag(0x0001, "USB", "Yes", "No"),
    flag(0x0002, "Ethernet", "Yes", "No"),
    flag(0x0004, "Label", "Yes", "No"),
    flag(0x0008, "Display", "Yes", "No"),
    flag(0x0010, "External NFC", "Yes", "No"),
    flag(0x0020, "Internal NFC", "Yes", "No"),
    flag(0x0080, "Push Button", "Yes", "No"),
    flag(0x0100, "Keypad", "Yes", "No"),
    flag(0x0200, "Virtual Push Button", "Yes", "No"),
    flag(0x0400, "Physical Push Button", "Yes", "No"),
    flag(0x2000, "Virtual Display", "Yes", "No"),
    flag(0x4000, "Physical Display", "Yes", "No"),
});

constexpr ValueText kCategories[] = {
    {1, "Computer"},
    {2, "Input Device"},
    {3, "Printers, Scanners, Faxes and Copiers"},
    {4, "Camera"},
    {5, "Storage"},
    {6, "Network Infrastructure"},
    {7, "Displays"},
    {8, "Multimedia Devices"},
    {9, "Gaming Devices"},
    {10, "Telephone"},
    {11, "Audio Devices"},
};
/// By ten times the category and the subcategory. Those of audio devices stand a decade too high,
/// and it is meant so.
constexpr ValueText kSubcategories[] = {
    {11, "PC"},
    {12, "Server"},
    {13, "Media Center"},
    {14, "Ultra-mobile PC"},
    {15, "Notebook"},
    {16, "Desktop"},
    {17, "MID (Mobile Internet Device)"},
    {18, "Netbook"},
    {21, "Keyboard"},
    {22, "Mouse"},
    {23, "Joystick"},
    {24, "Trackball"},
    {25, "Gaming Controller"},
    {26, "Remote"},
    {27, "Touchscreen"},
    {28, "Biometric Reader"},
    {29, "Barcode Reader"},
    {31, "Printer or Print Server"},
    {32, "Scanner"},
    {33, "Fax"},
    {34, "Copier"},
    {35, "All-in-One (Printer, Scanner, Fax, Copier)"},
    {41, "Digital Still Camera"},
    {42, "Video Camera"},
    {43, "Web Camera"},
    {44, "Security Camera"},
    {51, "NAS"},
    {61, "AP"},
    {62, "Router"},
    {63, "Switch"},
    {64, "Gateway"},
    {65, "Bridge"},
    {71, "Television"},
    {72, "Electronic Picture Frame"},
    {73, "Projector"},
    {74, "Monitor"},
    {81, "DAR"},
    {82, "PVR"},
    {83, "MCX"},
    {84, "Set-Top Box"},
    {85, "Media Server/Media Adapter/Media Extender"},
    {86, "Portable Video Player"},
    {91, "Xbox"},
    {92, "Xbox360"},
    {93, "Playstation"},
    {94, "Game Console/Game Console Adapter"},
    {95, "Portable Gaming Device"},
    {101, "Windows Mobile"},
    {102, "Phone - Single Mode"},
    {103, "Phone - Dual Mode"},
    {104, "Smartphone - Single Mode"},
    {105, "Smartphone - Dual Mode"},
    {121, "Audio Tuner"},
    {122, "Speakers"},
    {123, "Portable Music Player (PMP)"},
    {124, "Headset (headphones + microphone)"},
    {125, "Headphones"},
};

/// Shows the attributes of the element one by one.
class WPSAttributes {
public:
    explicit WPSAttributes(ElementDecoder& e)
        : m_e(e)
        , m_rows(e.list(kTypicalRows))
        , m_summary(e, "; ")
    {
    }

    std::span<const Field> parse();

private:
    static constexpr std::size_t kTypicalRows = 16;

    void show(std::uint16_t type);
    void addString(std::string_view name, std::size_t longest);
    void addText(std::string_view name, std::span<const ValueText> texts);
    void addConfigurationMethods();
    void addDeviceName();
    void addSetupState();
    void addVendorExtension();
    void addVersion();
    void addPrimaryDeviceType();
    void addSetupLocked();
    void addOther(std::uint16_t type);

    std::uint8_t firstByte() const { return m_e.u8(m_offset); }
    Bytes value() const { return m_e.bytes(m_offset, m_length); }

    ElementDecoder& m_e;
    FieldList& m_rows;
    JoinedText m_summary;
    std::size_t m_offset = 4; ///< of the value of the attribute
    std::size_t m_length = 0; ///< as the attribute says
};

std::span<const Field> WPSAttributes::parse()
{
    constexpr std::int64_t kHeaderSize = 4;

    m_rows.push_back(entryWithName("Type", "WPS"));
    m_summary.add("Wi-Fi Protected Setup (WPS)");
    // Two bytes more than there are behind the header of the element, and it is meant so.
    auto remainder = static_cast<std::int64_t>(m_e.length()) - 2;
    while (remainder >= kHeaderSize) {
        const std::uint16_t type = m_e.u16BigEndian(m_offset);
        m_length = m_e.u16BigEndian(m_offset + 2);
        m_offset += kHeaderSize;
        show(type);
        m_offset += m_length;
        remainder -= kHeaderSize + static_cast<std::int64_t>(m_length);
    }
    m_e.setSummary(m_summary.text());
    return m_rows;
}

void WPSAttributes::show(std::uint16_t type)
{
    switch (type) {
    case 0x1008:
        return addConfigurationMethods();
    case 0x1011:
        return addDeviceName();
    case 0x1021:
        return addString("Manufacturer", 64);
    case 0x1023:
        return addString("Model", 32);
    case 0x1024:
        return addString("Model Number", 32);
    case 0x103b:
        return addText("Response Type", kResponseTypes);
    case 0x103c:
        return addText("RF Bands", kRFBands);
    case 0x1042:
        return addString("Serial Number", 32);
    case 0x1044:
        return addSetupState();
    case 0x1047:
        return m_rows.push_back(entryWithName("UUID-E", m_e.hexadecimalString(value())));
    case 0x1049:
        return addVendorExtension();
    case 0x104a:
        return addVersion();
    case 0x1054:
        return addPrimaryDeviceType();
    case 0x1057:
        return addSetupLocked();
    default:
        return addOther(type);
    }
}

void WPSAttributes::addString(std::string_view name, std::size_t longest)
{
    m_rows.push_back(entryWithName(
        name, ElementDecoder::utf8(m_e.bytes(m_offset, std::min(m_length, longest)))));
}

void WPSAttributes::addText(std::string_view name, std::span<const ValueText> texts)
{
    m_rows.push_back(entryWithName(name, textFor(texts, firstByte())));
}

void WPSAttributes::addConfigurationMethods()
{
    const BitRows items = m_e.bitRows(kConfigurationMethods, m_e.u16BigEndian(m_offset));
    JoinedText methods(m_e, ", ");
    forEachSubfield(entryWithName({}, {}, {}, items), [&methods](const Field& item) {
        if (item.fieldNotes == "Yes")
            methods.add(*item.fieldValue);
    });
    m_rows.push_back(entryWithName("Configuration Methods", methods.text(), {}, items));
    if (!methods.isEmpty())
        m_summary.add(m_e.concatenated({"Methods: ", methods.text()}));
}

void WPSAttributes::addDeviceName()
{
    constexpr std::size_t kLongest = 32;
    const auto text = textFromUtf8(charactersOf(m_e.bytes(m_offset, std::min(m_length, kLongest))));
    if (!text) {
        m_rows.push_back(entryWithName("Device Name"));
        return;
    }
    const std::string_view name = m_e.keep(text->trimmed().toStdString());
    m_rows.push_back(entryWithName("Device Name", name));
    if (!name.empty())
        m_summary.add(name);
}

void WPSAttributes::addSetupState()
{
    const auto state = textFor(kSetupStates, firstByte());
    m_rows.push_back(entryWithName("Wi-Fi Protected Setup State", state.value_or("Unknown")));
    if (state)
        m_summary.add(*state);
}

void WPSAttributes::addVendorExtension()
{
    constexpr std::size_t kVendorSize = 3;
    const std::uint32_t vendor =
        std::uint32_t{m_e.u16BigEndian(m_offset)} << 8 | m_e.u8(m_offset + 2);
    const Bytes data =
        m_e.bytes(m_offset + kVendorSize, m_length - std::min(m_length, kVendorSize));
    m_rows.push_back(entryWithName("Vendor Extension", {}, {},
                                   m_e.fields({
                                       entryWithName("Vendor ID", m_e.decimal(vendor)),
                                       entryWithName("Vendor Data", m_e.hexadecimalString(data)),
                                   })));
}

void WPSAttributes::addVersion()
{
    const int major = firstByte() >> 4;
    const int minor = firstByte() & 0x0f;
    m_rows.push_back(entryWithName("Version", m_e.text("{:.1f}", major + minor / 10.0)));
}

void WPSAttributes::addPrimaryDeviceType()
{
    constexpr std::uint8_t kOUI[] = {0x00, 0x50, 0xf2, 0x04};
    const std::uint8_t category = m_e.u8(m_offset + 1);
    const std::uint8_t subcategory = m_e.u8(m_offset + 7);
    std::optional<std::string_view> name;
    std::optional<std::string_view> shown = m_e.text("0x{:02X}", subcategory);
    if (std::ranges::equal(m_e.bytes(m_offset + 2, std::size(kOUI)), kOUI))
        shown = name = textFor(kSubcategories, category * 10U + subcategory);
    m_rows.push_back(entryWithName("Primary Device Type", name, {},
                                   m_e.fields({
                                       entryWithName("Category", textFor(kCategories, category)),
                                       entryWithName("Subcategory", shown),
                                   })));
    if (name)
        m_summary.add(*name);
}

void WPSAttributes::addSetupLocked()
{
    const bool isLocked = firstByte() != 0;
    m_rows.push_back(entryWithName("AP Setup Locked", isLocked ? "Yes" : "No"));
    if (isLocked)
        m_summary.add("Locked");
}

void WPSAttributes::addOther(std::uint16_t type)
{
    const std::string_view number = m_e.text("0x{:02X}", type);
    m_rows.push_back(entryWithName(
        "Data Element", number, {},
        m_e.fields({
            entryWithName("Type", number),
            entryWithName("Length", m_e.decimal(static_cast<std::int64_t>(m_length)), "bytes"),
            entryWithName("Data", m_e.hexadecimalString(value())),
        })));
}

} // namespace

std::span<const Field> parseWPS(ElementDecoder& e)
{
    return WPSAttributes(e).parse();
}

} // namespace tessara
