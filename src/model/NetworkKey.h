#pragma once

#include "model/Band.h"

#include <QString>

#include <cstddef>

namespace tessara {

/// What makes two sightings one network: the BSSID, without regard to case, and the band. Neither
/// the channel nor the name plays a part. Raw BSSIDs are compared as they stand.
struct NetworkKey {
    QString bssid;
    Band band;

    bool operator==(const NetworkKey& other) const
    {
        return band == other.band && bssid.compare(other.bssid, Qt::CaseInsensitive) == 0;
    }

    /// For unordered containers; equal keys hash alike.
    struct Hash {
        std::size_t operator()(const NetworkKey& key) const
        {
            constexpr std::size_t kPrime = 1099511628211U; // FNV-1a
            std::size_t hash = 14695981039346656037U ^ static_cast<std::size_t>(key.band);
            for (const QChar character : key.bssid)
                hash = (hash ^ character.toCaseFolded().unicode()) * kPrime;
            return hash;
        }
    };
};

} // namespace tessara
