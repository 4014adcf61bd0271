#include "shell/NetworkDetailsForm.h"

#include "charts/TSThemeHelper.h"
#include "foundation/Localized.h"
#include "shell/ColorWell.h"
#include "shell/ElidedLabel.h"
#include "shell/GlyphIcon.h"
#include "shell/LegibleColor.h"
#include "shell/NetworkDetailsText.h"
#include "shell/ToolTipText.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QStackedWidget>

namespace tessara {

namespace {

constexpr int kMargin = 12;      // pixels
constexpr int kRowSpacing = 3;   // between rows
constexpr int kGroupSpacing = 8; // between groups of rows
constexpr int kWidth = 52;       // characters
constexpr int kReadingWidth = 9; // characters, of a reading such as "-100 dBm"
constexpr double kCaptionAlpha = 0.7;
constexpr const char* kCaptionName = "Caption";
constexpr double kNameSize = 1.2; // beside the other texts

enum GridColumn { kCaption, kValue, kSecondValue };

QLabel* makeValue()
{
    auto* value = new QLabel;
    value->setTextFormat(Qt::PlainText); // texts come from the air
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setWordWrap(true);
    value->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    value->setCursor(Qt::IBeamCursor);
    return value;
}

QLabel* makeCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setObjectName(QLatin1String(kCaptionName));
    caption->setAlignment(Qt::AlignRight | Qt::AlignTop);
    return caption;
}

/// @param color none for that of other labels
void setTextColor(QLabel& label, const std::optional<QColor>& color)
{
    QPalette palette; // what is not set here follows the desktop
    if (color)
        palette.setColor(QPalette::WindowText, *color);
    if (label.palette().color(QPalette::WindowText) != palette.color(QPalette::WindowText))
        label.setPalette(palette);
}

QString underlined(const ChannelRangeText& range)
{
    QString text = range.text; // digits and blanks
    if (range.underlineLength > 0) {
        text.insert(range.underlineStart + range.underlineLength, QLatin1String("</u>"));
        text.insert(range.underlineStart, QLatin1String("<u>"));
    }
    return text;
}

} // namespace

NetworkDetailsForm::NetworkDetailsForm(QWidget* parent)
    : QScrollArea(parent)
    , m_pages(new QStackedWidget)
{
    setAccessibleName(localized("Network Details"));
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int end) {
        setFocusPolicy(end > 0 ? Qt::TabFocus : Qt::NoFocus); // for the keys that scroll
    });
    setFixedWidth(kWidth * fontMetrics().averageCharWidth());
    m_placeholder = new QLabel(localized("Select a network"));
    m_placeholder->setAlignment(Qt::AlignCenter);
    m_pages->addWidget(m_placeholder);
    makeForm();
    setWidget(m_pages);
    paletteDidChange();
}

void NetworkDetailsForm::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paletteDidChange();
}

/// What is not in a plain colour of the palette is made of them.
void NetworkDetailsForm::paletteDidChange()
{
    setTextColor(*m_placeholder, dimmed(palette()));
    const QColor text = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor caption = withAlpha(text, kCaptionAlpha);
    for (QLabel* label : findChildren<QLabel*>(QLatin1String(kCaptionName)))
        setTextColor(*label, caption);
    const int side = fontMetrics().ascent();
    m_iconSecurityImg->setPixmap(glyphIcon(Glyph::kLock).pixmap(side, side));
    m_iconSignalQualityImg->setPixmap(glyphIcon(Glyph::kLowSignal).pixmap(side, side));
    setNetwork(m_network, m_context);
}

