#pragma once

#include <QElapsedTimer>
#include <QObject>

class QMessageBox;

/// Keeps a box from being answered by a press that was meant for what lay there before it came up, as the second of a
/// double click on the box before. Goes with the box. GUI thread.
class NoHastyPress : public QObject {
    Q_OBJECT

public:
    /// Before `box` is shown.
    explicit NoHastyPress(QMessageBox& box);

protected:
    bool eventFilter(QObject* button, QEvent* event) override;

private:
    QElapsedTimer m_shown;
};
