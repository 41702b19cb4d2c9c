#include "MasterChoice.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "SyncPreferences.h"
#include "SyncableDocs.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <initializer_list>

namespace {

/// The cameras of the first of these classes that has any.
QList<SyncCamera> firstOf(std::initializer_list<ExposureClass> classes, const QList<SyncCamera>& cameras) {
    QList<SyncCamera> found;
    for (const ExposureClass exposure : classes) {
        std::copy_if(cameras.begin(), cameras.end(), std::back_inserter(found),
                     [exposure](const SyncCamera& camera) { return camera.exposure == exposure; });
        if (!found.isEmpty()) {
            break;
        }
    }
    return found;
}

}  // namespace

QList<SyncCamera> masterCandidates(const QList<SyncCamera>& cameras, int triggerMode) {
    if (!areMixed(cameras)) {
        return firstOf({ExposureClass::A, ExposureClass::N, ExposureClass::B}, cameras);
    }
    if (isPostTrigger(triggerMode)) {
        return firstOf({ExposureClass::B}, cameras);
    }
    return firstOf({ExposureClass::A, ExposureClass::N}, cameras);
}

QList<SyncCamera> masterCandidates(const DocList& docs) {
    const QList<SyncCamera> cameras = SyncCamera::readAll(docs);
    const int triggerMode = areMixed(cameras) ? docs.first()->control().getTriggerMode() : zeb::TriggerStart;
    return masterCandidates(cameras, triggerMode);
}

DOC_Interface* chooseMaster(ZebHost& host, const DocList& docs) {
    if (docs.isEmpty() || !host.isLiveMode()) {
        return nullptr;
    }
    const QList<SyncCamera> candidates = masterCandidates(docs);
    const auto docOf = [&docs](DOCKEY key) {
        return *std::find_if(docs.begin(), docs.end(), [key](DOC_Interface* doc) { return doc->getKey() == key; });
    };
    const QString preferred = syncprefs::masterAddress(host);
    const auto found = std::find_if(candidates.begin(), candidates.end(), [&preferred](const SyncCamera& camera) {
        return !preferred.isEmpty() && camera.address == preferred;
    });
    DOC_Interface* master = nullptr;
    if (found != candidates.end()) {
        master = docOf(found->key);
    } else {
        DOC_Interface* first = candidates.isEmpty() ? docs.first() : docOf(candidates.first().key);
        const DocList heads = first->getHeadDocs(0);
        // A head that is off leads nobody.
        const auto on = std::find_if(heads.begin(), heads.end(),
                                     [](DOC_Interface* head) { return head != nullptr && head->isConnected(); });
        master = on != heads.end() ? *on : first;
    }
    if (master != nullptr) {
        qInfo() << "masterAddress" << master->control().getAddress(1);
    }
    return master;
}

QString masterCameraList(ZebHost& host) {
    // One that does not answer leads nobody, and keeps nobody from the choice.
    GatheredFailures unread;
    DocList docs;
    for (DOC_Interface* doc : host.docManager().getCameraDocs()) {
        attemptOn(*doc, unread, [&] {
            if (!withoutDummies({doc}).isEmpty()) {
                SyncCamera::read(*doc);
                doc->control().getCameraName(1);
                docs << doc;
            }
        });
    }
    unread.log();
    if (docs.size() < 2) {
        qWarning() << "Not enough devices to sync settings.";
    }
    QJsonArray devices;
    for (const SyncCamera& candidate : masterCandidates(docs)) {
        DOC_Interface* doc = host.docManager().getDocAny(candidate.key);
        if (doc == nullptr) {
            continue;
        }
        devices.append(QJsonObject{{QStringLiteral("address"), candidate.address},
                                   {QStringLiteral("name"), doc->control().getCameraName(1)}});
    }
    const QJsonDocument json(QJsonObject{{QStringLiteral("devices"), devices}});
    return QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}
