#include "scanning/recorded/ScanInput.h"

#include "foundation/Localized.h"
#include "scanning/capture/CaptureReader.h"
#include "scanning/recorded/GzipFile.h"
#include "scanning/recorded/RecordingReader.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

enum class Kind { kRecording, kCapture };

struct Ending {
    QLatin1String text; ///< or the same with ".gz" behind it
    Kind kind;
};

constexpr Ending kEndings[] = {
    {QLatin1String(".jsonl"), Kind::kRecording},
    {QLatin1String(".pcap"), Kind::kCapture},
    {QLatin1String(".pcapng"), Kind::kCapture},
    {QLatin1String(".cap"), Kind::kCapture},
};
constexpr QLatin1String kPacked(".gz");

QStringView withoutEnding(QStringView name, QLatin1String ending)
{
    return name.endsWith(ending, Qt::CaseInsensitive) ? name.chopped(ending.size()) : name;
}

const Ending* endingOf(const QString& path)
{
    const QStringView name = withoutEnding(path, kPacked);
    const auto* found = std::ranges::find_if(kEndings, [name](const Ending& ending) {
        return name.endsWith(ending.text, Qt::CaseInsensitive);
    });
    return found == std::end(kEndings) ? nullptr : found;
}

QString readableEndings()
{
    QStringList list;
    for (const Ending& ending : kEndings)
        list.append(ending.text);
    return list.join(QLatin1String(", "));
}

} // namespace

ScanInput openScanInput(const QString& path, double sweepSeconds)
{
    const bool isStandardInput = path == GzipFile::kStandardInput;
    const Ending* ending = endingOf(path);
    if (!isStandardInput && !ending)
        return {nullptr, localized("%1: not a kind of file that is read here (%2, each also with "
                                   "%3, or - for a recording on standard input)")
                             .arg(path, readableEndings(), kPacked)};
    if (!(sweepSeconds > 0 && std::isfinite(sweepSeconds)))
        return {nullptr, localized("a sweep takes more than 0 seconds")};

    const QString name = isStandardInput ? localized("standard input") : path;
    auto file = std::make_unique<GzipFile>(path);
    if (!file->openForReading())
        return {nullptr, localized("%1: %2").arg(name, file->errorString())};
    if (isStandardInput || ending->kind == Kind::kRecording)
        return {std::make_unique<RecordingReader>(std::move(file), name), {}};
    auto reader = std::make_unique<CaptureReader>(std::move(file), name, sweepSeconds);
    if (!reader->error().isEmpty())
        return {nullptr, reader->error()};
    return {std::move(reader), {}};
}

QString scanInputTitle(const QString& path)
{
    if (path == GzipFile::kStandardInput)
        return localized("standard input");
    const QString fileName = QFileInfo(path).fileName();
    QStringView title = withoutEnding(fileName, kPacked);
    if (const Ending* ending = endingOf(fileName))
        title = withoutEnding(title, ending->text);
    return title.isEmpty() ? fileName : title.toString();
}

} // namespace tessara
