#include "persistence/VendorLookup.h"
#include "persistence/VendorsArchive.h"

#include <QTemporaryFile>

#include <cstdint>
#include <cstdlib>

using namespace tessara;

namespace {

/// A downloaded archive, or else a property list as it lies in the user's folder.
std::optional<QByteArray> propertyListOf(const QByteArray& bytes, QString& error)
{
    if (!bytes.startsWith("PK"))
        return bytes;
    static QTemporaryFile file;
    if (!file.open() || !file.resize(0) || file.write(bytes) != bytes.size() || !file.flush())
        std::abort();
    auto archive = VendorsArchive::read(file.fileName(), error);
    return archive ? std::optional(std::move(archive->propertyList)) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QString error;
    if (bytes.startsWith('I') && size > 4) { // the compact form, its checksum taken as right
        const std::size_t entries = data[1] | data[2] << 8 | data[3] << 16;
        if (const auto table = VendorTable::fromBytes(bytes.sliced(4), entries)) {
            for (const char16_t* bssid : {u"00:15:6D:01:02:03", u"7A:15:6D", u"00:00:00"})
                vendorOf(*table, bssid);
        }
        return 0;
    }
    const auto list = propertyListOf(bytes, error);
    const auto table = list ? VendorTable::fromPropertyList(*list, error) : std::nullopt;
    if (table) {
        for (const char16_t* bssid : {u"00:15:6D:01:02:03", u"7A:15:6D", u"0E:77:55:66:A1:4C"}) {
            const auto name = vendorOf(*table, bssid);
            if (name && (name->isEmpty() || shortVendorName(*name).size() > name->size()))
                std::abort();
        }
    } else if (error.isEmpty() || error.contains(u'\n')) {
        std::abort();
    }
    return 0;
}
