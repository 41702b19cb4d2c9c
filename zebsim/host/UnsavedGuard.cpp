#include "UnsavedGuard.h"

#include "HostMessages.h"
#include "Preferences.h"
#include "TextKey.h"
#include "Translator.h"

#include <QtDebug>

bool UnsavedGuard::isOn() const {
    return m_prefs.value(QStringLiteral("alert/unsavedrecording")).toBool();
}

bool UnsavedGuard::mayRecordOver(const std::function<DocKeyList()>& toArm) const {
    const QString question =
        m_translator.translate(TextKey("Cameras hold images that nobody has saved. Record over them all the same?"));
    return mayLose(question, "Unsaved images may be recorded over:", [&] {
        return lostByRecording(heldRecordings(m_cameras, toArm()));
    });
}

bool UnsavedGuard::mayClose() const {
    const QString question =
        m_translator.translate(TextKey("Cameras hold images that nobody has saved. Close the viewer all the same?"));
    return mayLose(
        question, "Unsaved images are lost with the viewer:", [&] { return lostByClosing(heldRecordings(m_cameras)); });
}

bool UnsavedGuard::mayReplace() const {
    const QString question =
        m_translator.translate(TextKey("Cameras hold images that nobody has saved. Replace the cameras all the same?"));
    return mayLose(question, "Unsaved images are lost with the cameras that are replaced:", [&] {
        return lostByClosing(heldRecordings(m_cameras));
    });
}

bool UnsavedGuard::mayLose(const QString& question, const char* log,
                           const std::function<HeldRecordings()>& lost) const {
    QStringList givenUp;
    const auto remaining = [&] {
        QStringList left = lines(lost());
        for (const QString& line : givenUp) {
            left.removeOne(line);
        }
        return left;
    };
    for (QStringList asked = remaining(); !asked.isEmpty(); asked = remaining()) {
        if (isOn() && !m_messages.agrees(question, asked)) {
            qInfo() << "Unsaved images are kept:" << asked;
            return false;
        }
        givenUp += asked;
    }
    if (!givenUp.isEmpty()) {
        qWarning() << log << givenUp;
    }
    return true;
}

QStringList UnsavedGuard::lines(const HeldRecordings& recordings) const {
    const QString whole = m_translator.translate(TextKey("%1: %2 frames"));
    const QString part = m_translator.translate(TextKey("%1: %2 frames in partition %3"));
    QStringList lines;
    for (const HeldRecording& held : recordings) {
        const QString frames = QString::number(held.recording.frameCount());
        lines.append(held.isDivided ? part.arg(held.camera, frames, QString::number(held.recording.partition))
                                    : whole.arg(held.camera, frames));
    }
    return lines;
}
