#include "elements/ElementVendor.h"

#include "foundation/Directories.h"

namespace tessara {

std::optional<QString> vendorOfOUI(Bytes bytes)
{
    const VendorDirectory* vendors = Directories::installed().vendors;
    if (bytes.size() < 3 || !vendors)
        return std::nullopt;
    return vendors->vendorFor(QString::asprintf("%02X:%02X:%02X", bytes[0], bytes[1], bytes[2]));
}

} // namespace tessara
