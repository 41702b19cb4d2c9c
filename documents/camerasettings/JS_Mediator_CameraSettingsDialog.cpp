#include "JS_Mediator_CameraSettingsDialog.h"

#include "BridgeCall.h"
#include "CamerasInTurn.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DateText.h"
#include "DocumentGuard.h"
#include "FileNameRules.h"
#include "LogFailure.h"
#include "ModalRun.h"
#include "NamedFailure.h"
#include "SettingsFolder.h"
#include "TextKey.h"
#include "WorkerCall.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebView>

namespace {

constexpr int ToFile = 0;
constexpr int LongestPath = 260;
const QString UserNamePref = QStringLiteral("rigx/userFileName");
const QString OwnNamePref = QStringLiteral("rigx/filenameasoriginal");
const QString AddTimePref = QStringLiteral("rigx/filenameaddtime");
const QString TimeFormatPref = QStringLiteral("rigx/filenameaddtimeformat");
const QString DefaultTimeFormat = QStringLiteral("yyyyMMdd_HHmmss");

QString compact(const QJsonObject& object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QVariantMap presetEntry(DOC_Interface& doc) {
    const DOC_Control& camera = doc.control();
    const zeb::CameraPresetInfo info = camera.getCameraPresetInfo();
    QVariantList presets;
    for (int number = 1; number <= info.count; ++number) {
        presets.append(
            QVariantMap{{QStringLiteral("presetno"), number}, {QStringLiteral("selected"), number == info.current}});
    }
    return {{QStringLiteral("key"), doc.getKey()},
            {QStringLiteral("name"), camera.getCameraName(1)},
            {QStringLiteral("ipaddress"), camera.getAddress(1)},
            {QStringLiteral("devicename"), camera.getDeviceName(1)},
            {QStringLiteral("presets"), presets},
            {QStringLiteral("selNone"), info.current < 1 || info.current > info.count}};
}

}  // namespace

JS_Mediator_CameraSettingsDialog::JS_Mediator_CameraSettingsDialog(ZebHost* host, const QString& folder,
                                                                   QObject* parent)
    : JS_Mediator_Dialog(host, QStringLiteral("cameraSettings"), parent), m_folder(folder) {
    QDir().mkpath(m_folder);
}

QString JS_Mediator_CameraSettingsDialog::getFilePathSettings() {
    return call(*this, Query, __func__, {}, [this] {
        // A camera that does not tell its name does not hide the folder.
        QString name;
        logFailure([&] { name = baseName(); });
        return compact({{QStringLiteral("FolderPath"), m_folder}, {QStringLiteral("FileName"), name}});
    });
}

QString JS_Mediator_CameraSettingsDialog::getFileName(bool additional) {
    return call(*this, Query, __func__, {{"additional", additional}},
                [&] { return additional ? fullName() : baseName(); });
}

QString JS_Mediator_CameraSettingsDialog::baseName() const {
    if (host().getPrefBool(OwnNamePref)) {
        return host().getPrefString(UserNamePref);
    }
    ZebDocManager& documents = host().docManager();
    DOC_Interface* first = documents.getDoc(documents.getSelectedDocKeys(0).value(0, zeb::NoDocKey), 1);
    return first != nullptr ? first->control().getCameraName(1) : QString();
}

QString JS_Mediator_CameraSettingsDialog::fullName() const {
    QString name = baseName();
    if (host().getPrefBool(AddTimePref)) {
        name += name.isEmpty() ? QString() : QStringLiteral("_");
        name += dateText(QDateTime::currentDateTime(), timeFormat());
    }
    return name % QLatin1Char('.') % m_fileTypes.first();
}

QString JS_Mediator_CameraSettingsDialog::timeFormat() const {
    const QString format = host().getPrefString(TimeFormatPref);
    return format.isEmpty() ? DefaultTimeFormat : format;
}

QVariantList JS_Mediator_CameraSettingsDialog::getPresetList() {
    QVariantList list;
    call(*this, Query, __func__, {}, [&] {
        ZebDocManager& documents = host().docManager();
        GatheredFailures failures;
        for (DOC_Interface* doc : connectedDevices(documents, documents.getLiveDocKeys(0, 0), failures)) {
            attemptOn(*doc, failures, [&] { list.append(presetEntry(*doc)); });
        }
        failures.rethrow();
    });
    return list;
}

QString JS_Mediator_CameraSettingsDialog::addDateTime(const QString& format) {
    return dateText(QDateTime::currentDateTime(), format);
}

QString JS_Mediator_CameraSettingsDialog::recvFileNameDialogData() {
    return call(*this, Query, __func__, {}, [this] {
        return compact({{QStringLiteral("userFileName"), host().getPrefString(UserNamePref)},
                        {QStringLiteral("original"), host().getPrefBool(OwnNamePref)},
                        {QStringLiteral("addTime"), host().getPrefBool(AddTimePref)},
                        {QStringLiteral("addTimeFormat"), timeFormat()}});
    });
}

void JS_Mediator_CameraSettingsDialog::sendFileNameDialogData(const QString& sendData) {
    call(*this, Plain, __func__, {}, [&] {
        const QJsonObject data = QJsonDocument::fromJson(sendData.toUtf8()).object();
        host().setPrefString(UserNamePref, data.value(QStringLiteral("userFileName")).toString());
        host().setPrefBool(OwnNamePref, data.value(QStringLiteral("original")).toBool());
        host().setPrefBool(AddTimePref, data.value(QStringLiteral("addTime")).toBool());
        host().setPrefString(TimeFormatPref, data.value(QStringLiteral("addTimeFormat")).toString());
    });
}

bool JS_Mediator_CameraSettingsDialog::openFile() {
    return call(*this, Action, __func__, {}, [this] {
        const QString filter = QStringLiteral("*.") % m_fileTypes.join(QStringLiteral("\n*."));
        auto* dialog = new QFileDialog(view(), host().translate(TextKey("Select folder")), m_folder, filter);
        dialog->setFileMode(QFileDialog::ExistingFile);
        return !chosenFile(dialog).isEmpty();
    });
}

bool JS_Mediator_CameraSettingsDialog::openFolder() {
    return call(*this, Action, __func__, {}, [this] {
        auto* dialog = new QFileDialog(view(), host().translate(TextKey("Select folder")), m_folder);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        const QString path = chosenFile(dialog);
        if (!path.isEmpty()) {
            m_folder = path;
            rememberSettingsFolder(host(), m_folder);
        }
        return !path.isEmpty();
    });
}

void JS_Mediator_CameraSettingsDialog::ok(const QString& sendData) {
    call(*this, Change, __func__, {{"sendData", sendData}}, [&] {
        const QJsonObject data = QJsonDocument::fromJson(sendData.toUtf8()).object();
        m_dialogMode = data.value(QStringLiteral("dialogMode")).toInt();
        m_presets.clear();
        for (const QJsonValue entry : data.value(QStringLiteral("presetList")).toArray()) {
            const QVariantMap preset = entry.toObject().toVariantMap();
            const int number = preset.value(QStringLiteral("value")).toInt();
            if (number > 0) {
                m_presets.insert(preset.value(QStringLiteral("key"), zeb::NoDocKey).toUInt(), number);
            }
        }
        if (m_dialogMode != ToFile) {
            presetFunc();
        } else if (!rigxFunc()) {
            return;
        }
        Q_EMIT accept();
    });
}

void JS_Mediator_CameraSettingsDialog::cancel() {
    call(*this, Traced, __func__, {}, [this] { Q_EMIT reject(); });
}

/// What fails when the live images go on is no failure of the save: it goes to the log, as that of `presetFunc`.
bool JS_Mediator_CameraSettingsDialog::rigxFunc() {
    const DocumentGuard guard(host(), false, false);
    const QString name = fullName();
    const QString path = QDir(m_folder).filePath(name);
    if (!mayWrite(path, name)) {
        return false;
    }
    ZebDocManager& documents = host().docManager();
    callOnWorker(host(), TextKey("Saving..."), [&] { documents.saveSettingsFile(path, 0); });
    return true;
}

/// A failure is thrown, and told by the call.
void JS_Mediator_CameraSettingsDialog::presetFunc() {
    const DocumentGuard guard(host(), true);
    forEachCameraInTurn(host(), TextKey("Saving preset: %1 (%2 of %3)"), m_presets.keys(),
                        [this](DOC_Interface& doc) { doc.control().saveCameraPreset(m_presets.value(doc.getKey())); });
}

/// Whether the settings may go to `path`, in which `name` is that of the file; the user has been told why not, or has
/// said so.
bool JS_Mediator_CameraSettingsDialog::mayWrite(const QString& path, const QString& name) {
    const QFileInfo file(path);
    const bool isNamed = name.size() > m_fileTypes.first().size() + 1;
    if (!isNamed || file.isDir() || !isGoodFileName(name) || !isGoodPath(path)) {
        host().alert(host().translate(TextKey("Invalid filename.")), nullptr);
        return false;
    }
    if (path.size() > LongestPath) {
        host().alert(host().translate(TextKey("The path of the target is too long.")), nullptr);
        return false;
    }
    return !file.exists() ||
           host().confirmModal(host().translate(TextKey("Do you want to overwrite it?")), nullptr, {});
}
