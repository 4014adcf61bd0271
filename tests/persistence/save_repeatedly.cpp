// Saves one of two lists after the other to the same file, until it is killed. Writes a byte to
// standard output after each save.
#include "persistence/ResultsFile.h"
#include "persistence/TestResults.h"

#include <cstdio>

using namespace tessara;

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const auto small = ResultsSnapshot::of(scannedNetworks(20, 100), 1);
    const auto large = ResultsSnapshot::of(scannedNetworks(30, 200), 2);
    QString error;
    for (bool isLarge = true;; isLarge = !isLarge) {
        if (!writeResultsFile(QString::fromLocal8Bit(argv[1]), isLarge ? large : small, kGoOn,
                              error))
            return 1;
        std::putchar('.');
        std::fflush(stdout);
    }
}
