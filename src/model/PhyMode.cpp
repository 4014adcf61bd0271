#include "model/PhyMode.h"

#include <QStringList>

namespace tessara {

QString phyModeText(std::int64_t modes)
{
    struct ModeInfo {
        PhyMode mode;
        const char* letters;
    };
    constexpr ModeInfo kModes[] = {
        {kPhyModeA, "a"}, {kPhyModeB, "b"}, {kPhyModeG, "g"}, {kPhyModeN, "n"}, {kPhyModeAC, "ac"},
    };
    QStringList letters;
    for (const ModeInfo& info : kModes) {
        if (modes & info.mode)
            letters += QLatin1String(info.letters);
    }
    return letters.join(u'/');
}

} // namespace tessara
