#pragma once

namespace tessara {

/// Whether the process may configure the network (CAP_NET_ADMIN), which the kernel demands of
/// those who trigger a scan.
bool mayTriggerScans();

} // namespace tessara
