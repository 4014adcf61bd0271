#include "model/PhyMode.h"

#include <QStringList>

namespace tessara {

namespace {

constexpr PhyModeInfo kModes[] = {
    {kPhyModeA, "a"}, {kPhyModeB, "b"}, {kPhyModeG, "g"}, {kPhyModeN, "n"}, {kPhyModeAC, "ac"},
};

} // namespace

std::span<const PhyModeInfo> phyModes()
{
    return kModes;
}

QString phyModeText(std::int64_t modes)
{
    QStringList letters;
    for (const PhyModeInfo& info : kModes) {
        if (modes & info.mode)
            letters += QLatin1String(info.letters);
    }
    return letters.join(u'/');
}

} // namespace tessara
