#pragma once

#include "ActionResult.h"

#include <QPair>
#include <QVector>

#include <optional>

class ZebHost;
struct CameraAction;

/// Watches a change of many cameras: what they have before it, and what their getters answer afterwards. That decides,
/// for a camera may take what it says it refuses, and may take something else without a word. GUI thread; does not
/// throw what cameras throw.
class ActionWatch {
public:
    /// Looks at the cameras as they are now. No keys stand for all that are connected. `asked` as the slot gets it.
    ActionWatch(ZebHost& host, const CameraAction& action, const DocKeyList& keys, const QString& asked);

    /// `failure`: what the host has thrown, a line a camera where it begins with that one's name and ": ", else of all.
    /// `sent`: whether the host was told. If not, it is a result only where no camera could be asked. Null for nobody.
    std::optional<ActionResult> finish(const QString& failure, bool sent) const;

private:
    using Values = QVector<QPair<const CameraAction*, QString>>;
    struct Before {
        DOCKEY key = zeb::NoDocKey;
        QString name;
        QString asked;
        QString value;
        /// Its lock, or its low light mode, keeps it from the change.
        bool isLocked = false;
        bool isLowLight = false;
        /// What else may move, as the user reads it.
        Values others;
    };

    void look(DOCKEY key);
    Values othersOf(DOC_Interface& doc) const;
    QString ownerOf(const QString& line) const;
    QString reasonFor(const Before& before, const QStringList& lines) const;
    ActionResult::Row rowOf(const Before& before, const QStringList& lines) const;
    QString verdictOf(const Before& before, const QString& got, bool isTold) const;
    QString movedText(const Before& before, DOC_Interface& doc) const;

    ZebHost& m_host;
    const CameraAction& m_action;
    const QString m_asked;
    QVector<Before> m_before;
};
