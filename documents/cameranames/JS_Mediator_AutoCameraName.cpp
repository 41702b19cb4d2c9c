#include "JS_Mediator_AutoCameraName.h"

#include "BridgeCall.h"
#include "CameraNameList.h"
#include "ZebHost.h"

#include <QDebug>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

void append(QJsonArray& entries, const QStringList& names, const QString& category) {
    for (const QString& name : names) {
        entries.append(QJsonObject{{QStringLiteral("label"), name}, {QStringLiteral("category"), category}});
    }
}

}  // namespace

JS_Mediator_AutoCameraName::JS_Mediator_AutoCameraName(ZebHost* host, QObject* parent)
    : JS_Mediator(host, QStringLiteral("adddeviceAutoCameraName"), parent) {}

QString JS_Mediator_AutoCameraName::path() const {
    return host().getPrefString(QStringLiteral("usercustom/cameraNameFilePath"));
}

bool JS_Mediator_AutoCameraName::existsAutoCompleteFile() {
    return call(*this, Traced, __func__, {}, [this] {
        const QString file = path();
        const bool exists = QFileInfo::exists(file);
        if (exists) {
            qInfo() << QString(QStringLiteral("found file. [") % file % QLatin1Char(']'));
        }
        return exists;
    });
}

QString JS_Mediator_AutoCameraName::autoCompleteCameraList() {
    return call(*this, Traced, __func__, {}, [this] {
        CameraNames list = readCameraNames(path()).value_or(CameraNames());
        QJsonArray entries;
        append(entries, list.take(DefaultCategory), {});
        for (auto names = list.cbegin(); names != list.cend(); ++names) {
            append(entries, names.value(), names.key());
        }
        return QString::fromUtf8(QJsonDocument(entries).toJson(QJsonDocument::Compact));
    });
}
