#include "SettingsSave.h"

#include "Camera.h"
#include "CameraError.h"
#include "ClockRows.h"
#include "FailureText.h"
#include "HostContext.h"
#include "HostMessages.h"
#include "JsonNode.h"
#include "PlainState.h"
#include "SettingsReader.h"
#include "SettingsWriter.h"
#include "TextKey.h"
#include "Translator.h"
#include "WholeFile.h"

#include <QFileInfo>

#include <stdexcept>

namespace {

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw std::runtime_error(QString(path % QStringLiteral(": ") % reason).toStdString());
}

QString reasonOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const CameraError& error) {
        return error.reason();
    } catch (...) {
        return currentFailureText();
    }
}

/// Throws what the camera throws, and when it tells what no file can bring back.
QVariantMap settingsOf(Camera& camera) {
    const QVariantMap settings = camera.readSettings(OPERATION("saveSettings")).toPlain(CameraState::settings());
    try {
        checkSettings(settings);
    } catch (const StateError& error) {
        throw CameraError(camera.name(), QString(error.member % QStringLiteral(": ") % error.reason));
    }
    return settings;
}

}  // namespace

void SettingsSave::run(const QString& path) {
    const HeldCameras cameras = m_host.cameras.holdConnected();
    if (cameras.empty()) {
        fail(path, TextKey("no camera is connected"));
    }
    LeftOut leftOut;
    const QList<HeadSettings> heads = read(cameras, leftOut);
    if (heads.isEmpty()) {
        QString reason = TextKey("no camera's settings can be kept");
        for (const auto& [camera, why] : leftOut) {
            reason += QLatin1Char('\n') % camera->name() % QStringLiteral(": ") % why;
        }
        fail(path, reason);
    }
    const QByteArray text = writeSettings(heads);
    if (text.size() > JsonNode::MostBytes) {
        fail(path, TextKey("these are too many settings for a file"));
    }
    const QString reason = writeWholeFile(path, text);
    if (!reason.isEmpty()) {
        fail(path, reason);
    }
    tellLeftOut(path, leftOut);
}

QList<HeadSettings> SettingsSave::read(const HeldCameras& cameras, LeftOut& leftOut) const {
    std::vector<HeadSettings> heads(cameras.size());
    const auto failures = runRows(m_host.clock, int(cameras.size()), [&](int row) {
        Camera& camera = *cameras[std::size_t(row)];
        heads[std::size_t(row)] = {camera.device().address(), camera.headNumber(), settingsOf(camera)};
    });
    QList<HeadSettings> answered;
    for (std::size_t row = 0; row < heads.size(); ++row) {
        if (failures[row]) {
            leftOut.emplace_back(cameras[row], reasonOf(failures[row]));
        } else {
            answered.append(heads[row]);
        }
    }
    return answered;
}

/// The words are the GUI thread's.
void SettingsSave::tellLeftOut(const QString& path, const LeftOut& leftOut) {
    if (leftOut.empty()) {
        return;
    }
    QMetaObject::invokeMethod(
        &m_receiver,
        [this, path, leftOut] {
            const QString text = m_host.translator.translate(TextKey("Cameras that are not in \"%1\":"));
            QStringList lines{text.arg(QFileInfo(path).fileName())};
            for (const auto& [camera, reason] : leftOut) {
                lines << m_host.cameras.labelOf(*camera) % QStringLiteral(": ") % m_host.messages.translated(reason);
            }
            m_host.messages.notify(Message::Warn, lines.join(QLatin1Char('\n')));
        },
        Qt::QueuedConnection);
}
