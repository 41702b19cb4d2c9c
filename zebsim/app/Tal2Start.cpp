#include "Tal2Start.h"

#include "SimHost.h"
#include "UTL_TAL2_Integration.h"
#include "UiText.h"

#include <QDir>
#include <QProcess>

void handOverToTal2(SimHost& host, const QStringList& folders) {
    const HostCalls::Own own;
    const UTL_TAL2_Integration tal2(&host);
    if (folders.isEmpty() || !host.prefs().value(QStringLiteral("export/executetal2")).toBool() ||
        tal2.isTal2OptionDisabled() || !tal2.isTAL2AppInstalled()) {
        return;
    }
    QString folder;
    host.getTal2Folder(folder);
    const QString program = QDir(folder).filePath(QStringLiteral("tal2.exe"));
    if (!QProcess::startDetached(program, folders)) {
        host.messages().notify(Message::Warn, uiText("%1 can't be started. What was saved is complete.").arg(program));
    }
}
