#pragma once

#include <QDockWidget>

class Journal;
class LogStore;
class QPlainTextEdit;

/// Shows the application's log and the plug-in's calls as they come.
class LogDock : public QDockWidget {
    Q_OBJECT

public:
    /// Both must outlive the dock.
    LogDock(const LogStore& log, const Journal& journal, QWidget* parent);

private:
    QPlainTextEdit* makeView();
};
