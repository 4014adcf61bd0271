#include "cli/TableText.h"

#include "cli/Terminal.h"
#include "foundation/HarmlessText.h"
#include "foundation/Localized.h"

#include <algorithm>
#include <numeric>

namespace tessara {

namespace {

constexpr int kGap = 2;            ///< blanks between two columns
constexpr int kNarrowestName = 10; ///< a name is not cut below this

/// Names that people give are of any length, and mostly told apart by their beginnings.
bool mayBeCut(const Column& column)
{
    constexpr QStringView kColumns[] = {u"SSID", u"VENDOR", u"DEVICE_NAME", u"ANNOTATIONS"};
    return std::ranges::find(kColumns, column.identifier) != std::end(kColumns);
}

/// The widths of as many columns, from the first on, as have room: of names the widest are cut,
/// and a column that has no room even so is left out with those behind it.
std::vector<int> fittingWidths(const std::vector<const Column*>& columns,
                               const std::vector<int>& wanted, int available)
{
    for (std::size_t count = columns.size(); count > 0; --count) {
        std::vector<int> widths(wanted.begin(),
                                wanted.begin() + static_cast<std::ptrdiff_t>(count));
        int total =
            std::accumulate(widths.begin(), widths.end(), 0) + kGap * (static_cast<int>(count) - 1);
        while (total > available) {
            int* widest = nullptr;
            for (std::size_t i = 0; i < count; ++i) {
                const bool isWider = !widest || widths[i] > *widest;
                if (mayBeCut(*columns[i]) && widths[i] > kNarrowestName && isWider)
                    widest = &widths[i];
            }
            if (!widest)
                break;
            --*widest;
            --total;
        }
        if (total <= available)
            return widths;
    }
    return {available}; // not even the first one fits
}

} // namespace

QStringList tableText(const NetworkList& networks, const std::vector<const Column*>& columns,
                      const CellContext& context, int width)
{
    std::vector<QStringList> lines(networks.size() + 1);
    std::vector<int> widths;
    for (const Column* column : columns) {
        lines[0] += localized(column->title);
        for (std::size_t row = 0; row < networks.size(); ++row)
            lines[row + 1] += harmless(column->text(*networks[row], context));
        int widest = 0;
        for (const QStringList& line : lines)
            widest = std::max(widest, displayWidth(line.back()));
        widths.push_back(widest);
    }
    if (width > 0)
        widths = fittingWidths(columns, widths, width);

    QStringList table;
    for (const QStringList& line : lines) {
        QStringList cells;
        for (std::size_t i = 0; i < widths.size(); ++i)
            cells += fitted(line[static_cast<qsizetype>(i)], widths[i], columns[i]->alignsRight);
        QString text = cells.join(QString(kGap, u' '));
        while (text.endsWith(u' '))
            text.chop(1);
        table += text;
    }
    return table;
}

} // namespace tessara
