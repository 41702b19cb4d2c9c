#include "RecordingGuard.h"

#include "UiText.h"
#include "host/SimHost.h"

#include <QMessageBox>

bool mayLetGoOfRecording(SimHost& host, const QString& question) {
    if (!host.recorder().isUnderWay()) return true;
    const ButtonTexts answers{{QMessageBox::Yes, uiText("Yes")}, {QMessageBox::No, uiText("No")}};
    const bool agreed = host.choose(question, nullptr, answers, QMessageBox::No) == QMessageBox::Yes;
    // The recording may have ended meanwhile: what has been recorded was not what the question was about.
    return agreed && host.recorder().isUnderWay();
}
