#pragma once

#include "filtering/DisplayPipeline.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace tessara {

/// How the user has laid out the columns of a table. Columns are told by their identifiers, so
/// that a layout outlives a version that has more of them.
struct ColumnLayout {
    struct Section {
        const Column* column;
        int width; ///< pixels
        bool hidden;
    };
    std::vector<Section> sections;               ///< from left to right
    std::vector<SortDescriptor> sortDescriptors; ///< the first rules

    QByteArray toJson() const;
    /// A layout from its stored form; columns that do not exist are left out, and one that is
    /// damaged has nothing to tell.
    static ColumnLayout fromJson(const QByteArray& json);
};

} // namespace tessara
