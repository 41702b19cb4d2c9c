#include "RecordingGuard.h"

#include "UiText.h"
#include "host/SimHost.h"

#include <QMessageBox>

bool mayLetGoOfRecording(SimHost& host, const QString& question) {
    if (!host.recorder().isUnderWay()) return true;
    const ButtonTexts answers{{QMessageBox::Yes, uiText("Yes")}, {QMessageBox::No, uiText("No")}};
    return host.choose(question, nullptr, answers, QMessageBox::No) == QMessageBox::Yes;
}
