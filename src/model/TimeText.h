#pragma once

#include <QString>

namespace tessara {

/// A time as lists show it: "2023/11/14 10:13:20 PM", local time, in the language of the session.
/// @param time seconds since 1970
QString timeText(double time);

} // namespace tessara
