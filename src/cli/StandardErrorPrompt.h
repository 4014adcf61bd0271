#pragma once

#include "foundation/UserPrompt.h"

namespace tessara {

/// Tells the user on standard error. Nobody can answer there: an alert stays until it is ended.
class StandardErrorPrompt final : public UserPrompt {
public:
    AlertId beginAlert(const TSAlert& alert, Answer answer) override;
    void endAlert(AlertId) override {}
};

} // namespace tessara
