#include "persistence/AnnotationsCSV.h"

#include "foundation/Localized.h"
#include "foundation/Utf8.h"
#include "persistence/CSVParser.h"
#include "persistence/WholeFile.h"

#include <QStringList>

namespace tessara {

namespace {

constexpr qint64 kLongestImport = 128 << 20; // bytes; it takes three times as much memory

QString progressMessage(const QString& verb, const QString& path)
{
    return QStringLiteral("%1 \"%2\"").arg(verb, path);
}

/// The text of a file: UTF-8, where some programs put a byte order mark first.
std::optional<QString> textOf(const QByteArray& bytes)
{
    const QByteArrayView utf8 =
        bytes.startsWith("\xef\xbb\xbf") ? QByteArrayView(bytes).sliced(3) : QByteArrayView(bytes);
    if (utf8.contains('\0')) // UTF-16 looks like that, and no text does
        return std::nullopt;
    return textFromUtf8({utf8.data(), static_cast<std::size_t>(utf8.size())});
}

} // namespace

QByteArray csvOfAnnotations(const TSAnnotationsHelper::Annotations& annotations)
{
    QStringList lines;
    for (auto each = annotations.begin(); each != annotations.end(); ++each) {
        if (!each->isEmpty())
            lines.append(QStringLiteral("%1,\"%2\"").arg(each.key(), *each));
    }
    lines.sort();
    return (lines.join(u'\n') + u'\n').toUtf8();
}

QString
readAnnotationsCSV(const QByteArray& bytes,
                   const std::function<void(const QString& bssid, const QString& note)>& line)
{
    auto text = textOf(bytes);
    if (!text)
        return localized("The file is not text in UTF-8.");
    const QString bssid = QStringLiteral("bssid");
    const QString annotations = QStringLiteral("annotations");
    CSVParser(*std::move(text), QStringLiteral(","), false, {bssid, annotations})
        .parseRowsForReceiver([&](const CSVParser::Row& row) {
            line(row.value(bssid).toUpper(), row.value(annotations));
        });
    return {};
}

void AnnotationsCSV::exportFile(const QString& path,
                                const TSAnnotationsHelper::Annotations& overlay)
{
    auto annotations = m_store.annotations();
    annotations.insert(overlay);
    m_work.start(
        progressMessage(localized("Exporting"), path), localized("The export failed."),
        [path, annotations] { return writeWholeFile(path, csvOfAnnotations(annotations)); });
}

void AnnotationsCSV::importFile(const QString& path)
{
    const auto work = [this, path] {
        QString error;
        const auto bytes = readWholeFile(path, kLongestImport, error);
        if (!bytes)
            return error;
        error = readAnnotationsCSV(*bytes, [this](const QString& bssid, const QString& note) {
            m_store.setAnnotationsForNetwork(bssid, note);
        });
        if (error.isEmpty())
            m_store.saveToDisk();
        else
            error = path + QLatin1String(": ") + error;
        return error;
    };
    m_work.start(progressMessage(localized("Importing"), path), localized("The import failed."),
                 work, [this] { Q_EMIT didImport(); });
}

} // namespace tessara
