#pragma once

#include "foundation/Directories.h"
#include "foundation/WorkerThreads.h"

#include <QHash>
#include <QString>

#include <atomic>
#include <mutex>
#include <optional>

namespace tessara {

/// The user's notes on networks, by BSSID as `TSNetwork` gives it: the one store for all scans and
/// runs, a file "annotations.plist". Every operation that does not say otherwise may be called on
/// any thread.
class TSAnnotationsHelper final : public AnnotationsDirectory {
public:
    using Annotations = QHash<QString, QString>; ///< notes by BSSID

    /// Where the notes of the user who runs the program are.
    static QString standardPath();
    /// These notes, read from disk when first asked for.
    static TSAnnotationsHelper& sharedAnnotations();

    /// An empty store.
    explicit TSAnnotationsHelper(QString path);

    Annotations annotations() const;
    std::optional<QString> annotationsForNetwork(const QString& bssid) const;
    /// Stores a note, trimmed; one of blanks removes the entry.
    void setAnnotationsForNetwork(const QString& bssid, const QString& annotations);

    /// Takes the notes that an earlier version kept among the settings, which are moved for good,
    /// or else those of the file. A file that is damaged is set aside, and the store is empty.
    void readFromDisk();
    /// Takes the notes of the file. @return what is wrong with it, in one line, or empty
    QString load();
    /// Writes what has changed here into the file, beside what other windows have written into it.
    /// A failure is one line in the log. @return whether nothing is left to be written
    bool saveToDisk();
    /// The file of the notes, if it cannot be written; empty otherwise. Makes the folder it is in.
    QString unwritableFile() const;

    std::optional<QString> annotationsFor(const QString& bssid) const override;
    /// Main thread only. The file follows on a thread of its own.
    void setAnnotations(const QString& bssid, const QString& note) override;

private:
    std::optional<Annotations> read(QString& error) const;
    Annotations mergedWithFile(const Annotations& changed) const;
    Annotations takeChanged();
    void giveBackChanged(const Annotations& changed);

    const QString m_path;
    mutable std::mutex m_lock; ///< of the notes
    Annotations m_annotations;
    Annotations m_changed;       ///< not in the file yet; an empty note is a removed one
    bool m_replacesFile = false; ///< what the file holds counts no more
    std::mutex m_fileLock;       ///< one save at a time
    std::atomic<bool> m_isSaveDue = false;
    WorkerThreads m_saves; // last: joined while all of the above still stands
};

} // namespace tessara
