#pragma once

#include "foundation/Clock.h"
#include "foundation/UserPrompt.h"
#include "foundation/WorkerThreads.h"
#include "persistence/ResultsArchive.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

namespace tessara {

/// The results that a document saves, and replaces by those of a file.
class ShownResults {
public:
    virtual ~ShownResults() = default;
    virtual const NetworkList& networks() const = 0;
    virtual double lastScanTime() const = 0; ///< seconds since 1970
    virtual void doStop() = 0;
    virtual void doStopAndClearResults() = 0;
    virtual void didFindNetworks(const NetworkList& networks, double lastScanTime) = 0;
};

/// Which file the results on show are those of, if any, and the ways from and to files. Files are
/// read and written on threads of their own behind a progress sheet; all else, the answers to
/// questions included, happens on the main thread, later where the user takes time.
class ResultsDocument final : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    /// All must outlive this.
    ResultsDocument(ShownResults& results, UserPrompt& prompt, Clock& clock);
    ~ResultsDocument() override;

    /// The file that is shown, with its folder; empty while the results are no file's.
    const QString& path() const { return m_path; }
    /// The same without the extension.
    QString title() const;
    bool hasUnsavedResults() const { return m_path.isEmpty() && !m_results.networks().empty(); }
    /// What is shown from now on is a scan.
    void leaveFile() { m_path.clear(); }

    /// Does what would lose unsaved results, after the user was asked whether to save them. It is
    /// not done if the user cancels, and if the results could not be saved.
    void doAfterSaving(Action action);

    // Commands.
    void onFileOpen();
    void onFileSaveAs();
    /// A file was handed over by the system.
    void openFile(const QString& path);

Q_SIGNALS:
    void titleDidChange();
    /// The results of a file are shown.
    void fileDidOpen(const QString& path);

private:
    /// Work behind a progress sheet.
    struct Job {
        UserPrompt::ProgressId sheet;
        std::shared_ptr<std::atomic<bool>> isCancelled;
    };
    /// Gives what is left to do on the main thread when the work has ended.
    using Work = std::function<Action(const WorkProgress& progress)>;
    /// A save whose records are being copied.
    struct Save {
        NetworkList networks;
        std::shared_ptr<ResultsSnapshot> copy;
        Job job;
        Work write;

        /// @return whether all of them are there
        bool copyRecords(std::size_t samplesAtMost);
    };

    void showSaveAlertIfNeeded(UserPrompt::Answer answer);
    void showSavePanel(UserPrompt::FileAnswer answer);
    void doOpen();
    void doSaveWithFileInBackground(const QString& path, Action didSave);
    void doOpenWithFileInBackground(const QString& path);
    void didSaveFile(const QString& path);
    void didOpenFile(const QString& path, const SavedResults& results);
    Job beginJob(const QString& message, const QString& path);
    void runInBackground(const Job& job, Work work);
    void copySomeRecords();
    void setPath(const QString& path);
    void showError(const QString& message, const QString& path, const QString& reason);

    ShownResults& m_results;
    UserPrompt& m_prompt;
    Clock& m_clock;
    QString m_path;
    bool m_isWorking = false;
    std::unique_ptr<Save> m_save;                         ///< until its work begins
    std::shared_ptr<std::atomic<bool>> m_isOpenCancelled; ///< of the latest one, if any
    WorkerThreads m_workers; // last: joined while all of the above still stands
};

} // namespace tessara
