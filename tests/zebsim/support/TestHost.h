#pragma once

#include "Camera.h"
#include "Course.h"
#include "RigFile.h"
#include "ScriptedDesk.h"
#include "SimHost.h"
#include "SteppedClock.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringBuilder>
#include <QTemporaryDir>
#include <QTranslator>

/// What `work` throws; empty when it does not.
template <typename Work>
std::string thrownBy(Work work) {
    try {
        work();
        return {};
    } catch (const std::exception& e) {
        return e.what();
    }
}

/// Cameras of the standard model, all of them connected.
inline Rig connected(int cameras) {
    Rig rig = standardRig(cameras);
    for (RigDevice& device : rig.devices) {
        device.heads.first().connected = true;
    }
    return rig;
}

/// While one lives, a text that the host has translated reads "<text>".
class MarkedTexts : public QTranslator {
public:
    MarkedTexts() { QCoreApplication::installTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override {
        const bool isNew = qstrcmp(context, "zeb4") == 0 && *text != '<';
        return isNew ? QString(QLatin1Char('<') % QString::fromUtf8(text) % QLatin1Char('>')) : QString();
    }
    bool isEmpty() const override { return false; }
};

/// A call of the host as "setRecordRate 1,3 2000".
inline QString callText(const QString& call, const QVariantList& args) {
    QStringList words(call.section(QStringLiteral("::"), 1));
    for (const QVariant& arg : args) {
        words << (arg.type() == QVariant::List ? arg.toStringList().join(QLatin1Char(',')) : arg.toString());
    }
    return words.join(QLatin1Char(' ')).trimmed();
}

/// What plug-ins ask the host to change stands in the course.
inline void noteCalls(SimHost& host) {
    QObject::connect(&host.journal(), &Journal::recorded,
                     [](const QString& call, const QVariantList& args) { Course::note(callText(call, args)); });
    QObject::connect(&host.events(), &HostEvents::pluginShown, [] { Course::note("notifyPluginShown"); });
    QObject::connect(&host.events(), &HostEvents::pluginClosed, [] { Course::note("notifyPluginClosed"); });
}

/// A host without windows, with preferences of its own, on a clock that the test steps; the default settings have been
/// accepted on it. What it is asked to change, its boxes and the log stand in the course, in one order.
struct TestHost {
    explicit TestHost(const Rig& rig = standardRig(0)) {
        host.prefs().assume(QStringLiteral("wren/settings/done"), true);
        host.setRig(rig);
        noteCalls(host);
        while (host.updates().isPending()) {
            QCoreApplication::processEvents();
        }
    }

    Camera& camera(DOCKEY key) { return *host.cameras().find(key); }
    DOC_Interface* doc(DOCKEY key) { return host.docManager().getDoc(key, 1); }
    DocList docs(const DocKeyList& keys) {
        DocList list;
        for (const DOCKEY key : keys) {
            list.append(doc(key));
        }
        return list;
    }
    /// From here on an operation of the host itself throws "no answer".
    void fail(const char* operation) { host.faults().plant(FaultPlan::Host, operation, {"no answer"}); }

    /// What the host was asked to change since the last asking, as "selectDoc 3": what is `like` that by its whole
    /// name, as "ZebDocManager::selectDoc". Requests for an update are left out, and the brackets of undo steps unless
    /// they are asked for.
    QStringList calls(const QString& like = {}) {
        const QRegularExpression wanted(like);
        QStringList texts;
        for (const QVariant& entry : host.journal().since(m_mark)) {
            const QString name = entry.toMap().value(QStringLiteral("call")).toString();
            const bool isBracket = like.isEmpty() && name.startsWith(QLatin1String("ZebUndo::"));
            if (name != QLatin1String("ZebHost::updateUI") && !isBracket && name.contains(wanted)) {
                texts += callText(name, entry.toMap().value(QStringLiteral("args")).toList());
            }
        }
        m_mark = host.journal().count();
        return texts;
    }

    QTemporaryDir folder;
    SteppedClock clock;
    ScriptedDesk desk;
    SimHost host{clock, desk, folder.filePath(QStringLiteral("prefs.ini"))};

private:
    quint64 m_mark = 0;
};