void NetworkDetailsForm::makeForm()
{
    m_form = new QWidget;
    m_grid = new QGridLayout(m_form);
    m_grid->setContentsMargins(kMargin, kMargin / 2, kMargin, kMargin / 2);
    m_grid->setVerticalSpacing(kRowSpacing);
    m_grid->setHorizontalSpacing(kMargin / 2);
    m_grid->setColumnStretch(kSecondValue, 1);
    m_grid->setColumnMinimumWidth(kValue, kReadingWidth * fontMetrics().averageCharWidth());

    m_networkColorWell = new ColorWell;
    connect(m_networkColorWell, &QToolButton::clicked, this, &NetworkDetailsForm::askForColor);
    m_ssidLbl = new ElidedLabel;
    QFont bold = m_ssidLbl->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * kNameSize);
    m_ssidLbl->setFont(bold);
    m_grid->addWidget(m_networkColorWell, 0, kCaption, Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(m_ssidLbl, 0, kValue, 1, 2);
    m_bssid = addRow("BSSID"_en);
    m_vendor = addRow("Vendor"_en);
    m_vendor.value->setTextFormat(Qt::RichText);
    m_vendor.value->setOpenExternalLinks(true);
    m_vendor.value->unsetCursor(); // a link has its own
    addSpace();
    makeSignalRows();
    addSpace();
    m_band = addRow("Band"_en);
    m_channel = addRow("Channel"_en);
    m_channel.value->setTextFormat(Qt::RichText);
    m_width = addRow("Channel Width"_en);
    m_mode = addRow("Mode"_en);
    m_networkType = addRow("Network Type"_en);
    m_beaconInterval = addRow("Beacon Interval"_en);
    addSpace();
    m_security = addRow("Security"_en);
    m_iconSecurityImg = addIcon(m_security);
    m_iconSecurityImg->setAccessibleName(localized("Secured"));
    m_encryption = addRow("Encryption"_en);
    m_wps = addRow("WPS"_en);
    addSpace();
    m_rates = addRow("Basic Rates"_en);
    m_maxRate = addRow("Max Rate"_en);
    m_grid->setRowStretch(m_grid->rowCount(), 1);
    m_pages->addWidget(m_form);
}

/// The readings of now, and beside them those of all the time.
void NetworkDetailsForm::makeSignalRows()
{
    const auto addStatistic = [this](const Row& row) {
        const int place = m_grid->rowCount() - 1;
        m_grid->removeWidget(row.value);
        m_grid->addWidget(row.value, place, kValue);
        row.value->setWordWrap(false);
        QLabel* statistic = makeValue();
        statistic->setWordWrap(false);
        m_grid->addWidget(statistic, place, kSecondValue);
        statistic->setToolTip(localized("Average, minimum and maximum"));
        return statistic;
    };
    const int captions = m_grid->rowCount();
    m_grid->addWidget(makeCaption(localized("Avg/Min/Max")), captions, kSecondValue, Qt::AlignLeft);
    m_rssi = addRow("Signal"_en);
    m_rssiAvgLbl = addStatistic(m_rssi);
    m_noise = addRow("Noise"_en);
    m_noiseAvgLbl = addStatistic(m_noise);
    m_snr = addRow("SNR"_en);
    m_snrAvgLbl = addStatistic(m_snr);
    m_signalQuality = addRow("Quality"_en);
    m_iconSignalQualityImg = addIcon(m_signalQuality);
    m_iconSignalQualityImg->setToolTip(localized("The signal is weak beside the noise"));
    m_iconSignalQualityImg->setAccessibleName(m_iconSignalQualityImg->toolTip());
}

NetworkDetailsForm::Row NetworkDetailsForm::addRow(EnglishText caption)
{
    const Row row{makeCaption(localized(caption) + u':'), makeValue()};
    const int place = m_grid->rowCount();
    m_grid->addWidget(row.caption, place, kCaption);
    m_grid->addWidget(row.value, place, kValue, 1, 2);
    row.value->setAccessibleDescription(localized(caption)); // its name is what it shows
    return row;
}

/// Makes room for an icon before the value of the last row.
QLabel* NetworkDetailsForm::addIcon(const Row& row)
{
    auto* label = new QLabel;
    auto* both = new QHBoxLayout;
    both->setSpacing(kMargin / 3);
    m_grid->removeWidget(row.value);
    both->addWidget(label);
    both->addWidget(row.value, 1);
    m_grid->addLayout(both, m_grid->rowCount() - 1, kValue, 1, 2);
    return label;
}

