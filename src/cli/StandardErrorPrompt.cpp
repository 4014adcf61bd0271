#include "cli/StandardErrorPrompt.h"

#include "cli/Command.h"

namespace tessara {

UserPrompt::AlertId StandardErrorPrompt::beginAlert(const TSAlert& alert, Answer)
{
    complain(alert.informativeText); // the message may be a question, which nobody can answer
    return 0;
}

} // namespace tessara
