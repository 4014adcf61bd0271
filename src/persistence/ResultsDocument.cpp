#include "persistence/ResultsDocument.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "foundation/Logging.h"
#include "persistence/ResultsFile.h"

#include <QFileInfo>

#include <limits>

namespace tessara {

namespace {

FileKind resultsKind()
{
    return {localized("Results"), QStringView(kResultsExtension).toString()};
}

} // namespace

ResultsDocument::ResultsDocument(ShownResults& results, UserPrompt& prompt, Clock& clock)
    : m_results(results)
    , m_prompt(prompt)
    , m_clock(clock)
{
}

ResultsDocument::~ResultsDocument()
{
    if (m_isOpenCancelled)
        *m_isOpenCancelled = true;
    // But what is being saved is still saved.
    if (m_save && !*m_save->job.isCancelled &&
        m_save->copyRecords(std::numeric_limits<std::size_t>::max()))
        m_save->write([](double) { return true; });
}

// Questions -------------------------------------------------------------------------------------

void ResultsDocument::showSaveAlertIfNeeded(UserPrompt::Answer answer)
{
    const bool isSuppressed =
        Defaults::standard().integerForKey(DefaultKey::SaveAlertSupressionButton) != 0;
    if (isSuppressed || !hasUnsavedResults()) {
        answer(TSAlert::kThirdButton);
        return;
    }
    const TSAlert alert{
        .messageText = localized("Do you want to save the current results?"),
        .informativeText = localized("Any data will be lost if you don't save it."),
        .buttons = {localized("Save"), localized("Cancel"), localized("Don't Save")},
    };
    m_prompt.beginSuppressibleAlert(alert, [answer = std::move(answer)](int returnCode,
                                                                        bool suppressed) {
        Defaults::standard().setValue(DefaultKey::SaveAlertSupressionButton, suppressed ? 1 : 0);
        answer(returnCode);
    });
}

void ResultsDocument::showSavePanel(UserPrompt::FileAnswer answer)
{
    m_prompt.beginSavePanel(resultsKind(), [this, answer = std::move(answer)](const QString& path) {
        m_results.doStop();
        answer(path);
    });
}

void ResultsDocument::doAfterSaving(Action action)
{
    showSaveAlertIfNeeded([this, action = std::move(action)](int returnCode) {
        if (returnCode == TSAlert::kThirdButton) {
            action();
        } else if (returnCode == TSAlert::kFirstButton) {
            showSavePanel(
                [this, action](const QString& path) { doSaveWithFileInBackground(path, action); });
        }
    });
}

void ResultsDocument::onFileOpen()
{
    doAfterSaving([this] { doOpen(); });
}

void ResultsDocument::onFileSaveAs()
{
    showSavePanel([this](const QString& path) { doSaveWithFileInBackground(path, [] {}); });
}

void ResultsDocument::openFile(const QString& path)
{
    showSaveAlertIfNeeded([this, path](int returnCode) {
        if (returnCode == TSAlert::kThirdButton) {
            doOpenWithFileInBackground(path);
        } else if (returnCode == TSAlert::kFirstButton) {
            // What opens then are the saved results, not the file that was asked for. It is meant
            // so: they stay in sight.
            showSavePanel([this](const QString& saved) {
                doSaveWithFileInBackground(saved,
                                           [this, saved] { doOpenWithFileInBackground(saved); });
            });
        }
    });
}

void ResultsDocument::doOpen()
{
    m_prompt.beginOpenPanel(resultsKind(),
                            [this](const QString& path) { doOpenWithFileInBackground(path); });
}

// Files -----------------------------------------------------------------------------------------

ResultsDocument::Job ResultsDocument::beginJob(const QString& message, const QString& path)
{
    m_isWorking = true;
    auto isCancelled = std::make_shared<std::atomic<bool>>(false);
    const auto sheet = m_prompt.beginCancellableProgress(
        QStringLiteral("%1 \"%2\"").arg(message, path), [isCancelled] { *isCancelled = true; });
    return {sheet, isCancelled};
}

void ResultsDocument::runInBackground(const Job& job, Work work)
{
    const auto onMainThread = [this](Action action) {
        QMetaObject::invokeMethod(this, std::move(action), Qt::QueuedConnection);
    };
    m_workers.start([=, this, work = std::move(work)] {
        int shown = 0; // per cent: more often there is nothing to see
        const Action rest = work([&](double done) {
            const int percent = static_cast<int>(done * 100);
            if (percent != std::exchange(shown, percent))
                onMainThread([this, job, done] { m_prompt.setProgress(job.sheet, done); });
            return !*job.isCancelled;
        });
        onMainThread([this, job, rest] {
            m_isWorking = false;
            m_prompt.endProgress(job.sheet);
            rest();
        });
    });
}

bool ResultsDocument::Save::copyRecords(std::size_t samplesAtMost)
{
    std::size_t samples = 0;
    while (copy->networks.size() < networks.size() && samples < samplesAtMost) {
        copy->networks.push_back(networks[copy->networks.size()]->snapshot());
        samples += copy->networks.back().dataPoints.size();
    }
    return copy->networks.size() == networks.size();
}

/// Takes the records as they are, some at a time, so that the window does not stand still. They do
/// not change meanwhile: the scan has been stopped, and another one has records of its own.
void ResultsDocument::copySomeRecords()
{
    constexpr std::size_t kSamplesAtOnce = 200'000; // a few milliseconds
    if (!m_save->copyRecords(kSamplesAtOnce)) {
        QMetaObject::invokeMethod(this, &ResultsDocument::copySomeRecords, Qt::QueuedConnection);
        return;
    }
    const auto save = std::move(m_save);
    runInBackground(save->job, std::move(save->write));
}

void ResultsDocument::doSaveWithFileInBackground(const QString& path, Action didSave)
{
    if (m_isWorking)
        return;
    const Job job = beginJob(localized("Saving"), path);
    const auto copy = std::make_shared<ResultsSnapshot>();
    copy->lastScanTime = m_results.lastScanTime();
    const Work write = [this, path, copy,
                        didSave = std::move(didSave)](const WorkProgress& progress) {
        QString error;
        const bool isSaved = writeResultsFile(path, *copy, progress, error);
        if (!error.isEmpty()) // the user may have gone before an alert comes
            qCWarning(lcPersistence).noquote() << path + QStringLiteral(": ") + error;
        return Action([this, path, didSave, isSaved, error] {
            if (isSaved) {
                didSaveFile(path);
                didSave();
            } else if (!error.isEmpty()) {
                showError(localized("The file \"%1\" could not be saved."), path, error);
            }
        });
    };
    m_save = std::make_unique<Save>(Save{m_results.networks(), copy, job, write});
    copySomeRecords();
}

void ResultsDocument::didSaveFile(const QString& path)
{
    setPath(path);
}

void ResultsDocument::doOpenWithFileInBackground(const QString& path)
{
    if (m_isWorking)
        return;
    const QString unreadable = localized("The file \"%1\" could not be read.");
    if (!isResultsFileName(path)) {
        showError(unreadable, path,
                  localized("This file's format is not supported in this version of Tessara."));
        return;
    }
    m_results.doStopAndClearResults();
    const Job job = beginJob(localized("Opening"), path);
    m_isOpenCancelled = job.isCancelled;
    runInBackground(job, [this, path, unreadable,
                          now = m_clock.now()](const WorkProgress& progress) {
        ResultsFileError error;
        const auto results = readResultsFile(path, now, progress, error);
        return Action([this, path, unreadable, results, error] {
            if (results) {
                didOpenFile(path, *results);
            } else if (!error.system.isEmpty()) {
                showError(unreadable, path, error.system);
            } else if (!error.format.isEmpty()) {
                qCWarning(lcPersistence).noquote() << path + QStringLiteral(": ") + error.format;
                showError(unreadable, path, localized("The file does not have a valid format."));
            }
        });
    });
}

void ResultsDocument::didOpenFile(const QString& path, const SavedResults& results)
{
    m_results.didFindNetworks(results.networks, results.lastScanTime);
    setPath(path);
    Q_EMIT fileDidOpen(QFileInfo(path).absoluteFilePath());
}

void ResultsDocument::setPath(const QString& path)
{
    m_path = QFileInfo(path).absoluteFilePath();
    Q_EMIT titleDidChange();
}

QString ResultsDocument::title() const
{
    QString title = m_path;
    title.chop(static_cast<qsizetype>(std::size(kResultsExtension))); // and the dot
    return title;
}

void ResultsDocument::showError(const QString& message, const QString& path, const QString& reason)
{
    const TSAlert alert{
        .messageText = message.arg(QFileInfo(path).fileName()),
        .informativeText = reason,
        .buttons = {localized("OK")},
        .style = TSAlert::Style::kCritical,
    };
    m_prompt.beginAlert(alert, [](int) {});
}

} // namespace tessara
