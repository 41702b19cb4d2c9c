#include "DialogRun.h"

#include "ModalRun.h"
#include "SimHost.h"
#include "Style.h"

#include <QDialog>
#include <QScreen>

int runDialog(SimHost& host, QDialog* dialog) {
    {
        const HostCalls::Own own;
        applyNativeStyle(host, *dialog);
    }
    host.docManager().endTurn();
    return ModalRun(dialog).exec();
}

void resizeOnScreen(QDialog& dialog, const QSize& size) {
    const QSize frame(20, 60);
    const QScreen* screen = dialog.screen();
    dialog.resize(screen ? size.boundedTo(screen->availableSize() - frame) : size);
}
