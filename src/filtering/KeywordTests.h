#pragma once

#include "filtering/FilterTest.h"

#include <QStringView>

namespace tessara {

// Keywords: a token that is one asks for one attribute alone, and is not looked for in any name.
// Each function returns no test for a token that is none of its keywords.

/// "wpa", "wpa2", "wep", "psk", "802.1X"
FilterTest securityKeyword(QStringView token);
/// The letters of an amendment, also with what they belong to: "n", "11n", "802.11n"
FilterTest phyLetter(QStringView token);
/// "2.4 GHz", "5 GHz"
FilterTest bandKeyword(QStringView token);
/// "20 MHz" and the other widths
FilterTest widthKeyword(QStringView token);
/// The number of a channel that a network can have as its primary one.
FilterTest channelNumber(QStringView token);

} // namespace tessara
