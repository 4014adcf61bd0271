#include "persistence/VendorIndex.h"

#include "persistence/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <bit>
#include <cstring>

#include <zlib.h>

namespace tessara {

namespace {

/// What stands before the table. Numbers are in the machine's order: the file never leaves it, and
/// on another kind of machine the mark does not match.
struct Header {
    std::uint64_t mark;
    std::int64_t modified; ///< of the list, in milliseconds since 1970
    std::int64_t size;     ///< of the list, in bytes
    std::uint32_t entries;
    std::uint32_t checksum; ///< CRC-32 of what follows
};
constexpr std::uint64_t kMark = 0x5453'7645'4e44'0001; // the last two bytes count the forms
constexpr qsizetype kHeaderLength = sizeof(Header);
static_assert(std::has_unique_object_representations_v<Header>);

std::uint32_t checksumOf(QByteArrayView bytes)
{
    return static_cast<std::uint32_t>(
        crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), std::size_t(bytes.size())));
}

} // namespace

FileVersion FileVersion::of(const QString& path)
{
    const QFileInfo info(path);
    return {info.lastModified(), info.size()};
}

QByteArray vendorIndex(const FileVersion& list, const VendorTable& table)
{
    QByteArray bytes(kHeaderLength, Qt::Uninitialized);
    table.appendTo(bytes);
    const Header header{kMark, list.modified.toMSecsSinceEpoch(), list.size,
                        static_cast<std::uint32_t>(table.size()),
                        checksumOf(QByteArrayView(bytes).sliced(kHeaderLength))};
    std::memcpy(bytes.data(), &header, kHeaderLength);
    return bytes;
}

std::optional<VendorTable> vendorTableOf(QByteArrayView index, const FileVersion& list)
{
    if (index.size() < kHeaderLength)
        return std::nullopt;
    Header header;
    std::memcpy(&header, index.data(), kHeaderLength);
    const QByteArrayView table = index.sliced(kHeaderLength);
    if (header.mark != kMark || header.modified != list.modified.toMSecsSinceEpoch() ||
        header.size != list.size || header.checksum != checksumOf(table))
        return std::nullopt;
    return VendorTable::fromBytes(table, header.entries);
}

std::optional<VendorTable> readVendorIndex(const QString& path, const FileVersion& list)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const uchar* bytes = file.map(0, file.size());
    return bytes ? vendorTableOf(QByteArrayView(bytes, file.size()), list) : std::nullopt;
}

bool writeVendorIndex(const QString& path, const FileVersion& list, const VendorTable& table)
{
    QDir().mkpath(QFileInfo(path).path());
    return writeWholeFile(path, vendorIndex(list, table)).isEmpty();
}

} // namespace tessara
