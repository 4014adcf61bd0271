#pragma once

#include "foundation/Localized.h"
#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QScrollArea>

#include <functional>
#include <optional>

class QGridLayout;
class QLabel;
class QStackedWidget;

namespace tessara {

class ColorWell;
class ElidedLabel;

/// The selected network in words: captions and values, and the colour it is drawn in.
class NetworkDetailsForm final : public QScrollArea {
    Q_OBJECT

public:
    /// Gives the address of a vendor's web site by the vendor's name, if there is one.
    using VendorURL = std::function<std::optional<QString>(const QString& vendor)>;

    explicit NetworkDetailsForm(QWidget* parent = nullptr);

    void setVendorURL(VendorURL urlForVendor) { m_urlForVendor = std::move(urlForVendor); }
    /// Shows a network; for none, what to do to see one.
    void setNetwork(const NetworkPtr& network, const CellContext& context);

Q_SIGNALS:
    /// The user has chosen a colour for a network.
    void didSelectColor(const NetworkPtr& network, const QColor& color);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        QLabel* caption;
        QLabel* value;
        void setText(const QString& text) const;
        /// Hides both where there is no value.
        void setTextOrHide(const QString& text) const;
    };

    Row addRow(EnglishText caption);
    QLabel* addIcon(const Row& row);
    void addSpace();
    void paletteDidChange();
    void askForColor();
    void makeForm();
    void makeSignalRows();
    void fill(const TSNetwork& network, const CellContext& context);
    void fillSignal(const TSNetwork& network, const CellContext& context);
    void fillVendor(const QString& vendor);

    VendorURL m_urlForVendor;
    NetworkPtr m_network; ///< that is shown
    CellContext m_context;
    QStackedWidget* m_pages;
    QLabel* m_placeholder = nullptr;
    QWidget* m_form = nullptr;
    QGridLayout* m_grid = nullptr;
    ColorWell* m_networkColorWell = nullptr;
    ElidedLabel* m_ssidLbl = nullptr;
    Row m_bssid{};
    Row m_vendor{};
    Row m_rssi{};
    Row m_noise{};
    Row m_snr{};
    QLabel* m_rssiAvgLbl = nullptr;
    QLabel* m_noiseAvgLbl = nullptr;
    QLabel* m_snrAvgLbl = nullptr;
    Row m_signalQuality{};
    QLabel* m_iconSignalQualityImg = nullptr;
    Row m_band{};
    Row m_channel{};
    Row m_width{};
    Row m_mode{};
    Row m_networkType{};
    Row m_beaconInterval{};
    Row m_security{};
    QLabel* m_iconSecurityImg = nullptr;
    Row m_encryption{};
    Row m_wps{};
    Row m_rates{};
    Row m_maxRate{};
};

} // namespace tessara
