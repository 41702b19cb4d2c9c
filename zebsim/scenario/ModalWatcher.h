#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QDialog;
class QMessageBox;
class QWebView;

/// Tells when a modal dialog stands, or a message box that is not modal. GUI thread.
///
/// A dialog stands when it is shown, runs its event loop, and the page that it may hold has loaded.
class ModalWatcher : public QObject {
    Q_OBJECT

public:
    explicit ModalWatcher(QObject* parent = nullptr);

    /// The modal dialog that the user would have to answer now; null when there is none.
    static QDialog* standing();
    /// Its page; null when there is none.
    static QWebView* standingPage();

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// Emitted inside the event loop of `dialog`, once each time it is shown.
    void stands(QDialog* dialog);
    /// `box` stands and keeps nobody from working.
    void noticed(QMessageBox* box);

private:
    void lookAt(const QPointer<QDialog>& dialog);
};
