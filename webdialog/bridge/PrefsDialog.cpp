#include "PrefsDialog.h"

#include "TraceScope.h"
#include "ZebCameraOps.h"
#include "ZebHost.h"
#include "ZebPrefsDialog.h"

int runPrefsDialog(ZebHost& host, const QString& page) {
    const TraceScope trace(QStringLiteral("JS_Mediator::openPrefsDialog"), {{"page", page}});
    if (host.isLiveMode()) {
        host.cameraOps().stopForPrefs();
    }
    ZebPrefsDialog* dialog = host.getPrefsDialog();
    if (!dialog) {
        return 0;
    }
    dialog->setPage(host.translate(page));
    return dialog->exec();
}
