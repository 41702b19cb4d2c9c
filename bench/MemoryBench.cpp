#include "MemoryBench.h"

#include "OpenTable.h"

#include <QCoreApplication>
#include <QFile>
#include <QWebSettings>

#include <unistd.h>
#include <stdexcept>

namespace {

/// Ticks after which the process has what it needs.
constexpr int Settled = 1000;

/// MiB of this process that are in memory, when what is only kept for later use has been given back.
double residentSet() {
    QWebSettings::clearMemoryCaches();
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("The size of the process cannot be read.");
    }
    const QList<QByteArray> pages = file.readAll().split(' ');
    return double(pages.value(1).toLongLong()) * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

}  // namespace

QJsonObject MemoryBench::run() {
    OpenTable table(m_cameras.host());
    table.open();
    table.showLiveControl();
    return {{QStringLiteral("resident"), residentAfter(table, 0, Settled)}};
}

QJsonObject MemoryBench::growth() {
    OpenTable table(m_cameras.host());
    table.open();
    table.showLiveControl();
    const double start = residentAfter(table, 0, Settled);
    const double end = residentAfter(table, Settled, 10 * Settled);
    return {{QStringLiteral("growth"), end - start}, {QStringLiteral("end"), end}};
}

double MemoryBench::residentAfter(const OpenTable& table, int first, int last) {
    for (int tick = first; tick < last; ++tick) {
        m_cameras.change(10, tick);
        table.evaluate(QStringLiteral("wrentabledialog_obj.autoUpdate()"));
        QCoreApplication::processEvents();
    }
    return residentSet();
}
