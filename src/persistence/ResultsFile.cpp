#include "persistence/ResultsFile.h"

#include "foundation/Localized.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

#include <cerrno>
#include <new>

namespace tessara {

bool isResultsFileName(const QString& path)
{
    return QFileInfo(path).suffix() == QStringView(kResultsExtension);
}

namespace {

/// Does the work, and fails where memory does not suffice for it.
template <typename Work>
auto withinMemory(QString& error, const Work& work) -> decltype(work())
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        error = localized("There is not enough memory.");
        return {};
    }
}

} // namespace

bool writeResultsFile(const QString& path, const ResultsSnapshot& results,
                      const WorkProgress& progress, QString& error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        error = file.errorString();
        return false;
    }
    bool isToEnd = false;
    const WorkProgress observed = [&](double done) {
        isToEnd = !progress(done);
        return !isToEnd;
    };
    const bool isEncoded =
        withinMemory(error, [&] { return encodeResults(results, file, observed); });
    if (isToEnd)
        return false;
    if (!isEncoded) {
        if (error.isEmpty())
            error = file.errorString();
        return false;
    }
    // Some file systems tell only now that there was no room; a commit alone would not say so.
    // (EINVAL: they do not know how to.)
    if (::fsync(file.handle()) != 0 && errno != EINVAL) {
        error = qt_error_string(errno);
        return false;
    }
    if (file.commit())
        return true;
    error = file.errorString();
    return false;
}

std::optional<SavedResults> readResultsFile(const QString& path, double now,
                                            const WorkProgress& progress, ResultsFileError& error)
{
    // What is no file may never answer.
    QFile file(path);
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile()) {
        error.system = localized("This is no file.");
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        error.system = file.errorString();
        return std::nullopt;
    }
    const qint64 size = file.size();
    const uchar* bytes = size > 0 ? file.map(0, size) : nullptr;
    if (size > 0 && !bytes) {
        error.system = file.errorString();
        return std::nullopt;
    }
    return withinMemory(error.system, [&] {
        return decodeResults({bytes, static_cast<std::size_t>(size)}, now, progress, error.format);
    });
}

} // namespace tessara
