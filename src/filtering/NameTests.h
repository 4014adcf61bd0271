#pragma once

#include "filtering/FilterTest.h"

#include <QStringView>

namespace tessara {

/// A part of a BSSID: any token with a ":" that is not in quotation marks.
/// @return no test for another token
FilterTest partOfBSSID(QStringView token);

/// Any token at all: in quotation marks the whole of a BSSID, name, note, vendor or country code,
/// otherwise a part of a name, note or vendor, or a whole country code.
FilterTest nameTest(QStringView token);

} // namespace tessara
