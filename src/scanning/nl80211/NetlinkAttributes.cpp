#include "scanning/nl80211/NetlinkAttributes.h"

#include <netlink/attr.h>

#include <cstring>

namespace tessara
{

QByteArray NetlinkAttributes::bytes(int type) const
{
    const Bytes content = find(type).value_or(Bytes());
    return QByteArray(reinterpret_cast<const char*>(content.data()),
                      static_cast<qsizetype>(content.size()));
}

std::optional<Bytes> NetlinkAttributes::find(int type) const
{
    const auto* attribute = nla_find(reinterpret_cast<const nlattr*>(m_attributes.data()),
                                     static_cast<int>(m_attributes.size()), type);
    if (!attribute)
        return std::nullopt;
    return Bytes(static_cast<const std::uint8_t*>(nla_data(attribute)),
                 static_cast<std::size_t>(nla_len(attribute)));
}

template <typename Number>
std::optional<Number> NetlinkAttributes::number(int type) const
{
    const auto content = find(type);
    if (!content || content->size() < sizeof(Number))
        return std::nullopt;
    Number value;
    std::memcpy(&value, content->data(), sizeof(Number)); // netlink speaks the host's byte order
    return value;
}

template std::optional<std::int8_t> NetlinkAttributes::number(int) const;
template std::optional<std::uint16_t> NetlinkAttributes::number(int) const;
template std::optional<std::uint32_t> NetlinkAttributes::number(int) const;
template std::optional<std::int32_t> NetlinkAttributes::number(int) const;
template std::optional<std::uint64_t> NetlinkAttributes::number(int) const;

} // namespace tessara
