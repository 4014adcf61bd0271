#include "persistence/TSAnnotationsHelper.h"

#include "foundation/Defaults.h"
#include "foundation/Logging.h"
#include "foundation/Utf8.h"
#include "persistence/PropertyList.h"
#include "persistence/WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessara {

namespace {

TSAnnotationsHelper::Annotations legacyAnnotations()
{
    TSAnnotationsHelper::Annotations annotations;
    const QVariantMap stored = Defaults::standard().value(DefaultKey::Annotations).toMap();
    for (auto each = stored.begin(); each != stored.end(); ++each)
        annotations.insert(each.key(), each.value().toString());
    return annotations;
}

/// Renames a file that the next save would write over.
void setAside(const QString& path)
{
    int number = 1;
    while (!QFile::rename(path, QStringLiteral("%1.damaged-%2").arg(path).arg(number)) &&
           number < 100)
        ++number;
}

/// QString::fromUtf8 would take a byte order mark off the beginning of a note.
QString textOf(QByteArrayView utf8)
{
    return textFromUtf8({utf8.data(), static_cast<std::size_t>(utf8.size())}).value_or(QString());
}

} // namespace

QString TSAnnotationsHelper::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QLatin1String("/annotations.plist");
}

TSAnnotationsHelper& TSAnnotationsHelper::sharedAnnotations()
{
    static TSAnnotationsHelper helper(standardPath());
    static std::once_flag wasRead;
    std::call_once(wasRead, [] { helper.readFromDisk(); });
    return helper;
}

TSAnnotationsHelper::TSAnnotationsHelper(QString path)
    : m_path(std::move(path))
{
}

// The store -------------------------------------------------------------------------------------

TSAnnotationsHelper::Annotations TSAnnotationsHelper::annotations() const
{
    const std::scoped_lock lock(m_lock);
    return m_annotations;
}

void TSAnnotationsHelper::set(Annotations annotations)
{
    const std::scoped_lock lock(m_lock);
    m_annotations = std::move(annotations);
}

std::optional<QString> TSAnnotationsHelper::annotationsForNetwork(const QString& bssid) const
{
    const std::scoped_lock lock(m_lock);
    const auto found = m_annotations.constFind(bssid);
    return found == m_annotations.cend() ? std::nullopt : std::optional(*found);
}

void TSAnnotationsHelper::setAnnotationsForNetwork(const QString& bssid, const QString& annotations)
{
    const QString note = annotations.trimmed();
    const std::scoped_lock lock(m_lock);
    if (note.isEmpty())
        m_annotations.remove(bssid);
    else
        m_annotations.insert(bssid, note);
}

std::optional<QString> TSAnnotationsHelper::annotationsFor(const QString& bssid) const
{
    return annotationsForNetwork(bssid);
}

void TSAnnotationsHelper::setAnnotations(const QString& bssid, const QString& note)
{
    setAnnotationsForNetwork(bssid, note);
    if (m_isSaveDue.exchange(true))
        return; // the save that has yet to begin takes this note with it
    m_saves.start([this] {
        m_isSaveDue = false;
        saveToDisk();
    });
}

// The file --------------------------------------------------------------------------------------

void TSAnnotationsHelper::readFromDisk()
{
    if (const Annotations legacy = legacyAnnotations(); !legacy.isEmpty()) {
        set(legacy);
        if (saveToDisk()) // until then the settings are the one place where they are
            Defaults::standard().remove(DefaultKey::Annotations);
        return;
    }
    if (!QFileInfo::exists(m_path))
        return;
    if (const QString error = load(); !error.isEmpty()) {
        qCWarning(lcPersistence).noquote() << error;
        setAside(m_path);
    }
}

QString TSAnnotationsHelper::load()
{
    QString error;
    const auto bytes = readWholeFile(m_path, kLongestOwnPropertyList, error);
    Annotations annotations;
    if (bytes && readTextDictionary(
                     *bytes, error,
                     [&](QByteArrayView bssid, QByteArrayView note) {
                         annotations.insert(textOf(bssid), textOf(note));
                     },
                     kLongestOwnPropertyList))
        set(std::move(annotations));
    else if (bytes)
        error.prepend(m_path + QLatin1String(": "));
    return error;
}

bool TSAnnotationsHelper::saveToDisk() const
{
    const std::scoped_lock lock(m_fileLock);
    if (!QDir().mkpath(QFileInfo(m_path).path()))
        return false;
    const QByteArray list = textDictionary(annotations());
    const QString error = list.size() <= kLongestOwnPropertyList
                              ? writeWholeFile(m_path, list)
                              : m_path + QLatin1String(": the notes are too long for one file");
    if (!error.isEmpty())
        qCWarning(lcPersistence).noquote() << "Failed to save annotations to:" << error;
    return error.isEmpty();
}

} // namespace tessara
