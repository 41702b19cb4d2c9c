#include "DialogRun.h"

#include "OverActiveWindow.h"
#include "SimHost.h"
#include "Style.h"

#include <QDialog>
#include <QPointer>

int runDialog(SimHost& host, QDialog* dialog) {
    // The dialog goes with the main window, which may be destroyed while it stands.
    const QPointer<QDialog> standing = dialog;
    {
        const HostCalls::Own own;
        applyNativeStyle(host, *dialog);
    }
    host.docManager().endTurn();
    const OverActiveWindow over(*dialog);
    const int result = dialog->exec();
    delete standing;
    return result;
}
