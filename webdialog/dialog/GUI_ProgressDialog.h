#pragma once

#include "OverActiveWindow.h"

#include <QProgressDialog>

#include <optional>

/// A progress dialog whose label is plain text and whose Escape key can be taken away. A modal one stands over the
/// window that the user works in. GUI thread.
class GUI_ProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    /// No cancel button when `cancelText` is empty. With `ignoreEscape` the Escape key does nothing.
    GUI_ProgressDialog(const QString& label, const QString& cancelText, int minimum, int maximum, QWidget* parent,
                       Qt::WindowFlags windowFlags, bool ignoreEscape);
    ~GUI_ProgressDialog() override;

    /// A held one stands until it is let go: no key, no window manager, and no press of its cancel button closes it.
    void hold(bool held);
    void reject() override;
    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void comeAlone();

    const bool m_ignoreEscape;
    bool m_held = false;
    std::optional<OverActiveWindow> m_over;
};
