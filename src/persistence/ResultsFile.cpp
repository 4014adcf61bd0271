#include "persistence/ResultsFile.h"

#include "foundation/Localized.h"
#include "persistence/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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
    if (error = syncToDisk(file); !error.isEmpty())
        return false;
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
    return withinMemory(error.system, [&]() -> std::optional<SavedResults> {
        // Not mapped: a file that another program cuts short meanwhile would end the process.
        const QByteArray bytes = file.read(file.size());
        if (file.error() != QFileDevice::NoError) {
            error.system = file.errorString();
            return std::nullopt;
        }
        return decodeResults({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                              static_cast<std::size_t>(bytes.size())},
                             now, progress, error.format);
    });
}

} // namespace tessara
