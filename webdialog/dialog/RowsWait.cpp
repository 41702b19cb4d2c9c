#include "RowsWait.h"

#include "GUI_MarqueeProgressDialog.h"
#include "ParallelRows.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFontMetrics>
#include <QPointer>
#include <QTimer>

namespace {

/// Milliseconds until the user is told, and between two looks at the rows.
constexpr int Patience = 1000;
constexpr int LookAgain = 10;
/// More names than these are counted. Each has so many pixels, four a line.
constexpr int MostNames = 8;
constexpr int NamesALine = 4;
constexpr int NameWidth = 150;

/// What the user presses meanwhile was meant for what stood there before.
class NoInput : public QObject {
public:
    NoInput() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::ShortcutOverride:
            case QEvent::Shortcut:
            case QEvent::Wheel:
                return true;
            default:
                return false;
        }
    }
};

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

void waitForRows(ZebHost& host, const ParallelRows& rows, const QStringList& names) {
    if (rows.waitFor(LookAgain)) {
        return;
    }
    const NoInput noInput;
    QPointer<GUI_MarqueeProgressDialog> progress;
    QElapsedTimer waited;
    waited.start();
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (rows.waitFor(0)) {
            loop.quit();
        } else if (progress) {
            progress->setLabelText(awaitedText(host, rows, names));
        } else if (waited.elapsed() > Patience) {
            progress = new GUI_MarqueeProgressDialog(&host, awaitedText(host, rows, names), {}, true);
            progress->hold(true);
            progress->show();
        }
    });
    look.start(LookAgain);
    loop.exec();
    // The application may be ending its event loops.
    while (!rows.waitFor(Patience)) {
    }
    delete progress;
}
