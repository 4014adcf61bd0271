#pragma once

#include "persistence/FileWork.h"
#include "persistence/TSAnnotationsHelper.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

namespace tessara {

/// The notes as lines `00:11:22:33:44:55,"roof, east side"` in order, in UTF-8 and without a
/// header. A quotation mark in a note is not doubled: that is the format.
QByteArray csvOfAnnotations(const TSAnnotationsHelper::Annotations& annotations);

/// Gives each line of such a file, with the BSSID in upper case and an empty note where there is
/// none. What follows a line that is no CSV is left out.
/// @return what is wrong with the bytes, or empty
QString
readAnnotationsCSV(const QByteArray& bytes,
                   const std::function<void(const QString& bssid, const QString& note)>& line);

/// Export of the notes to CSV files and import from them. Lives on the main thread; the work on the
/// files is done on another one.
class AnnotationsCSV final : public QObject {
    Q_OBJECT

public:
    AnnotationsCSV(TSAnnotationsHelper& store, UserPrompt& prompt)
        : m_store(store)
        , m_work(prompt)
    {
    }

    /// Writes the notes of the store.
    /// @param overlay notes of an opened file, which take the place of the store's
    void exportFile(const QString& path, const TSAnnotationsHelper::Annotations& overlay);
    /// Adds the notes of a file to the store and saves it. An empty note removes the entry; entries
    /// that the file does not name stay.
    void importFile(const QString& path);

Q_SIGNALS:
    /// The store has taken up what was in a file.
    void didImport();

private:
    TSAnnotationsHelper& m_store;
    FileWork m_work;
};

} // namespace tessara
