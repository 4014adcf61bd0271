#include "cli/TableText.h"

#include "cli/Terminal.h"
#include "foundation/HarmlessText.h"
#include "foundation/Localized.h"

#include <algorithm>
#include <numeric>

namespace tessara {

namespace {

constexpr int kGap = 2;            ///< blanks between two columns
constexpr int kNarrowest = 4;      ///< a column is not cut below this
constexpr int kNarrowestName = 10; ///< nor a name, while there is another way

/// Names that people give are of any length, and mostly told apart by their beginnings.
bool holdsNames(const Column& column)
{
    constexpr QStringView kColumns[] = {u"SSID", u"VENDOR", u"DEVICE_NAME", u"ANNOTATIONS"};
    return std::ranges::find(kColumns, column.identifier) != std::end(kColumns);
}

/// Takes from the widest of some columns until the line fits or nothing more can be taken.
template <typename Condition>
void narrow(std::vector<int>& widths, int available, int narrowest, const Condition& mayBeCut)
{
    int total = std::accumulate(widths.begin(), widths.end(), 0);
    while (total > available) {
        std::size_t widest = widths.size();
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const bool isWider = widest == widths.size() || widths[i] > widths[widest];
            if (mayBeCut(i) && widths[i] > narrowest && isWider)
                widest = i;
        }
        if (widest == widths.size())
            return;
        --widths[widest];
        --total;
    }
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
    if (width > 0) {
        const int available = width - kGap * (static_cast<int>(columns.size()) - 1);
        narrow(widths, available, kNarrowestName,
               [&](std::size_t i) { return holdsNames(*columns[i]); });
        narrow(widths, available, kNarrowest, [](std::size_t) { return true; });
    }

    QStringList table;
    for (const QStringList& line : lines) {
        QStringList cells;
        for (std::size_t i = 0; i < columns.size(); ++i)
            cells += fitted(line[static_cast<qsizetype>(i)], widths[i], columns[i]->alignsRight);
        QString text = cells.join(QString(kGap, u' '));
        if (width > 0)
            text = fitted(text, width, false); // where even the narrowest columns do not fit
        while (text.endsWith(u' '))
            text.chop(1);
        table += text;
    }
    return table;
}

} // namespace tessara
