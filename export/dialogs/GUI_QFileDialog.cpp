#include "GUI_QFileDialog.h"

#include "TraceText.h"

#include <QEvent>

GUI_QFileDialog::GUI_QFileDialog(ZebHost* host, QWidget* parent, const QString& caption, const QString& folder)
    : QFileDialog(parent, caption, folder), m_host(host) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    installEventFilter(this);
}

/// A close that the program asks for is no operation of the user.
bool GUI_QFileDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::Close && event->spontaneous()) {
        logButton(QString(), QStringLiteral("clicked"), QStringLiteral("close"));
    }
    return QFileDialog::eventFilter(watched, event);
}

void GUI_QFileDialog::logButton(const QString& id, const QString& operation, const QVariant& value) const {
    const QString name = QLatin1String(metaObject()->className());
    logUserOperation(name, operation, QStringLiteral("Button"), id, name, value);
}
