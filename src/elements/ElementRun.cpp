#include "elements/ElementRun.h"

#include "foundation/Utf8.h"

#include <algorithm>

namespace tessara {

std::optional<ElementView> ElementRun::find(std::uint8_t id) const
{
    for (const ElementView element : *this) {
        if (element.id == id)
            return element;
    }
    return std::nullopt;
}

bool ElementRun::hasVendorElement(std::uint32_t oui, std::uint8_t type) const
{
    for (const ElementView element : *this) {
        if (element.id != ElementID::kVendorSpecific || element.content.size() < 4)
            continue;
        const Bytes c = element.content;
        const std::uint32_t found = std::uint32_t{c[0]} << 16 | std::uint32_t{c[1]} << 8 | c[2];
        if (found == oui && c[3] == type)
            return true;
    }
    return false;
}

std::optional<QString> networkName(const ElementRun& run)
{
    const auto ssid = run.find(ElementID::kSSID);
    if (!ssid || std::ranges::all_of(ssid->content, [](std::uint8_t byte) { return byte == 0; }))
        return std::nullopt;
    return textFromUtf8(charactersOf(ssid->content));
}

} // namespace tessara
