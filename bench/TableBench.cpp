#include "TableBench.h"

#include "OpenTable.h"

#include <QFile>
#include <QJsonDocument>
#include <QWebFrame>
#include <QWebView>

#include <stdexcept>

QJsonObject TableBench::run() {
    OpenTable table(m_cameras.host());
    table.open();
    table.showLiveControl();
    table.view()->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("bench"), this);

    QFile script(QStringLiteral(":/bench/measure.js"));
    if (!script.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("The script of the measurement is missing.");
    }
    const QByteArray times = table.evaluate(QString::fromUtf8(script.readAll())).toString().toUtf8();
    if (times.isEmpty()) {
        throw std::runtime_error("The measurement failed in the page.");
    }
    return QJsonDocument::fromJson(times).object();
}
