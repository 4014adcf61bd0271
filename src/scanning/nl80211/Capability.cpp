#include "scanning/nl80211/Capability.h"

#include <array>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tessara {

bool mayTriggerScans()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
    if (syscall(SYS_capget, &header, sets.data()) != 0)
        return false;
    return (sets[CAP_TO_INDEX(CAP_NET_ADMIN)].effective & CAP_TO_MASK(CAP_NET_ADMIN)) != 0;
}

} // namespace tessara
