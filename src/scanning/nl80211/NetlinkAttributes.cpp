#include "scanning/nl80211/NetlinkAttributes.h"

#include <netlink/attr.h>

#include <cstring>

namespace tessara {

namespace {

const nlattr* firstOf(Bytes attributes)
{
    return reinterpret_cast<const nlattr*>(attributes.data());
}

int lengthOf(Bytes attributes)
{
    return static_cast<int>(attributes.size());
}

Bytes contentOf(const nlattr* attribute)
{
    return Bytes(static_cast<const std::uint8_t*>(nla_data(attribute)),
                 static_cast<std::size_t>(nla_len(attribute)));
}

} // namespace

QByteArray NetlinkAttributes::bytes(int type) const
{
    const Bytes content = find(type).value_or(Bytes());
    return QByteArray(reinterpret_cast<const char*>(content.data()),
                      static_cast<qsizetype>(content.size()));
}

std::vector<NetlinkAttributes> NetlinkAttributes::list(int type) const
{
    std::vector<NetlinkAttributes> entries;
    const Bytes content = find(type).value_or(Bytes());
    const nlattr* entry = nullptr;
    int remaining = 0;
    nla_for_each_attr(entry, firstOf(content), lengthOf(content), remaining)
        entries.emplace_back(contentOf(entry));
    return entries;
}

std::optional<Bytes> NetlinkAttributes::find(int type) const
{
    const nlattr* attribute = nla_find(firstOf(m_attributes), lengthOf(m_attributes), type);
    return attribute ? std::optional(contentOf(attribute)) : std::nullopt;
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
