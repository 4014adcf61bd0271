#include "persistence/VendorsArchive.h"

#include "foundation/Localized.h"
#include "persistence/PropertyList.h"

#include <QFile>

#include <zip.h>

#include <array>
#include <memory>

namespace tessara {

namespace {

struct CloseArchive {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
struct CloseEntry {
    void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};

QString reason(zip_error_t* error)
{
    return QString::fromUtf8(zip_error_strerror(error)).simplified();
}

/// Unpacks an entry. What the archive says of its length is not believed.
std::optional<QByteArray> contents(zip_file_t* entry, QString& error)
{
    QByteArray bytes;
    std::array<char, 1 << 16> block;
    for (;;) {
        const auto count = zip_fread(entry, block.data(), block.size());
        if (count == 0)
            return bytes;
        if (count < 0) {
            error = reason(zip_file_get_error(entry));
            return std::nullopt;
        }
        if (bytes.size() + count > kLongestPropertyList) {
            error = localized("the vendor database is too large");
            return std::nullopt;
        }
        bytes.append(block.data(), static_cast<qsizetype>(count));
    }
}

} // namespace

std::optional<VendorsArchive> VendorsArchive::read(const QString& path, QString& error)
{
    int code = ZIP_ER_OK;
    const std::unique_ptr<zip_t, CloseArchive> archive(
        zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, &code));
    if (!archive) {
        zip_error_t opening;
        zip_error_init_with_code(&opening, code);
        error = reason(&opening);
        zip_error_fini(&opening);
        return std::nullopt;
    }
    zip_stat_t status;
    zip_stat_init(&status);
    std::unique_ptr<zip_file_t, CloseEntry> entry;
    if (zip_stat(archive.get(), "vendors.plist", 0, &status) == 0)
        entry.reset(zip_fopen_index(archive.get(), status.index, 0));
    if (!entry) {
        error = reason(zip_get_error(archive.get()));
        return std::nullopt;
    }
    auto propertyList = contents(entry.get(), error);
    if (!propertyList)
        return std::nullopt;
    VendorsArchive result{*std::move(propertyList), {}};
    if (status.valid & ZIP_STAT_MTIME)
        result.modified = QDateTime::fromSecsSinceEpoch(status.mtime);
    return result;
}

} // namespace tessara
