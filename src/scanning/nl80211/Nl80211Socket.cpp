#include "scanning/nl80211/Nl80211Socket.h"

#include <netlink/genl/ctrl.h>
#include <netlink/genl/genl.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/socket.h>

#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace tessara {

namespace {

// The kernel answers at once; this guards against a driver that holds its lock for good.
constexpr timeval kAnswerTimeout = {5, 0};
// The kernel packs a list into messages no larger than the buffer it is read with, and one
// network with all its elements has to fit.
constexpr std::size_t kMessageBuffer = 32 * 1024;
constexpr int kReceiveBuffer = 256 * 1024;

/// The state of one request, filled by libnl's callbacks.
struct Exchange {
    const Nl80211Socket::Handler& handler;
    NetlinkReply reply;
    bool isOver = false;

    void endWith(int error)
    {
        reply.error = error;
        isOver = true;
    }
};

Exchange& exchangeOf(void* argument)
{
    return *static_cast<Exchange*>(argument);
}

int handleMessage(nl_msg* message, void* handler)
{
    const nlmsghdr* header = nlmsg_hdr(message);
    const Bytes bytes(reinterpret_cast<const std::uint8_t*>(header), header->nlmsg_len);
    if (const auto parsed = nl80211Message(bytes))
        (*static_cast<const Nl80211Socket::Handler*>(handler))(*parsed);
    return NL_OK;
}

int handleAnswer(nl_msg* message, void* argument)
{
    Exchange& exchange = exchangeOf(argument);
    return handleMessage(message, const_cast<Nl80211Socket::Handler*>(&exchange.handler));
}

int handleAcknowledgement(nl_msg*, void* argument)
{
    exchangeOf(argument).isOver = true;
    return NL_STOP;
}

int handleEndOfDump(nl_msg* message, void* argument)
{
    // A list that failed half way ends like one that did not, with the error in its last message.
    const nlmsghdr* header = nlmsg_hdr(message);
    int error = 0;
    if (nlmsg_datalen(header) >= static_cast<int>(sizeof(error)))
        error = *static_cast<const int*>(nlmsg_data(header));
    exchangeOf(argument).endWith(error < 0 ? -error : 0);
    return NL_STOP;
}

int handleInterruptedDump(nl_msg*, void* argument)
{
    exchangeOf(argument).reply.interrupted = true;
    return NL_OK;
}

int handleError(sockaddr_nl*, nlmsgerr* error, void* argument)
{
    exchangeOf(argument).endWith(-error->error);
    return NL_STOP;
}

using Callbacks = std::unique_ptr<nl_cb, decltype(&nl_cb_put)>;

Callbacks newCallbacks()
{
    return {nl_cb_alloc(NL_CB_DEFAULT), &nl_cb_put};
}

} // namespace

void Nl80211Socket::Close::operator()(nl_sock* socket) const
{
    nl_socket_free(socket);
}

Nl80211Socket::Nl80211Socket()
    : m_socket(nl_socket_alloc())
{
    if (!m_socket) {
        m_error = ENOMEM;
        return;
    }
    if (genl_connect(m_socket.get()) < 0) {
        m_error = EPROTONOSUPPORT;
        return;
    }
    setsockopt(fileDescriptor(), SOL_SOCKET, SO_RCVTIMEO, &kAnswerTimeout, sizeof(kAnswerTimeout));
    nl_socket_set_buffer_size(m_socket.get(), kReceiveBuffer, 0);
    nl_socket_set_msg_buf_size(m_socket.get(), kMessageBuffer);
    nl_socket_enable_msg_peek(m_socket.get());
    m_family = genl_ctrl_resolve(m_socket.get(), NL80211_GENL_NAME);
    if (m_family < 0)
        m_error = ENOENT;
}

int Nl80211Socket::fileDescriptor() const
{
    return nl_socket_get_fd(m_socket.get());
}

NetlinkReply Nl80211Socket::request(nl80211_commands command, const Attributes& attributes,
                                    const Handler& handler)
{
    return send(command, 0, attributes, handler);
}

NetlinkReply Nl80211Socket::dump(nl80211_commands command, const Attributes& attributes,
                                 const Handler& handler)
{
    return send(command, NLM_F_DUMP, attributes, handler);
}

NetlinkReply Nl80211Socket::send(nl80211_commands command, int flags, const Attributes& attributes,
                                 const Handler& handler)
{
    if (m_error != 0)
        return {m_error};
    const std::unique_ptr<nl_msg, decltype(&nlmsg_free)> message(nlmsg_alloc(), &nlmsg_free);
    const Callbacks callbacks = newCallbacks();
    if (!message || !callbacks)
        return {ENOMEM};
    genlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, m_family, 0, flags,
                static_cast<std::uint8_t>(command), 0);
    attributes(message.get());

    Exchange exchange{handler, {}, false};
    nl_cb_set(callbacks.get(), NL_CB_VALID, NL_CB_CUSTOM, handleAnswer, &exchange);
    nl_cb_set(callbacks.get(), NL_CB_ACK, NL_CB_CUSTOM, handleAcknowledgement, &exchange);
    nl_cb_set(callbacks.get(), NL_CB_FINISH, NL_CB_CUSTOM, handleEndOfDump, &exchange);
    nl_cb_set(callbacks.get(), NL_CB_DUMP_INTR, NL_CB_CUSTOM, handleInterruptedDump, &exchange);
    nl_cb_err(callbacks.get(), NL_CB_CUSTOM, handleError, &exchange);
    if (nl_send_auto(m_socket.get(), message.get()) < 0)
        return {EIO};
    while (!exchange.isOver) {
        const int result = nl_recvmsgs(m_socket.get(), callbacks.get());
        if (result < 0 && !exchange.isOver)
            exchange.endWith(result == -NLE_AGAIN ? ETIMEDOUT : EIO);
    }
    return exchange.reply;
}

int Nl80211Socket::subscribe(const char* group)
{
    if (m_error != 0)
        return m_error;
    const int id = genl_ctrl_resolve_grp(m_socket.get(), NL80211_GENL_NAME, group);
    if (id < 0 || nl_socket_add_membership(m_socket.get(), id) < 0)
        return ENOENT;
    nl_socket_disable_seq_check(m_socket.get());
    nl_socket_set_nonblocking(m_socket.get());
    return 0;
}

EventsRead Nl80211Socket::receiveEvents(int milliseconds, const Handler& handler)
{
    pollfd descriptor{fileDescriptor(), POLLIN, 0};
    if (poll(&descriptor, 1, milliseconds) <= 0)
        return EventsRead::kNone;
    const Callbacks callbacks = newCallbacks();
    if (!callbacks)
        return EventsRead::kNone;
    nl_cb_set(
        callbacks.get(), NL_CB_SEQ_CHECK, NL_CB_CUSTOM,
        [](nl_msg*, void*) -> int {
            return NL_OK; // events answer no request
        },
        nullptr);
    nl_cb_set(callbacks.get(), NL_CB_VALID, NL_CB_CUSTOM, handleMessage,
              const_cast<Handler*>(&handler));
    // Of the ways to fail the usual one is ENOBUFS, by which the kernel tells that it dropped some.
    return nl_recvmsgs(m_socket.get(), callbacks.get()) < 0 ? EventsRead::kSomeLost
                                                            : EventsRead::kSome;
}

Nl80211Socket::Attributes ofInterface(unsigned index)
{
    return [index](nl_msg* message) { nla_put_u32(message, NL80211_ATTR_IFINDEX, index); };
}

} // namespace tessara
