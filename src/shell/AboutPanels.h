#pragma once

class QWidget;

namespace tessara {

/// What the program is, its version, and whom it is by.
void showAbout(QWidget& window);
/// Whose work the program is built on, and under which licences.
void showAcknowledgments(QWidget& window);
/// The page on the filter line; there is one at a time.
void showFilterHelp(QWidget& window);

} // namespace tessara
