#include "JS_Mediator_SaveDialog.h"

#include "BridgeCall.h"
#include "SaveTargets.h"
#include "SimHost.h"
#include "SizeText.h"
#include "TextKey.h"
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

std::unique_ptr<NamedDocument> JS_Mediator_SaveDialog::namedDocument(DOCKEY key, PARTITIONNUMBER partition) {
    return namedPartition(m_simHost, key, partition);
}

QString JS_Mediator_SaveDialog::list(bool temporary) {
    if (temporary) {
        return JS_Mediator_FileDialog::list(true);
    }
    return call(*this, Query, __func__, {}, [&] {
        DocKeyList keys;
        for (const SaveTrack& track : m_tracks) {
            for (const SaveSource& source : track.sources) {
                keys += keys.contains(source.key()) ? DocKeyList() : DocKeyList{source.key()};
            }
        }
        const QString present = recordsText(keys, false);
        const QJsonArray all = records(QJsonDocument::fromJson(present.toUtf8()).array());
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
            QJsonObject record = present.value({source.key(), source.partition()});
            const QString absence = source.absence(m_simHost.cameras());
            const bool isThere = !record.isEmpty() && absence.isEmpty();
            if (!isThere) {
                record = {{"dockey", double(source.key())},
                          {"partitionno", double(source.partition())},
                          {"gone", uiText(absence.isEmpty() ? TextKey("the camera does not answer") : absence)}};
            }
            // Of the range as it stood when the page was opened, and so it is saved.
            const int step = std::max(1, record["multiskip"].toInt());
            const int frames = (source.frames() + step - 1) / step;
            const double before = record["exportframes"].toDouble();
            record["capacity"] = before > 0 ? record["capacity"].toDouble() / before * frames : 0;
            record["capacitylabel"] = isThere ? sizeText(qint64(record["capacity"].toDouble())) : QString();
            record["exportframes"] = frames;
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

QString JS_Mediator_SaveDialog::getTotals() {
    return call(*this, Query, __func__, {}, [this] {
        constexpr int BytesOfPixel = 3;
        const auto pref = [this](const QString& key) { return m_simHost.prefs().value(key); };
        SaveOrders orders = chosenOrders(pref, nameFamily(fileType(m_tracks.front())));
        double frames = 0;
        double bytes = 0;
        for (SaveTrack track : chosenTracks()) {
            const auto isGone = [this](const SaveSource& source) {
                return !source.absence(m_simHost.cameras()).isEmpty();
            };
            track.sources.erase(std::remove_if(track.sources.begin(), track.sources.end(), isGone),
                                track.sources.end());
            if (track.sources.empty()) {
                continue;
            }
            orders.add(track);
            const SaveTrack& planned = orders.tracks.back();
            frames += planned.frames();
            bytes += double(planned.frames()) * planned.size().width() * planned.size().height() * BytesOfPixel;
        }
        const QJsonObject totals{{"frames", frames}, {"bytes", bytes}};
        return QString::fromUtf8(QJsonDocument(totals).toJson(QJsonDocument::Compact));
    });
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
