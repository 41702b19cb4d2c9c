#pragma once

#include "ScriptedDesk.h"
#include "camera/Camera.h"
#include "camera/Rig.h"
#include "host/SimHost.h"
#include "recording/SteppedClock.h"

#include <QCoreApplication>
#include <QTemporaryDir>

/// A host without windows, with preferences of its own, on a clock that the test steps.
struct TestHost {
    explicit TestHost(const Rig& rig = Rig::standard(0)) {
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
    /// The changing calls that `work` makes, as "call args" in one line each.
    template <typename Work>
    QVariantList callsOf(Work work) {
        const quint64 mark = host.journal().count();
        work();
        return host.journal().since(mark);
    }

    QTemporaryDir folder;
    SteppedClock clock;
    ScriptedDesk desk;
    SimHost host{clock, desk, folder.filePath(QStringLiteral("prefs.ini"))};
};
