#include "persistence/TSAnnotationsHelper.h"

#include "foundation/Defaults.h"
#include "foundation/Logging.h"
#include "foundation/Utf8.h"
#include "persistence/PropertyList.h"
#include "persistence/WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
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

/// Makes changes, in which an empty note removes the entry.
void apply(const TSAnnotationsHelper::Annotations& changes,
           TSAnnotationsHelper::Annotations& annotations)
{
    for (auto each = changes.begin(); each != changes.end(); ++each) {
        if (each->isEmpty())
            annotations.remove(each.key());
        else
            annotations.insert(each.key(), *each);
    }
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

std::optional<QString> TSAnnotationsHelper::annotationsForNetwork(const QString& bssid) const
{
    const std::scoped_lock lock(m_lock);
    const auto found = m_annotations.constFind(bssid);
    return found == m_annotations.cend() ? std::nullopt : std::optional(*found);
}

void TSAnnotationsHelper::setAnnotationsForNetwork(const QString& bssid, const QString& annotations)
{
    const Annotations change{{bssid, annotations.trimmed()}};
    const std::scoped_lock lock(m_lock);
    apply(change, m_annotations);
    m_changed.insert(change);
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
        m_annotations = m_changed = legacy;
        m_replacesFile = true;
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
    auto annotations = read(error);
    const std::scoped_lock lock(m_lock);
    if (annotations)
        m_annotations = *std::move(annotations);
    return error;
}

std::optional<TSAnnotationsHelper::Annotations> TSAnnotationsHelper::read(QString& error) const
{
    const auto bytes = readWholeFile(m_path, kLongestOwnPropertyList, error);
    if (!bytes)
        return std::nullopt;
    Annotations annotations;
    if (readTextDictionary(
            *bytes, error,
            [&](QByteArrayView bssid, QByteArrayView note) {
                annotations.insert(textOf(bssid), textOf(note));
            },
            kLongestOwnPropertyList))
        return annotations;
    error.prepend(m_path + QLatin1String(": "));
    return std::nullopt;
}

TSAnnotationsHelper::Annotations TSAnnotationsHelper::takeChanged()
{
    const std::scoped_lock lock(m_lock);
    return std::exchange(m_changed, {});
}

void TSAnnotationsHelper::giveBackChanged(const Annotations& changed)
{
    const std::scoped_lock lock(m_lock);
    Annotations all = changed;
    all.insert(m_changed); // the newer ones
    m_changed = all;
}

/// What the file is to hold. Another window may have written its notes since this one read it.
TSAnnotationsHelper::Annotations
TSAnnotationsHelper::mergedWithFile(const Annotations& changed) const
{
    if (m_replacesFile || !QFileInfo::exists(m_path))
        return annotations();
    QString error;
    auto merged = read(error);
    if (!merged) {
        qCWarning(lcPersistence).noquote() << error;
        setAside(m_path);
        return annotations();
    }
    apply(changed, *merged);
    return *std::move(merged);
}

bool TSAnnotationsHelper::saveToDisk()
{
    const std::scoped_lock lock(m_fileLock);
    const Annotations changed = takeChanged();
    if (changed.isEmpty())
        return true;
    if (!QDir().mkpath(QFileInfo(m_path).path())) {
        giveBackChanged(changed);
        return false;
    }
    // Among windows. One that holds it for so long is in trouble, and the file is replaced whole.
    constexpr int kPatience = 5000; // milliseconds
    QLockFile amongWindows(m_path + QLatin1String(".lock"));
    amongWindows.tryLock(kPatience);

    const Annotations merged = mergedWithFile(changed);
    const QByteArray list = textDictionary(merged);
    const QString error = list.size() <= kLongestOwnPropertyList
                              ? writeWholeFile(m_path, list)
                              : m_path + QLatin1String(": the notes are too long for one file");
    if (!error.isEmpty()) {
        giveBackChanged(changed);
        qCWarning(lcPersistence).noquote() << "Failed to save annotations to:" << error;
        return false;
    }
    m_replacesFile = false;
    const std::scoped_lock notesLock(m_lock);
    m_annotations = merged;
    apply(m_changed, m_annotations); // what has changed meanwhile
    return true;
}

QString TSAnnotationsHelper::unwritableFile() const
{
    const QFileInfo file(m_path);
    const QString folder = file.path();
    const bool isWritable = QDir().mkpath(folder) && QFileInfo(folder).isWritable() &&
                            (!file.exists() || file.isWritable());
    return isWritable ? QString() : m_path;
}

} // namespace tessara
