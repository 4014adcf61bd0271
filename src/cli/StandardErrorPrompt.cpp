#include "cli/StandardErrorPrompt.h"

#include "cli/Command.h"

namespace tessara {

UserPrompt::AlertId StandardErrorPrompt::beginAlert(const TSAlert& alert, Answer)
{
    complain(alert.messageText + u' ' + alert.informativeText);
    return 0;
}

} // namespace tessara
