#pragma once

#include <QCoreApplication>

#include <memory>

namespace tessara {

/// The application object of a program that paints charts and has no window: it asks for no
/// display.
std::unique_ptr<QCoreApplication> makeOffscreenApplication(int& argc, char** argv);

} // namespace tessara
