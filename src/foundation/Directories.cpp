#include "foundation/Directories.h"

namespace tessara {

Directories& Directories::installed()
{
    static Directories directories;
    return directories;
}

} // namespace tessara
