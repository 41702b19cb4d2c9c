#pragma once

#include <QStringList>

class ZebHost;

/// What a support file will hold, as the user is told before it is written.
QStringList supportFileContents(bool cameraLog, bool tableWindow);

/// Writes a support file where the user wants it, after telling what goes into it. GUI thread.
///
/// It runs event loops: a question, a file dialog, a progress. A refusal ends it in silence. Throws what the host
/// throws, and `APP_ConcurrentException` when the file could not be written; nothing is stored then.
class SupportFileExport {
public:
    explicit SupportFileExport(ZebHost& host) : m_host(host) {}

    void run();

private:
    bool userAgrees();
    QString askPath();
    void write(const QString& path);
    bool hasCameraLog();

    ZebHost& m_host;
};
