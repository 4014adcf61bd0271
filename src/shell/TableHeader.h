#pragma once

#include <QHeaderView>

namespace tessara {

/// The header of a table: columns that can be moved, with their titles in the middle, cut at the
/// end where a column is narrow.
class TableHeader final : public QHeaderView {
    Q_OBJECT

public:
    explicit TableHeader(QWidget* parent = nullptr);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
};

} // namespace tessara
