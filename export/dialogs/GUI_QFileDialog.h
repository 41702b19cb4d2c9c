#pragma once

#include <QFileDialog>
#include <QVariant>

class ZebHost;

/// What the file dialogs share: they are Qt's own on every system, ask nothing about overwriting, and the log tells
/// what the user does in them. GUI thread.
class GUI_QFileDialog : public QFileDialog {
    Q_OBJECT

public:
    /// `host` is not owned and outlives the dialog. `parent` may be null.
    GUI_QFileDialog(ZebHost* host, QWidget* parent, const QString& caption, const QString& folder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    ZebHost& host() const { return *m_host; }
    /// The line of the log for what the user did to the control `id`.
    void logButton(const QString& id, const QString& operation, const QVariant& value = {}) const;

private:
    ZebHost* const m_host;
};
