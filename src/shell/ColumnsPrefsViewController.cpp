#include "shell/ColumnsPrefsViewController.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "model/ColumnRegistry.h"
#include "shell/ColumnVisibilityModel.h"
#include "shell/GlyphIcon.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

namespace tessara {

namespace {

constexpr QSize kTableSize(380, 300);
constexpr int kDescriptionLines = 3;

} // namespace

ColumnsPrefsViewController::ColumnsPrefsViewController(TSNetworksView& networksView,
                                                       QWidget* parent)
    : PreferencesPane(parent)
    , m_tableColumns(new ColumnVisibilityModel(networksView, this))
    , m_columnNamesTableView(new QTreeView)
    , m_columnDescLbl(new QLabel)
    , m_displayAnnotationsBtn(new QCheckBox(localized("Show &annotations in the spectrum")))
{
    QTreeView& table = *m_columnNamesTableView;
    table.setAccessibleName(localized("Columns"));
    table.setModel(m_tableColumns);
    table.setRootIsDecorated(false);
    table.setUniformRowHeights(true);
    table.setMinimumSize(kTableSize);
    table.header()->setSectionResizeMode(ColumnVisibilityModel::kShowColumn,
                                         QHeaderView::ResizeToContents);
    table.header()->setStretchLastSection(true);
    table.setSortingEnabled(true);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ColumnsPrefsViewController::showDescription);

    m_columnDescLbl->setWordWrap(true);
    m_columnDescLbl->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_columnDescLbl->setMinimumHeight(kDescriptionLines * fontMetrics().lineSpacing());
    connect(m_displayAnnotationsBtn, &QCheckBox::clicked, this, [this](bool on) {
        Defaults::standard().setValue(DefaultKey::DisplayAnnotations, on);
        Q_EMIT displayAnnotationsDidChange(on);
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(&table, 1);
    layout->addWidget(m_columnDescLbl);
    layout->addWidget(m_displayAnnotationsBtn);
}

QString ColumnsPrefsViewController::toolbarItemLabel() const
{
    return localized("Columns");
}

QIcon ColumnsPrefsViewController::toolbarItemImage() const
{
    return glyphIcon(Glyph::kTable);
}

void ColumnsPrefsViewController::viewWillAppear()
{
    m_columnNamesTableView->sortByColumn(ColumnVisibilityModel::kNameColumn, Qt::AscendingOrder);
    m_columnNamesTableView->selectionModel()->clear();
    m_columnDescLbl->setText(localized("Select a column name for details."));
    m_displayAnnotationsBtn->setChecked(
        Defaults::standard().boolForKey(DefaultKey::DisplayAnnotations));
}

void ColumnsPrefsViewController::showDescription()
{
    const QModelIndexList rows = m_columnNamesTableView->selectionModel()->selectedRows();
    m_columnDescLbl->setText(
        rows.isEmpty() ? QString() : localized(m_tableColumns->columnAt(rows.front()).description));
}

} // namespace tessara
