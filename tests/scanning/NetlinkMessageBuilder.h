#pragma once

#include "scanning/nl80211/Nl80211Message.h"

#include <linux/nl80211.h>
#include <netlink/attr.h>
#include <netlink/genl/genl.h>
#include <netlink/msg.h>

#include <QByteArray>

#include <memory>

namespace tessara {

/// Builds a message of nl80211 as the kernel would, with libnl's own writer.
class NetlinkMessageBuilder {
public:
    explicit NetlinkMessageBuilder(int command = 0)
        : m_message(nlmsg_alloc(), &nlmsg_free)
    {
        genlmsg_put(m_message.get(), 0, 0, 28, 0, 0, static_cast<std::uint8_t>(command), 0);
    }

    nl_msg* raw() { return m_message.get(); }
    template <typename Number>
    NetlinkMessageBuilder& put(int type, Number value)
    {
        nla_put(raw(), type, sizeof(value), &value);
        return *this;
    }
    NetlinkMessageBuilder& putBytes(int type, const QByteArray& bytes)
    {
        nla_put(raw(), type, static_cast<int>(bytes.size()), bytes.constData());
        return *this;
    }
    template <typename Content>
    NetlinkMessageBuilder& nest(int type, const Content& content)
    {
        nlattr* start = nla_nest_start(raw(), type);
        content(*this);
        nla_nest_end(raw(), start);
        return *this;
    }

    /// The whole message, from its header on.
    QByteArray bytes()
    {
        const nlmsghdr* header = nlmsg_hdr(raw());
        return QByteArray(reinterpret_cast<const char*>(header), header->nlmsg_len);
    }
    /// The message as it is read; it views this builder.
    Nl80211Message message() { return *nl80211Message(viewOf(nlmsg_hdr(raw()))); }
    NetlinkAttributes attributes() { return message().attributes; }

private:
    static Bytes viewOf(const nlmsghdr* header)
    {
        return Bytes(reinterpret_cast<const std::uint8_t*>(header), header->nlmsg_len);
    }

    std::unique_ptr<nl_msg, decltype(&nlmsg_free)> m_message;
};

} // namespace tessara
