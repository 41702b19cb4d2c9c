#include "RowsWait.h"

#include "GUI_MarqueeProgressDialog.h"
#include "LogFailure.h"
#include "ParallelRows.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QApplication>
#include <QDebug>
#include <QEventLoop>
#include <QFontMetrics>
#include <QTimer>

#include <utility>

namespace {

/// Milliseconds until the user is told, and between two looks at the rows.
constexpr int Patience = 1000;
constexpr int LookAgain = 10;
/// More names than these are counted. Each has so many pixels, four a line.
constexpr int MostNames = 8;
constexpr int NamesALine = 4;
constexpr int NameWidth = 150;

}  // namespace

QString awaitedText(const ZebHost& host, const ParallelRows& rows, const QStringList& names) {
    QStringList who;
    for (const int row : rows.unfinished()) {
        who << names.at(row);
    }
    const QFontMetrics metrics(QApplication::font());
    QString shown;
    for (int i = 0; i < qMin(who.size(), MostNames); ++i) {
        shown += i == 0 ? QString() : i % NamesALine == 0 ? QStringLiteral(",\n") : QStringLiteral(", ");
        shown += metrics.elidedText(who.at(i).simplified(), Qt::ElideRight, NameWidth);
    }
    return who.size() > MostNames ? host.translate(TextKey("No answer yet: %1 and %2 more"))
                                        .arg(shown, QString::number(who.size() - MostNames))
                                  : host.translate(TextKey("No answer yet: %1")).arg(shown);
}

RowsWait::RowsWait(ZebHost& host) : m_host(host), m_before(QApplication::activeModalWidget()) {
    m_waited.start();
    qApp->installEventFilter(this);
}

RowsWait::~RowsWait() {
    delete m_progress;
}

void RowsWait::waitFor(const ParallelRows& rows, const QStringList& names) {
    if (rows.waitFor(LookAgain)) {
        return;
    }
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (rows.waitFor(0)) {
            // A box may stand in this loop, which then ends only after it.
            look.stop();
            loop.quit();
        } else if (m_waited.elapsed() > Patience) {
            logFailure([&] { show(awaitedText(m_host, rows, names)); });
        }
    });
    look.start(LookAgain);
    loop.exec();
    // The application may be ending its event loops.
    while (!rows.waitFor(Patience)) {
    }
}

/// Not over a box, which could not be answered then.
void RowsWait::show(const QString& text) {
    if (isBoxUp()) {
        delete m_progress;
        m_shown = false;
    } else if (m_progress) {
        m_progress->setLabelText(text);
    } else if (!std::exchange(m_shown, true)) {
        m_progress = new GUI_MarqueeProgressDialog(&m_host, text, {}, true);
        m_progress->hold(true);
        m_progress->show();
    }
}

void RowsWait::finish() {
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    delete m_progress;
}

bool RowsWait::isBoxUp() const {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != m_before && modal != m_progress;
}

/// What is pressed was meant for what stood there before. The log tells of it.
bool RowsWait::eventFilter(QObject* /*object*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::KeyPress:
            if (!isBoxUp()) {
                qInfo() << "A press was not taken: cameras are being set.";
            }
            [[fallthrough]];
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
            return !isBoxUp();
        default:
            return false;
    }
}
