#pragma once

#include "foundation/ByteReader.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

namespace tessara {

/// The attributes of one level of a netlink message, asked for by type. An attribute that is
/// missing, or too short for the number asked for, is absent; of two of one type the first counts;
/// what is cut off at the end is not there. Views the bytes of the message, which must outlive it
/// and be aligned as netlink has them, to four bytes.
class NetlinkAttributes {
public:
    explicit NetlinkAttributes(Bytes attributes)
        : m_attributes(attributes)
    {
    }

    bool contains(int type) const { return find(type).has_value(); }
    std::optional<std::int8_t> s8(int type) const { return number<std::int8_t>(type); }
    std::optional<std::uint16_t> u16(int type) const { return number<std::uint16_t>(type); }
    std::optional<std::uint32_t> u32(int type) const { return number<std::uint32_t>(type); }
    std::optional<std::int32_t> s32(int type) const { return number<std::int32_t>(type); }
    std::optional<std::uint64_t> u64(int type) const { return number<std::uint64_t>(type); }
    /// The content of an attribute; empty if there is none.
    QByteArray bytes(int type) const;
    /// The attributes inside an attribute; none at all if there is none.
    NetlinkAttributes nested(int type) const
    {
        return NetlinkAttributes(find(type).value_or(Bytes()));
    }
    /// The entries of a list: an attribute that holds attributes, which hold attributes.
    std::vector<NetlinkAttributes> list(int type) const;

private:
    std::optional<Bytes> find(int type) const;
    template <typename Number>
    std::optional<Number> number(int type) const;

    Bytes m_attributes;
};

} // namespace tessara
