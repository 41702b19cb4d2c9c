#include "MemoryBench.h"

#include "OpenTable.h"

#include <QCoreApplication>
#include <QFile>
#include <QWebSettings>

#include <unistd.h>
#include <stdexcept>

namespace {

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
    tick(table, 0, 1000);
    const double start = residentSet();
    tick(table, 1000, 10000);
    const double end = residentSet();
    return {{QStringLiteral("growth"), end - start}, {QStringLiteral("end"), end}};
}

void MemoryBench::tick(const OpenTable& table, int first, int last) {
    for (int tick = first; tick < last; ++tick) {
        m_cameras.change(10, tick);
        table.evaluate(QStringLiteral("wrentabledialog_obj.autoUpdate()"));
        QCoreApplication::processEvents();
    }
}
