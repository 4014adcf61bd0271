#include "charts/OffscreenApplication.h"

#include <QApplication>

namespace tessara {

std::unique_ptr<QCoreApplication> makeOffscreenApplication(int& argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace tessara
