#pragma once

#include <QDialog>
#include <QVariant>

/// What all dialogs share: Escape, the close button, the log of what the user does. GUI thread.
class GUI_Dialog : public QDialog {
    Q_OBJECT

public:
    /// With `ignoreEscape` the Escape key does nothing.
    GUI_Dialog(QWidget* parent, Qt::WindowFlags windowFlags, bool ignoreEscape);

    /// Saves a picture of the whole widget; the suffix of `path` is the format. False when it could not be saved.
    static bool saveGrab(QWidget* widget, const QString& path);

Q_SIGNALS:
    void signalEnableCloseButton();
    void signalDisableCloseButton();

public Q_SLOTS:
    void userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                 const QString& id, const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);
    void slotEnableCloseButton();
    void slotDisableCloseButton();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setCloseButton(bool enabled);

    const bool m_ignoreEscape;
};
