#include "FaultyHost.h"

#include "Camera.h"
#include "RigFile.h"

#include <stdexcept>

namespace {

QString textOf(const QVariant& value) {
    QStringList members;
    for (const QVariant& member : value.toList()) {
        members.append(member.toString());
    }
    return value.type() == QVariant::List ? members.join(QLatin1Char(',')) : value.toString();
}

}  // namespace

Answer ToldDesk::show(const Message& message) {
    static constexpr const char* Kinds[] = {"info", "warn", "alert", "confirm", "error"};
    // Of an error the host itself has told.
    if (message.kind != Message::Error) {
        tell(Kinds[message.kind], (QStringList(message.text) + message.list).join(QLatin1Char('|')));
    }
    return ScriptedDesk::show(message);
}

FaultyHost::FaultyHost(int cameras) : SimHost(stepped, desk, folder.filePath(QStringLiteral("prefs.ini"))) {
    setRig(standardRig(cameras));
    for (Camera* camera : SimHost::cameras().all()) {
        camera->set(&CameraState::connected, true);
    }
    desk.tell = [this](const char* kind, const QString& text) { tell(QLatin1String(kind), {text}); };
    QObject::connect(&journal(), &Journal::recorded, [this](const QString& call, const QVariantList& args) {
        tell(call.section(QStringLiteral("::"), 1), args);
    });
    QObject::connect(&events(), &HostEvents::pluginShown, [this] { tell(QStringLiteral("notifyPluginShown")); });
    QObject::connect(&events(), &HostEvents::pluginClosed, [this] { tell(QStringLiteral("notifyPluginClosed")); });
}

void FaultyHost::tell(const QString& operation, const QVariantList& args) const {
    QStringList words(operation);
    for (const QVariant& arg : args) {
        words.append(textOf(arg));
    }
    Course::note(words.join(QLatin1Char(' ')).trimmed());
    if (failing == operation) {
        throw std::runtime_error(operation.toStdString());
    }
}

QString FaultyHost::translate(const QString& text) const {
    return text.startsWith(QLatin1Char('<')) ? text : QString(QLatin1Char('<') % text % QLatin1Char('>'));
}

void FaultyHost::errorHandler(const std::exception& e) {
    tell(QStringLiteral("errorHandler"), {QString::fromUtf8(e.what())});
    // Without the host's own line in the log, which would be one more entry of the course.
    Message box;
    box.kind = Message::Error;
    box.text = QString::fromUtf8(e.what());
    if (!box.text.isEmpty()) {
        desk.show(box);
    }
}

void FaultyHost::showDropDownBox(const QString& key, const QRect& anchor) {
    tell(QStringLiteral("showDropDownBox"), {key, anchor.x(), anchor.y(), anchor.width(), anchor.height()});
}

void FaultyHost::hideDropDownBox(const QString& key) {
    tell(QStringLiteral("hideDropDownBox"), {key});
}

void FaultyHost::hideDropDownBoxAt(const QString& key, const QPoint& point) {
    tell(QStringLiteral("hideDropDownBoxAt"), {key, point.x(), point.y()});
}
