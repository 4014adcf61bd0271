#include "persistence/ResultsArchive.h"
#include "model/ColumnRegistry.h"

#include <QBuffer>

#include <cstdlib>

using namespace tessara;

namespace {

const WorkProgress kGoOn = [](double) { return true; };
constexpr double kNow = 1'700'000'000;

/// What can be said of some input: it gives results, or one line that tells why not.
std::optional<SavedResults> decode(Bytes archive)
{
    QString error;
    auto results = decodeResults(archive, kNow, kGoOn, error);
    if (results ? !error.isEmpty() : error.isEmpty() || error.contains(u'\n'))
        std::abort();
    return results;
}

QByteArray encode(const SavedResults& results)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!encodeResults(ResultsSnapshot::of(results.networks, results.lastScanTime), buffer, kGoOn))
        std::abort();
    return buffer.data();
}

Bytes bytesOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
            static_cast<std::size_t>(bytes.size())};
}

} // namespace

// A results file of any bytes: what is read from it can be shown, and saved to a file that gives
// the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto results = decode({data, size});
    if (!results)
        return 0;
    for (const NetworkPtr& network : results->networks) {
        for (const Column& column : columnRegistry()) {
            column.sortKey(*network);
            column.text(*network, {.dBm = true, .isScanning = false});
        }
    }
    const QByteArray saved = encode(*results);
    const auto again = decode(bytesOf(saved));
    if (!again || again->networks.size() != results->networks.size() || encode(*again) != saved)
        std::abort();
    return 0;
}
