#pragma once

#include <QString>

namespace tessara {

/// A time as lists show it: "2023/11/14 10:13:20 PM", local time, in the language of the session.
/// @param time seconds since 1970
QString timeText(double time);
/// The same as the locale writes it at medium length: "Nov 14, 2023, 10:13:20 PM".
QString mediumTimeText(double time);

} // namespace tessara
