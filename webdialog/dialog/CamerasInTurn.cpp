#include "CamerasInTurn.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "GUI_MarqueeProgressDialog.h"
#include "LogFailure.h"
#include "NamedFailure.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPointer>

#include <stdexcept>
#include <utility>

namespace {

/// In pixels; a longer one is cut.
constexpr int NameWidth = 300;

QString nameOf(DOC_Interface& doc) {
    QString name;
    logFailure([&] { name = doc.control().getCameraName(1).simplified(); });
    return QFontMetrics(QApplication::font()).elidedText(name, Qt::ElideRight, NameWidth);
}

/// No failure of it keeps a camera from its turn.
class Progress {
public:
    explicit Progress(ZebHost& host) : m_host(host) {}
    ~Progress() {
        if (m_dialog) {
            // The presses that have come meanwhile find it here, and not what it stood over.
            QCoreApplication::processEvents();
        }
        delete m_dialog;
    }
    Q_DISABLE_COPY(Progress)

    void show(const QString& text) {
        if (!std::exchange(m_begun, true)) {
            logFailure([&] { m_dialog = new GUI_MarqueeProgressDialog(&m_host, text, {}, true); });
        }
        if (m_dialog) {
            m_dialog->setLabelText(text);
            m_dialog->hold(true);
            m_dialog->show();
        }
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

private:
    ZebHost& m_host;
    bool m_begun = false;
    /// It may go with the main window.
    QPointer<GUI_MarqueeProgressDialog> m_dialog;
};

}  // namespace

QString notReached(ZebHost& host, const DocKeyList& keys) {
    QStringList names;
    for (const DOCKEY key : keys) {
        if (DOC_Interface* doc = host.docManager().getDoc(key, 1)) {
            names << nameOf(*doc);
        }
    }
    const QString text = host.translate(TextKey("Nothing was done with: %1"));
    return names.isEmpty() ? QString() : QString(QLatin1Char('\n') % text.arg(names.join(QStringLiteral(", "))));
}

void forEachCameraInTurn(ZebHost& host, const QString& text, const DocKeyList& keys,
                         const std::function<void(DOC_Interface&)>& step) {
    ZebDocManager& documents = host.docManager();
    const QString translated = host.translate(text);
    Progress progress(host);
    for (int i = 0; i < keys.size(); ++i) {
        if (DOC_Interface* doc = documents.getDoc(keys.at(i), 1)) {
            progress.show(translated.arg(nameOf(*doc), QString::number(i + 1), QString::number(keys.size())));
        }
        try {
            if (DOC_Interface* doc = documents.getDoc(keys.at(i), 1)) {
                step(*doc);
            }
        } catch (...) {
            QString failure = currentFailureText();
            if (DOC_Interface* doc = documents.getDoc(keys.at(i), 1)) {
                failure = namedFailure(failure, *doc);
            }
            throw std::runtime_error(QString(failure % notReached(host, keys.mid(i + 1))).toStdString());
        }
    }
}
