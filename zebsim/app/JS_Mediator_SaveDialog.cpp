#include "JS_Mediator_SaveDialog.h"

#include "BridgeCall.h"
#include "SaveTargets.h"
#include "SimHost.h"
#include "UiText.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

JS_Mediator_SaveDialog::JS_Mediator_SaveDialog(SimHost& host, const QString& name, std::vector<SaveTrack> tracks,
                                               QStringList absent)
    : JS_Mediator_FileDialog(&host, name), m_simHost(host), m_tracks(std::move(tracks)), m_absent(std::move(absent)) {}

QString JS_Mediator_SaveDialog::exportFileName(bool details) {
    return partitionFileName(m_simHost, fileType(m_tracks.front()), getSelectDocKey(), getSelectPartitionNo(), details,
                             time());
}

QString JS_Mediator_SaveDialog::list(bool temporary) {
    const QString ofCameras = JS_Mediator_FileDialog::list(temporary);
    if (temporary) {
        return ofCameras;
    }
    return call(*this, Query, __func__, {}, [&] {
        const QJsonArray all = records(QJsonDocument::fromJson(ofCameras.toUtf8()).array());
        return QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
    });
}

QJsonArray JS_Mediator_SaveDialog::records(const QJsonArray& ofCameras) const {
    QHash<QPair<DOCKEY, PARTITIONNUMBER>, QJsonObject> present;
    for (const QJsonValue& value : ofCameras) {
        const QJsonObject record = value.toObject();
        present.insert({DOCKEY(record["dockey"].toDouble()), PARTITIONNUMBER(record["partitionno"].toInt())}, record);
    }
    QJsonArray all;
    const auto add = [&all](QJsonObject record) {
        record["recid"] = all.size() + 1;
        all.append(record);
    };
    for (const QString& line : m_absent) {
        add({{"absent", line}});
    }
    for (const SaveTrack& track : m_tracks) {
        for (const SaveSource& source : track.sources) {
            const bool isThere = present.contains({source.key(), source.partition()});
            QJsonObject record = present.value({source.key(), source.partition()});
            if (!isThere) {
                record = {{"dockey", double(source.key())},
                          {"partitionno", double(source.partition())},
                          {"exportframes", source.frames()},
                          {"gone", uiText("the camera is gone")}};
            }
            record["camera"] = source.name();
            record["label"] = track.isLayout ? source.name() : track.name;
            record["saveframes"] = source.frames();
            record["first"] = double(source.frame(0).number);
            record["last"] = double(source.frame(source.frames() - 1).number);
            add(record);
        }
    }
    return all;
}

void JS_Mediator_SaveDialog::save() {
    call(*this, Action, __func__, {}, [this] { Q_EMIT saveWanted(); });
}

std::vector<SaveTrack> JS_Mediator_SaveDialog::chosenTracks() const {
    QSet<QPair<DOCKEY, PARTITIONNUMBER>> ticked;
    for (const ExportTarget& target : targets()) {
        ticked.insert({target.key, target.partition});
    }
    const auto isChosen = [&ticked](const SaveSource& source) {
        return ticked.contains({source.key(), source.partition()});
    };
    std::vector<SaveTrack> chosen;
    for (SaveTrack track : m_tracks) {
        const auto end = std::stable_partition(track.sources.begin(), track.sources.end(), isChosen);
        track.sources.erase(end, track.sources.end());
        if (!track.sources.empty()) {
            chosen.push_back(track);
        }
    }
    return chosen;
}
