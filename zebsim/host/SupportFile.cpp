#include "SupportFile.h"

#include "Camera.h"
#include "OneLine.h"
#include "SimHost.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <QtDebug>

#include <zip.h>

#include <memory>
#include <stdexcept>

namespace {

struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, Discard>;

[[noreturn]] void fail(zip_error_t* error) {
    const std::string text = zip_error_strerror(error);
    zip_error_fini(error);
    throw std::runtime_error(text);
}

/// What the archive is written into.
using Bytes = std::unique_ptr<zip_source_t, decltype(&zip_source_free)>;

Bytes makeBytes() {
    zip_error_t error;
    zip_error_init(&error);
    Bytes bytes(zip_source_buffer_create(nullptr, 0, 0, &error), zip_source_free);
    if (!bytes) {
        fail(&error);
    }
    return bytes;
}

Archive openArchive(zip_source_t* bytes) {
    zip_error_t error;
    zip_error_init(&error);
    Archive archive(zip_open_from_source(bytes, ZIP_CREATE | ZIP_TRUNCATE, &error));
    if (!archive) {
        fail(&error);
    }
    // The archive takes one hold on it, and the bytes are read when that is closed.
    zip_source_keep(bytes);
    return archive;
}

/// `content` must stay as it is until the archive has been closed.
void add(zip_t* archive, const QString& name, const QByteArray& content) {
    zip_source_t* source =
        zip_source_buffer(archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0);
    if (!source || zip_file_add(archive, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) < 0) {
        zip_source_free(source);
        throw std::runtime_error(zip_strerror(archive));
    }
}

void close(Archive& archive) {
    if (zip_close(archive.get()) != 0) {
        throw std::runtime_error(zip_strerror(archive.get()));
    }
    static_cast<void>(archive.release());
}

QByteArray read(zip_source_t* bytes) {
    zip_stat_t stat;
    if (zip_source_open(bytes) != 0 || zip_source_stat(bytes, &stat) != 0) {
        fail(zip_source_error(bytes));
    }
    QByteArray content(static_cast<int>(stat.size), Qt::Uninitialized);
    if (zip_source_read(bytes, content.data(), stat.size) != static_cast<zip_int64_t>(stat.size)) {
        fail(zip_source_error(bytes));
    }
    zip_source_close(bytes);
    return content;
}

QByteArray asLines(const QStringList& lines) {
    QByteArray text;
    for (const QString& line : lines) {
        text += inOneLine(line).toUtf8() + '\n';
    }
    return text;
}

QByteArray jsonOf(const QJsonArray& list) {
    return QJsonDocument(list).toJson();
}

QByteArray cameraStates(const SimHost& host) {
    QJsonArray cameras;
    for (const Camera* camera : host.cameras().ofRig()) {
        QJsonObject state = QJsonObject::fromVariantMap(camera->state().toPlain());
        state.insert(QStringLiteral("key"), double(camera->key()));
        state.insert(QStringLiteral("address"), camera->device().address());
        state.insert(QStringLiteral("model"), camera->model().name);
        cameras.append(state);
    }
    return jsonOf(cameras);
}

/// With the factory values of what the user has not touched.
QByteArray preferences(const Preferences& prefs) {
    QStringList lines;
    for (auto value = prefs.values().begin(); value != prefs.values().end(); ++value) {
        lines.append(value.key() % QStringLiteral(" = ") % value->toString());
    }
    lines.sort();
    return asLines(lines);
}

QByteArray machine() {
    QStringList lines = {QStringLiteral("System: ") % QSysInfo::prettyProductName(),
                         QStringLiteral("Kernel: %1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()),
                         QStringLiteral("Processor: %1, %2 threads")
                             .arg(QSysInfo::currentCpuArchitecture())
                             .arg(QThread::idealThreadCount())};
    for (const QScreen* screen : QGuiApplication::screens()) {
        lines.append(QStringLiteral("Screen: %1, %2x%3, scale %4")
                         .arg(screen->name())
                         .arg(screen->geometry().width())
                         .arg(screen->geometry().height())
                         .arg(screen->devicePixelRatio()));
    }
    return asLines(lines);
}

QByteArray versions() {
    return QStringLiteral("%1 %2\nQt %3\n")
        .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
             QString::fromLatin1(qVersion()))
        .toUtf8();
}

bool keepsLog(const Camera& camera) {
    const QSet<int>& functions = camera.model().functions;
    return functions.contains(zeb::FunctionCameraLog) || functions.contains(zeb::FunctionCameraLogFile);
}

/// What the camera tells of itself.
QByteArray cameraLog(const Camera& camera) {
    const CameraState state = camera.state();
    QStringList lines = {
        QStringLiteral("Camera: \"%1\", %2, %3").arg(state.name, camera.model().name, camera.device().address()),
        QStringLiteral("Status: %1, record state %2, %3")
            .arg(state.status)
            .arg(state.recordState)
            .arg(state.connected ? QLatin1String("connected") : QLatin1String("not connected"))};
    for (const QString& alert : state.alerts) {
        lines.append(QStringLiteral("Alert: \"%1\"").arg(alert));
    }
    return asLines(lines);
}

}  // namespace

// With `AppWindows::addToSupportFile` this writes what `supportFileContents` has promised the user.
void addHostState(ZebSupportFile& file, const SimHost& host) {
    file.files.insert(QStringLiteral("cameras.json"), cameraStates(host));
    file.files.insert(QStringLiteral("preferences.txt"), preferences(host.prefs()));
    file.files.insert(QStringLiteral("calls.json"), jsonOf(QJsonArray::fromVariantList(host.journal().since(0))));
    for (const Camera* camera : host.cameras().ofRig()) {
        if (keepsLog(*camera)) {
            file.files.insert(QStringLiteral("camera-%1.log").arg(camera->key()), cameraLog(*camera));
        }
    }
    file.files.insert(QStringLiteral("machine.txt"), machine());
    file.files.insert(QStringLiteral("version.txt"), versions());
}

bool writeSupportFile(const QString& path, const ZebSupportFile& file) {
    try {
        const Bytes bytes = makeBytes();
        Archive archive = openArchive(bytes.get());
        for (auto entry = file.files.begin(); entry != file.files.end(); ++entry) {
            add(archive.get(), entry.key(), entry.value());
        }
        close(archive);
        const QString reason = writeWholeFile(path, read(bytes.get()));
        if (!reason.isEmpty()) {
            throw std::runtime_error(reason.toStdString());
        }
        return true;
    } catch (const std::exception& e) {
        qCritical() << "The support file" << path << "can't be written:" << e.what();
        return false;
    }
}