void NetworkDetailsForm::addSpace()
{
    m_grid->setRowMinimumHeight(m_grid->rowCount(), kGroupSpacing - 2 * kRowSpacing);
}

void NetworkDetailsForm::Row::setText(const QString& text) const
{
    value->setText(text);
}

void NetworkDetailsForm::Row::setTextOrHide(const QString& text) const
{
    setText(text);
    caption->setVisible(!text.isEmpty());
    value->setVisible(!text.isEmpty());
}

/// For the network that is shown now, whatever is when the answer comes.
void NetworkDetailsForm::askForColor()
{
    auto* panel = new QColorDialog(m_network->color(), window());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    connect(panel, &QColorDialog::colorSelected, this,
            [this, network = m_network](const QColor& color) {
                Q_EMIT didSelectColor(network, color);
            });
    panel->open();
}

void NetworkDetailsForm::setNetwork(const NetworkPtr& network, const CellContext& context)
{
    m_network = network;
    m_context = context;
    if (network)
        fill(*network, context);
    // What is not in sight asks for no room.
    const auto policy = network ? QSizePolicy::Preferred : QSizePolicy::Ignored;
    m_form->setSizePolicy(policy, policy);
    m_pages->setCurrentIndex(network ? 1 : 0);
}

void NetworkDetailsForm::fill(const TSNetwork& network, const CellContext& context)
{
    const auto text = NetworkDetailsText::of(network, context.dBm);
    m_networkColorWell->setColor(network.color());
    m_ssidLbl->setText(text.ssid);
    m_bssid.setText(text.bssid);
    fillVendor(text.vendor);
    m_band.setText(text.band);
    m_channel.setText(underlined(text.channel));
    m_width.setText(text.width);
    m_mode.setText(text.mode);
    m_networkType.setText(text.networkType);
    m_beaconInterval.setTextOrHide(text.beaconInterval);
    m_security.setText(text.security);
    m_iconSecurityImg->setVisible(!network.isOpen());
    m_encryption.setTextOrHide(text.encryption);
    m_wps.setText(text.wps);
    m_rates.setText(text.rates);
    m_maxRate.setText(text.maxRate);
    m_maxRate.value->setToolTip(toolTipOf(text.maxRate.isEmpty() ? QString() : text.allRates));

    m_rssi.setText(text.rssi);
    m_noise.setText(text.noise);
    m_snr.setText(text.snr);
    m_rssiAvgLbl->setText(text.rssiAvg);
    m_noiseAvgLbl->setText(text.noiseAvg);
    m_snrAvgLbl->setText(text.snrAvg);
    fillSignal(network, context);
}

void NetworkDetailsForm::fillSignal(const TSNetwork& network, const CellContext& context)
{
    const SignalQuality quality = signalQuality(network, context.isScanning);
    m_signalQuality.setText(localized(quality.text));
    m_iconSignalQualityImg->setVisible(quality.isPoor);
    std::optional<QColor> qualityColor;
    std::optional<QColor> readingColor;
    if (quality.isMissing) {
        qualityColor = legible(Qt::red, palette());
        readingColor = palette().color(QPalette::Disabled, QPalette::WindowText);
    }
    setTextColor(*m_signalQuality.value, qualityColor);
    for (const Row& row : {m_rssi, m_noise, m_snr})
        setTextColor(*row.value, readingColor);
}

/// As a link where the vendor's web site is known.
void NetworkDetailsForm::fillVendor(const QString& vendor)
{
    QString text = vendor.toHtmlEscaped();
    Qt::TextInteractionFlags flags = Qt::TextSelectableByMouse;
    if (const auto url = m_urlForVendor ? m_urlForVendor(vendor) : std::nullopt) {
        const auto link = QStringLiteral("<a href=\"%1\">%2</a>").arg(url->toHtmlEscaped(), text);
        text = withLegibleLinks(link, palette());
        flags |= Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard;
    }
    m_vendor.setText(text);
    m_vendor.value->setTextInteractionFlags(flags);
}

} // namespace tessara
