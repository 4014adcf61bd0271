#include "shell/NetworksTableModel.h"

#include "shell/TestNetworks.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace tessara;

namespace {

/// Keeps a second list of the rows from nothing but what the model tells its views.
class FollowingList {
public:
    explicit FollowingList(NetworksTableModel& model)
        : m_model(model)
    {
        using Model = QAbstractItemModel;
        QObject::connect(&model, &Model::rowsInserted, &m_context,
                         [this](const QModelIndex&, int first, int last) {
                             const auto from = m_model.networks().begin();
                             rows.insert(rows.begin() + first, from + first, from + last + 1);
                         });
        QObject::connect(&model, &Model::rowsRemoved, &m_context,
                         [this](const QModelIndex&, int first, int last) {
                             rows.erase(rows.begin() + first, rows.begin() + last + 1);
                         });
        QObject::connect(
            &model, &Model::rowsMoved, &m_context,
            [this](const QModelIndex&, int first, int last, const QModelIndex&, int to) {
                const auto begin = rows.begin();
                if (to > last)
                    std::rotate(begin + first, begin + last + 1, begin + to);
                else
                    std::rotate(begin + to, begin + first, begin + last + 1);
            });
        QObject::connect(&model, &Model::layoutAboutToBeChanged, &m_context, [this] {
            places.clear();
            for (std::size_t row = 0; row < rows.size(); ++row)
                places.emplace_back(m_model.index(static_cast<int>(row), 0));
        });
        QObject::connect(&model, &Model::layoutChanged, &m_context, [this] {
            NetworkList old = rows;
            for (std::size_t row = 0; row < old.size(); ++row)
                rows.at(static_cast<std::size_t>(places.at(row).row())) = old[row];
        });
        QObject::connect(&model, &Model::modelReset, &m_context, [] { FAIL() << "a reset"; });
    }

    NetworkList rows;

private:
    NetworksTableModel& m_model;
    QObject m_context;
    std::vector<QPersistentModelIndex> places;
};

QString cell(const NetworksTableModel& model, int row, QStringView identifier)
{
    const Column* column = columnWithIdentifier(identifier);
    return model.index(row, static_cast<int>(column - columnRegistry().data())).data().toString();
}

} // namespace

TEST(NetworksTableModel, FollowsAnySequenceOfListsStepByStep)
{
    struct Case {
        const char* what;
        int networks;
        double shown; // the share of the networks in each list
        int swaps;    // pairs that change places from list to list; negative for a new order
        int rounds;
    };
    const Case cases[] = {
        {"few changes in a short list", 12, 0.9, 1, 300},
        {"any change of a short list", 12, 0.5, -1, 300},
        {"a tick of a long list", 400, 0.99, 5, 15},
        {"a new order of a long list", 400, 1, -1, 8},
        {"everything about a long list", 400, 0.5, -1, 8},
    };
    std::mt19937 random(7);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        NetworkList all = testNetworks(c.networks);
        NetworksTableModel model;
        const QAbstractItemModelTester tester(&model);
        FollowingList follower(model);
        std::bernoulli_distribution isShown(c.shown);
        std::uniform_int_distribution<std::size_t> anyRow(0, all.size() - 1);
        for (int round = 0; round < c.rounds; ++round) {
            if (c.swaps < 0)
                std::ranges::shuffle(all, random);
            for (int swap = 0; swap < c.swaps; ++swap)
                std::swap(all[anyRow(random)], all[anyRow(random)]);
            NetworkList next;
            std::ranges::copy_if(all, std::back_inserter(next),
                                 [&](const auto&) { return isShown(random); });

            std::vector<std::pair<QPersistentModelIndex, NetworkPtr>> kept;
            for (int row = 0; row < model.rowCount(); ++row) {
                kept.emplace_back(model.index(row, 1),
                                  model.networks()[static_cast<std::size_t>(row)]);
            }
            model.setNetworks(next, {});

            ASSERT_EQ(model.networks(), next);
            ASSERT_EQ(follower.rows, next);
            for (const auto& [index, network] : kept) {
                ASSERT_EQ(index.isValid(), std::ranges::count(next, network) == 1);
                ASSERT_TRUE(!index.isValid() || &model.networkAt(index) == network.get());
            }
        }
        model.setNetworks({}, {});
        EXPECT_TRUE(follower.rows.empty());
    }
}

TEST(NetworksTableModel, TakesTheFewestStepsForACommonChange)
{
    const NetworkList list = testNetworks(100);
    NetworksTableModel model;
    model.setNetworks(list, {});
    QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);
    QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removes(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);

    // The first network drops to the end, three at the top are new, two in the middle go.
    NetworkList next(list.begin() + 1, list.end());
    next.push_back(list.front());
    next.erase(next.begin() + 50, next.begin() + 52);
    for (int number = 200; number < 203; ++number)
        next.insert(next.begin(), testNetwork(number));
    model.setNetworks(next, {});
    EXPECT_EQ(model.networks(), next);
    EXPECT_EQ(moves.size(), 1);
    EXPECT_EQ(inserts.size(), 1);
    EXPECT_EQ(removes.size(), 1);

    // Upside down, nearly every row would move: one change of the layout does it.
    std::ranges::reverse(next);
    model.setNetworks(next, {});
    EXPECT_EQ(model.networks(), next);
    EXPECT_EQ(moves.size(), 1);
    EXPECT_EQ(layouts.size(), 1);
}

TEST(NetworksTableModel, TellsOfNewTextsInAnUnchangedList)
{
    const NetworkList list = testNetworks(3);
    NetworksTableModel model;
    model.setNetworks(list, {.dBm = true, .isScanning = false});
    EXPECT_EQ(cell(model, 1, u"RSSI"), QStringLiteral("-60"));
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);

    list[1]->addDataPoint({-48, -92, -1, -1, 2});
    model.setNetworks(list, {.dBm = true, .isScanning = false});
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex(), model.index(0, 0));
    EXPECT_EQ(changes[0][1].toModelIndex(), model.index(2, model.columnCount() - 1));
    EXPECT_EQ(moves.size(), 0);
    EXPECT_EQ(cell(model, 1, u"RSSI"), QStringLiteral("-48"));

    model.setNetworks(list, {.dBm = false, .isScanning = false});
    EXPECT_EQ(cell(model, 1, u"RSSI"), QStringLiteral("81%"));
}

TEST(NetworksTableModel, CountsANetworkAsMissingOnlyWhileScanning)
{
    const NetworkPtr network = testNetwork(1);
    network->setLastSeenElapsedSeconds(4);
    NetworksTableModel model;
    model.setNetworks({network}, {.dBm = false, .isScanning = true});
    EXPECT_TRUE(model.isMissing(*network));
    model.setNetworks({network}, {.dBm = false, .isScanning = false});
    EXPECT_FALSE(model.isMissing(*network));
}
