// How long it takes from the start of the process to the first painted list of a results file, and
// beside it to the first paint of a bare window: compare-start runs both in turn.
//   bench_start START [FILE]    START: seconds of the monotonic clock when the process was started
#include "foundation/Defaults.h"
#include "foundation/Directories.h"
#include "persistence/TSAnnotationsHelper.h"
#include "persistence/TSVendorDatabaseHelper.h"
#include "shell/RunningApplication.h"
#include "shell/TSNetworksView.h"

#include <QApplication>
#include <QPaintEvent>
#include <QTreeView>

#include <time.h>

#include <cstdio>
#include <cstdlib>

using namespace tessara;

namespace {

/// Ends the process when a widget has been painted and a condition holds.
class FirstPaint final : public QObject {
public:
    FirstPaint(QWidget& widget, double start, std::function<bool()> isComplete)
        : m_start(start)
        , m_isComplete(std::move(isComplete))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && m_isComplete())
            QMetaObject::invokeMethod(this, &FirstPaint::report, Qt::QueuedConnection);
        return false;
    }

private:
    void report() const
    {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        const double time =
            static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
        std::printf("%.6f\n", time - m_start);
        std::fflush(stdout);
        std::_Exit(0);
    }

    const double m_start;
    const std::function<bool()> m_isComplete;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const double start = argc > 1 ? std::atof(argv[1]) : 0;
    if (argc < 3) {
        QTreeView bare;
        bare.resize(1100, 735);
        const FirstPaint paint(*bare.viewport(), start, [] { return true; });
        bare.show();
        return QApplication::exec();
    }
    RunningApplication tessara;
    tessara.delegate = std::make_unique<AppDelegate>(
        tessara.service, TSVendorDatabaseHelper::sharedDatabase(), tessara.annotations,
        tessara.deviceNames, tessara.voice,
        EngineServices{tessara.clock, tessara.pause, tessara.notifications,
                       [](const auto&) { /* the file is all there is to see */ }});
    QAbstractItemView& table = tessara.window().networksView();
    const FirstPaint paint(*table.viewport(), start,
                           [&table] { return table.model()->rowCount() > 0; });
    tessara.delegate->applicationWillFinishLaunching(QString::fromLocal8Bit(argv[2]));
    return QApplication::exec();
}
