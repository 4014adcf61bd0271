#pragma once

#include "scanning/nl80211/Nl80211Message.h"

#include <linux/nl80211.h>

#include <functional>
#include <memory>

struct nl_msg;
struct nl_sock;

namespace tessara {

/// How a request to the kernel ended.
struct NetlinkReply {
    int error = 0;            ///< an errno; 0 if the request was done
    bool interrupted = false; ///< the list changed while it was being read
};

/// What came of a look at the events of a socket.
enum class EventsRead {
    kNone,
    kSome,
    kSomeLost, ///< more came than the socket could hold: what has happened must be asked afresh
};

/// A socket to the kernel's nl80211. Each request and each watcher opens its own, so that none
/// ever waits for, or reads the answers of, another; a socket is used by one thread at a time.
class Nl80211Socket {
public:
    using Attributes = std::function<void(nl_msg*)>;
    using Handler = std::function<void(const Nl80211Message&)>;

    Nl80211Socket();

    /// Why the socket could not be opened, as an errno: ENOENT if the kernel has no nl80211.
    int error() const { return m_error; }
    int fileDescriptor() const;

    /// Sends a request and hands its answers, none or many, to the handler.
    NetlinkReply request(nl80211_commands command, const Attributes& attributes,
                         const Handler& handler);
    /// The same for a list. The kernel answers with one message for each entry.
    NetlinkReply dump(nl80211_commands command, const Attributes& attributes,
                      const Handler& handler);

    /// Subscribes to the events of a multicast group of nl80211; the socket then serves events
    /// only. @return an errno
    int subscribe(const char* group);
    /// Hands over the events that come within a time, or at once those that are there.
    EventsRead receiveEvents(int milliseconds, const Handler& handler);

private:
    struct Close {
        void operator()(nl_sock* socket) const;
    };

    NetlinkReply send(nl80211_commands command, int flags, const Attributes& attributes,
                      const Handler& handler);

    std::unique_ptr<nl_sock, Close> m_socket;
    int m_family = 0;
    int m_error = 0;
};

/// Asks what concerns one interface.
Nl80211Socket::Attributes ofInterface(unsigned index);

} // namespace tessara
