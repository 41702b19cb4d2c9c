#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class GUI_MarqueeProgressDialog;
class ParallelRows;
class ZebHost;

/// Who has not answered yet of rows that have these names, as a user reads it.
QString awaitedText(const ZebHost& host, const ParallelRows& rows, const QStringList& names);

/// Waits for work on rows, one piece after the other, as a whole for the user. From the second second on a progress
/// names those that have not ended; nobody can close it. Until `finish` no press arrives, then or later, but in boxes
/// that come up meanwhile. The host may destroy its plug-ins in a wait. GUI thread.
class RowsWait : public QObject {
public:
    explicit RowsWait(ZebHost& host);
    ~RowsWait() override;

    /// Runs an event loop until `rows` have ended.
    void waitFor(const ParallelRows& rows, const QStringList& names);
    /// Takes the progress away, and the presses that have come until now. Runs an event loop.
    void finish();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool isBoxUp() const;
    void show(const QString& text);

    ZebHost& m_host;
    /// What stood before.
    const QPointer<QWidget> m_before;
    QElapsedTimer m_waited;
    QPointer<GUI_MarqueeProgressDialog> m_progress;
    bool m_shown = false;
};
