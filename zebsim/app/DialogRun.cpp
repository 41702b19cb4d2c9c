#include "DialogRun.h"

#include "ModalRun.h"
#include "SimHost.h"
#include "Style.h"

int runDialog(SimHost& host, QDialog* dialog) {
    {
        const HostCalls::Own own;
        applyNativeStyle(host, *dialog);
    }
    host.docManager().endTurn();
    return ModalRun(dialog).exec();
}
