#pragma once

#include "Camera.h"
#include "RigFile.h"
#include "ScriptedDesk.h"
#include "SimHost.h"
#include "SteppedClock.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringBuilder>
#include <QTemporaryDir>

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

/// A host without windows, with preferences of its own, on a clock that the test steps.
struct TestHost {
    explicit TestHost(const Rig& rig = standardRig(0)) {
        host.setRig(rig);
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
    /// What the host was asked to change since the last asking, as `ZebDocManager::selectDoc [3]`. Requests for an
    /// update are left out.
    QStringList calls() {
        QStringList texts;
        for (const QVariant& entry : host.journal().since(m_mark)) {
            const QString name = entry.toMap().value(QStringLiteral("call")).toString();
            const QJsonArray args = QJsonArray::fromVariantList(entry.toMap().value(QStringLiteral("args")).toList());
            if (name != QLatin1String("ZebHost::updateUI")) {
                texts +=
                    name % QLatin1Char(' ') % QString::fromUtf8(QJsonDocument(args).toJson(QJsonDocument::Compact));
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
