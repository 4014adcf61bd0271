#pragma once

#include "shell/RunningApplication.h"
#include "shell/TSNetworksView.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <gtest/gtest.h>

namespace tessara {

/// The application with its real cycle, driven as a user drives it.
class ApplicationTest : public testing::Test, protected RunningApplication {
protected:
    /// The window's title, without the place of the mark of what is unsaved.
    QString title() { return window().windowTitle().remove(QStringLiteral("[*]")); }
    TSNetworksView& table() { return window().networksView(); }

    QString cell(int row, QStringView identifier)
    {
        const auto column = columnWithIdentifier(identifier) - columnRegistry().data();
        return table().model()->index(row, static_cast<int>(column)).data().toString();
    }

    QList<QMessageBox*> sheets() { return window().findChildren<QMessageBox*>(); }

    void answerSheet(const char* button)
    {
        ASSERT_EQ(sheets().size(), 1);
        for (QAbstractButton* each : sheets().front()->buttons()) {
            if (each->text() == QLatin1String(button))
                each->click();
        }
        settle();
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> result;
        for (const NetworkPtr& network : delegate->pipeline().filteredNetworks())
            result.push_back(network->ssid().toStdString());
        return result;
    }
};

inline CWNetwork named(const char* bssid, const char* ssid, int channel = 1)
{
    CWNetwork result = network(bssid, channel);
    result.ssid = QString::fromLatin1(ssid);
    return result;
}

} // namespace tessara
