#include "shell/TSSideView.h"

#include "support/QtPrinters.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

TSSideViewItem valueOf(const char* title)
{
    const QString text = QString::fromLatin1(title);
    return {.title = text, .identifier = QStringLiteral("item-vendor"), .filterString = text};
}

/// A heading and one facet with these values.
std::vector<TSSideViewItem> tree(const std::vector<const char*>& titles)
{
    std::vector<TSSideViewItem> items = emptySideView();
    TSSideViewItem category{.title = QStringLiteral("Vendor"),
                            .identifier = QStringLiteral("category"),
                            .filterString = QStringLiteral("Vendor"),
                            .showCount = true};
    for (const char* title : titles)
        category.children.push_back(valueOf(title));
    items.push_back(category);
    return items;
}

QStringList shownValues(const SideViewModel& model)
{
    QStringList titles;
    const QModelIndex category = model.index(1, 0);
    for (int row = 0; row < model.rowCount(category); ++row)
        titles += model.index(row, 0, category).data().toString();
    return titles;
}

} // namespace

namespace {

/// So many values, or every second of them.
std::vector<TSSideViewItem> largeTree(int count, int step)
{
    std::vector<TSSideViewItem> items = tree({});
    for (int i = 0; i < count; i += step)
        items[1].children.push_back(valueOf(qPrintable(QString::number(1000 + i))));
    return items;
}

} // namespace

TEST(SideViewModel, FollowsManyChangesAtOnce)
{
    SideViewModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setItems(largeTree(200, 1));
    const QPersistentModelIndex stays = model.index(42, 0, model.index(1, 0));
    const QPersistentModelIndex goes = model.index(43, 0, model.index(1, 0));
    model.setItems(largeTree(400, 2));
    EXPECT_EQ(model.rowCount(model.index(1, 0)), 200);
    EXPECT_EQ(stays.row(), 21);
    EXPECT_EQ(stays.data(), QStringLiteral("1042"));
    EXPECT_FALSE(goes.isValid());
    model.setItems(largeTree(400, 1));
    EXPECT_EQ(shownValues(model).value(43), QStringLiteral("1043"));
    EXPECT_EQ(stays.data(), QStringLiteral("1042"));
}

TEST(SideViewModel, FollowsTheValuesRowByRow)
{
    SideViewModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const std::vector<const char*>& titles : std::initializer_list<std::vector<const char*>>{
             {"b", "d"}, {"a", "b", "c", "d", "e"}, {"a", "e"}, {"c"}, {}, {"a", "b"}}) {
        model.setItems(tree(titles));
        QStringList expected;
        for (const char* title : titles)
            expected += QString::fromLatin1(title);
        EXPECT_EQ(shownValues(model), expected);
        EXPECT_EQ(model.index(1, 1).data().toString(),
                  titles.empty() ? QString() : QString::number(titles.size()));
    }
    model.setItems(emptySideView());
    EXPECT_EQ(model.rowCount(), 1);
}

TEST(SideView, KeepsExpansionAndSelectionWhenValuesComeAndGo)
{
    TSSideView view;
    view.setItems(tree({"b"}));
    view.setExpandedItems({QStringLiteral("Vendor")});
    QSignalSpy changes(&view, &TSSideView::selectionDidChange);
    const QModelIndex category = view.model()->index(1, 0);
    view.setCurrentIndex(view.model()->index(0, 0, category));
    EXPECT_EQ(changes.size(), 1);

    view.setItems(tree({"a", "b", "c"}));
    EXPECT_TRUE(view.isExpanded(view.model()->index(1, 0)));
    EXPECT_EQ(view.currentIndex().data().toString(), QStringLiteral("b"));
    view.setItems(tree({"a", "c"}));
    EXPECT_FALSE(view.selectionModel()->hasSelection()) << "no neighbour takes its place";
    EXPECT_EQ(changes.size(), 1) << "the filter stays until the user clicks";

    view.setItems(emptySideView());
    view.setItems(tree({"b"}));
    EXPECT_TRUE(view.isExpanded(view.model()->index(1, 0)));
}

TEST(SideView, PassesTheSelectionOnToTheLastRowInSightOfThatTitle)
{
    TSSideView view;
    std::vector<TSSideViewItem> items = tree({"Acme", "Other"});
    items.push_back(tree({"Acme"})[1]);
    items.back().title = QStringLiteral("Maker");
    view.setItems(items);
    view.setExpandedItems({QStringLiteral("Vendor")});
    view.setCurrentIndex(view.model()->index(0, 0, view.model()->index(1, 0)));
    QSignalSpy changes(&view, &TSSideView::selectionDidChange);
    view.setItems(items);
    EXPECT_EQ(changes.size(), 0) << "the other one is out of sight";
    view.setExpandedItems({QStringLiteral("Vendor"), QStringLiteral("Maker")});
    view.setItems(items);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(view.currentIndex().parent().row(), 2);
}
