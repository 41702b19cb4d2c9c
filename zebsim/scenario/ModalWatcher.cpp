#include "ModalWatcher.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>
#include <QWebFrame>
#include <QWebView>

#include <memory>

namespace {

bool hasLoaded(const QWebView& view) {
    QWebFrame& frame = *view.page()->mainFrame();
    // Until the first answer comes, the view shows an empty document, which is complete.
    const bool isWaiting = frame.url().isEmpty() && !frame.requestedUrl().isEmpty();
    return !isWaiting && frame.evaluateJavaScript(QStringLiteral("document.readyState")) == QLatin1String("complete");
}

}  // namespace

ModalWatcher::ModalWatcher(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

QDialog* ModalWatcher::standing() {
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

QWebView* ModalWatcher::standingPage() {
    const QDialog* dialog = standing();
    return dialog ? dialog->findChild<QWebView*>() : nullptr;
}

bool ModalWatcher::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show && object->isWidgetType()) {
        if (auto* dialog = qobject_cast<QDialog*>(object)) {
            QTimer::singleShot(0, this, [this, dialog = QPointer<QDialog>(dialog)] { lookAt(dialog); });
        }
    }
    return QObject::eventFilter(object, event);
}

void ModalWatcher::lookAt(const QPointer<QDialog>& dialog) {
    // By now the dialog may have become modal, for some are shown before they are executed.
    if (dialog.isNull() || !dialog->isVisible()) {
        return;
    }
    if (!dialog->isModal()) {
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            Q_EMIT noticed(box);
        }
        return;
    }
    auto* view = dialog->findChild<QWebView*>();
    if (view == nullptr || hasLoaded(*view)) {
        Q_EMIT stands(dialog);
        return;
    }
    const auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(view, &QWebView::loadFinished, this, [this, dialog, once] {
        disconnect(*once);
        lookAt(dialog);
    });
}
