#pragma once

#include "ZebUndo.h"

#include "HeadSettings.h"

#include <QList>
#include <QString>
#include <QVariantMap>

#include <memory>
#include <vector>

class Camera;
struct CameraPlan;
struct HostContext;

/// The undo stack. What the settings that cameras record with become between `beginMacro` and `endMacro` is one step,
/// with those that moved along. A step without a text is an image tool's. GUI thread.
class SimUndo : public ZebUndo {
public:
    explicit SimUndo(const HostContext& host);

    void clear() override;
    void beginMacro(const QString& text) override;
    void endMacro() override;
    bool canUndo() const override;
    bool canRedo() const override;

    /// Texts of the steps that come next; empty when there is none, and outside live mode.
    QString undoText() const { return textOf(m_undo); }
    QString redoText() const { return textOf(m_redo); }

    /// Gives the cameras of the last step what they had before it, or of the step taken back last what they had after
    /// it. One that is not there, locked, armed, in low light mode or was changed since is left alone, and the user is
    /// told which; one that may take it another time waits for that. Where nothing could be done, the next call goes
    /// past that step, for the cameras that do not wait in it. Answers the step's text, empty when there was none.
    /// Event loops run.
    QString undo() { return move(m_undo, m_redo, true); }
    QString redo() { return move(m_redo, m_undo, false); }

private:
    /// Of one camera or head, only what has changed.
    struct Change {
        QString address;
        int head;
        QVariantMap before;
        QVariantMap after;
        /// It was in low light mode before, so that it can go back in it.
        bool inLowLight = false;
        /// What it has on the way, of neither side, since it took some of it.
        QVariantMap strays;
    };
    struct Step {
        /// Grows with time, the same for the parts of one that was taken back bit by bit.
        int id;
        QString text;
        QList<Change> changes;
        /// Nothing could be done of it the last time, so that the next one goes past it.
        bool passed = false;
    };
    struct Found {
        std::shared_ptr<Camera> camera;
        QVariantMap settings;
    };
    /// What a step does now: for which cameras, which wait for the next time, and a line for each that is left alone.
    struct Choice {
        QList<HeadSettings> wanted;
        QList<Change> waiting;
        QStringList lines;
    };

    /// Why a camera is left alone, as a line; empty when it is not. Whether that passes.
    struct Left {
        QString line;
        bool passes = false;
    };

    std::vector<Found> look() const;
    QString textOf(const QList<Step>& steps) const;
    QString move(QList<Step>& from, QList<Step>& to, bool back);
    /// The step that comes next, -1 for none.
    static int nextOf(const QList<Step>& steps);
    /// Whether the device of a change of the step at `place` has another one before it, in a step behind that.
    static bool waitsFor(const QList<Step>& steps, int place, const Change& change);
    /// Puts the part that is left of a step in its place, none where it has no changes.
    static void replace(QList<Step>& steps, const Step& part);
    /// Adds a part to that of the same step, or in its place in time.
    static void join(QList<Step>& steps, const Step& part, bool newestLast);
    /// Of the step at `place`.
    Choice choose(const QList<Step>& from, int place, bool back) const;
    Left whyLeft(const CameraPlan& camera, const Change& change) const;
    /// Answers the changes that have come about, and adds a line for each that has not.
    QList<Change> carryOut(Choice& choice, const QList<Change>& changes, bool back) const;
    void tell(const QString& text, int count, const Choice& choice, bool back) const;
    QString line(const QString& label, const QString& reason) const;

    const HostContext& m_host;
    /// The one that comes next stands last: the newest to take back, the oldest to do again.
    QList<Step> m_undo;
    QList<Step> m_redo;
    /// The outermost macro that is open.
    int m_depth = 0;
    QString m_text;
    std::vector<Found> m_found;
    bool m_isMoving = false;
    int m_steps = 0;
    /// How many times the cameras were replaced.
    int m_rigs = 0;
};
