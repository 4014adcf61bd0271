#include "filtering/FilterLine.h"

#include "filtering/FilterText.h"

#include <QSet>

namespace tessara {

namespace {

/// The terms of a group, each once.
QList<QStringView> termsOf(QStringView group)
{
    QList<QStringView> terms;
    QSet<QStringView> known;
    for (const QStringView piece : group.split(u',')) {
        const QStringView term = trimmedOfBlanks(piece);
        if (!term.isEmpty() && !known.contains(term)) {
            known.insert(term);
            terms.append(term);
        }
    }
    return terms;
}

/// The groups of a line, each once: what is pasted a thousand times is no more work than once.
QList<QList<QStringView>> groupsOf(QStringView line)
{
    QList<QList<QStringView>> groups;
    QSet<QList<QStringView>> known;
    for (const QStringView piece : line.split(u'&')) {
        const QList<QStringView> group = termsOf(piece);
        if (!known.contains(group)) {
            known.insert(group);
            groups.append(group);
        }
    }
    return groups;
}

} // namespace

NetworkList filterNetworks(const NetworkList& networks, const QString& filter,
                           FilterIdentifiers& identifiers)
{
    QList<FilterSubject> subjects;
    subjects.reserve(static_cast<qsizetype>(networks.size()));
    for (const NetworkPtr& network : networks)
        subjects.emplace_back(*network, subjects.isEmpty());

    QBitArray passesAll(subjects.size(), true);
    for (const QList<QStringView>& group : groupsOf(filter)) {
        QBitArray passesAny(subjects.size());
        for (const QStringView text : group)
            passesAny |= filterNetworksUsing(FilterTerm(text), subjects, identifiers);
        passesAll &= passesAny;
    }

    NetworkList selected;
    for (std::size_t place = 0; place < networks.size(); ++place) {
        if (passesAll.testBit(static_cast<qsizetype>(place)))
            selected.push_back(networks[place]);
    }
    return selected;
}

QBitArray filterNetworksUsing(const FilterTerm& term, const QList<FilterSubject>& networks,
                              FilterIdentifiers& identifiers)
{
    QBitArray passes(networks.size());
    for (qsizetype place = 0; place < networks.size(); ++place)
        passes.setBit(place, term.selects(networks[place], identifiers));
    return passes;
}

} // namespace tessara
