#include "RecordingGuard.h"

#include "UiText.h"
#include "host/SimHost.h"

#include <QMessageBox>

bool mayLetGoOfRecording(SimHost& host, const QString& question) {
    if (!host.recorder().isUnderWay()) return true;
    const ButtonTexts answers{{QMessageBox::Yes, uiText("Yes")}, {QMessageBox::No, uiText("No")}};
    if (host.choose(question, nullptr, answers, QMessageBox::No) != QMessageBox::Yes) return false;
    // What has been recorded by now was not what the question was about.
    if (host.recorder().isUnderWay()) return true;
    host.tell(Message::Info, uiText("The recording has ended meanwhile. Nothing was done."));
    return false;
}
