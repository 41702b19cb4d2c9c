#pragma once

#include "GatheredFailures.h"
#include "ZebTypes.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

class ZebHost;

/// Steps that are done on many cameras side by side, one step after the other. A camera that fails is left out of all
/// later ones, so that one that does not answer costs its time-out once. Made and run on the GUI thread.
class CameraSteps {
public:
    /// Runs on a thread of its own, where only `DOC_` operations may be called.
    using Step = std::function<bool(DOC_Interface&)>;

    /// Failures go into `failures`, a line "camera: step: reason" each.
    CameraSteps(ZebHost& host, GatheredFailures& failures) : m_host(host), m_failures(failures) {}

    /// `step` on those of `keys` that are there and have not failed before; `label` is its name to the user. Answers
    /// those for which it has answered true. Runs an event loop: documents from before are dead afterwards.
    DocKeyList run(const QString& label, const DocKeyList& keys, const Step& step);
    /// The same, whether they have failed before or not.
    void runOnAll(const QString& label, const DocKeyList& keys, const Step& step);

    /// Whether the host still has the plug-in; without it no step but `runOnAll` reaches a camera.
    bool isPluginThere() const;
    /// Those that have not failed; none without the plug-in.
    DocKeyList left(const DocKeyList& keys) const;
    /// What a command of the host to `keys` has met: lines that begin with the name of a camera.
    void note(const QString& label, const DocKeyList& keys, const GatheredFailures& refusals);

    /// Asks the cameras how they are called. Until then, and where one does not tell, its key stands for its name.
    void readNames(const QString& label, const DocKeyList& keys);
    QStringList namesOf(const DocKeyList& keys) const;

private:
    struct Row;

    QString nameOf(DOCKEY key) const;
    DocKeyList runOn(const QString& label, const DocKeyList& keys, const Step& step);
    void noteOf(DOCKEY key, const QString& label, const QString& failure);

    ZebHost& m_host;
    GatheredFailures& m_failures;
    QHash<DOCKEY, QString> m_names;
    QSet<DOCKEY> m_failed;
};
