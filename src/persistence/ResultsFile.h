#pragma once

#include "persistence/ResultsArchive.h"

namespace tessara {

/// How the name of a results file ends, without the dot.
inline constexpr char16_t kResultsExtension[] = u"tessara";

/// Whether a file of this name is a results file; case counts.
bool isResultsFileName(const QString& path);

/// Saves results: the file stands under its name, whole, when this returns true. Else what stood
/// there before is untouched. May be called on any thread.
/// @param error why the file was not written, in one line; empty if the work was not to go on
bool writeResultsFile(const QString& path, const ResultsSnapshot& results,
                      const WorkProgress& progress, QString& error);

/// Why there are no results.
struct ResultsFileError {
    /// That of the system, for a file that cannot be read; empty for one that has been read.
    QString system;
    QString format; ///< what is wrong with the content, in one line
};

/// Reads results. May be called on any thread.
/// @param now seconds since 1970, by which the age of the records is told
/// @return none if there are none; if `error` tells no reason, the work was not to go on
std::optional<SavedResults> readResultsFile(const QString& path, double now,
                                            const WorkProgress& progress, ResultsFileError& error);

} // namespace tessara
