#include "foundation/Logging.h"

namespace tessara {

Q_LOGGING_CATEGORY(lcEnrichment, "tessara.enrichment")
Q_LOGGING_CATEGORY(lcFoundation, "tessara.foundation")
Q_LOGGING_CATEGORY(lcPersistence, "tessara.persistence")
Q_LOGGING_CATEGORY(lcScanning, "tessara.scanning")
Q_LOGGING_CATEGORY(lcShell, "tessara.shell")

} // namespace tessara
