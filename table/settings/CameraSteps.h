#pragma once

#include "GatheredFailures.h"
#include "RowsWait.h"
#include "ZebTypes.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <vector>

class ZebHost;

/// Steps that are done on many cameras side by side, one step after the other. A camera that fails is left out of all
/// later ones, so that one that does not answer costs its time-out once. Made and run on the GUI thread.
class CameraSteps {
public:
    /// Run on other threads, where only `DOC_` operations may be called.
    using Question = std::function<bool(DOC_Interface&)>;
    using Step = std::function<void(DOC_Interface&)>;

    /// Most cameras answer at once, and do at once what they do already: for so long one thread asks them in turn.
    static constexpr std::chrono::milliseconds Patience{1};

    /// Failures go into `failures`, a line "camera: step: reason" each. With a `patience` of 0 each camera has a thread
    /// of its own from the start.
    CameraSteps(ZebHost& host, GatheredFailures& failures, std::chrono::milliseconds patience)
        : m_host(host), m_failures(failures), m_wait(host), m_patience(patience) {}

    /// Those of `keys` that are there, have not failed before and answer true; `label` is the step's name to the user.
    /// Runs an event loop, as the others do: documents from before are dead afterwards.
    DocKeyList ask(const QString& label, const DocKeyList& keys, const Question& question);
    void run(const QString& label, const DocKeyList& keys, const Step& step);
    /// The same, whether they have failed before or not.
    void runOnAll(const QString& label, const DocKeyList& keys, const Step& step);

    /// Whether the host still has the plug-in; without it no step but `runOnAll` reaches a camera.
    bool isPluginThere() const;
    /// Those that have not failed; none without the plug-in.
    DocKeyList left(const DocKeyList& keys) const;
    /// What a command of the host to `keys` has met: lines that begin with the name of a camera. Answers these cameras;
    /// those that are among `failing` have failed.
    DocKeyList note(const QString& label, const DocKeyList& keys, const DocKeyList& failing,
                    const GatheredFailures& refusals);
    /// After the last step: the user may press again.
    void finish() { m_wait.finish(); }

    /// Asks the cameras how they are called. Until then, and where one does not tell, the key stands for the name; that
    /// is no failure that leaves it out.
    void readNames(const QString& label, const DocKeyList& keys);
    QStringList namesOf(const DocKeyList& keys) const;
    QString nameOf(DOCKEY key) const;

private:
    struct Row;

    std::vector<Row> runRows(const DocKeyList& keys, const std::function<void(Row&)>& work);
    DocKeyList askAll(const QString& label, const DocKeyList& keys, const Question& question);
    QString lineOf(DOCKEY key, const QString& label, const QString& failure) const;

    ZebHost& m_host;
    GatheredFailures& m_failures;
    RowsWait m_wait;
    std::chrono::milliseconds m_patience;
    QHash<DOCKEY, QString> m_names;
    QSet<DOCKEY> m_failed;
};
