#include "TargetRecords.h"

#include "ConnectedDocs.h"
#include "CycleFailures.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "DOC_Storage.h"
#include "ExportNames.h"
#include "HostNameSource.h"
#include "NamedFailure.h"
#include "SizeText.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QHash>

namespace {

/// Items of custom information that have a place of their own; the others are numbered.
const QStringList NamedItems = {QStringLiteral("TestNo"),     QStringLiteral("Project"), QStringLiteral("TestType"),
                                QStringLiteral("TestTypeNo"), QStringLiteral("Date"),    QStringLiteral("Engineer"),
                                QStringLiteral("Technician")};

void addCustomInfo(QJsonObject& record, DOC_Interface& doc) {
    for (const QString& name : NamedItems) {
        record.insert(name, QString());
    }
    int others = 0;
    for (const QVariantMap& item : doc.control().getCustomInfoList()) {
        const QString name = item.value(QStringLiteral("name")).toString();
        const QString key = NamedItems.contains(name) ? name : QStringLiteral("Custom_%1").arg(++others);
        record.insert(key, item.value(QStringLiteral("value")).toString());
    }
    record.insert(QStringLiteral("Comments"),
                  doc.image().getComment().replace(QLatin1String(zeb::CommentSeparator), QLatin1String("\n")));
}

QJsonArray numbersOf(const QList<PARTITIONNUMBER>& partitions) {
    QJsonArray numbers;
    for (const PARTITIONNUMBER partition : partitions) {
        numbers.append(qint64(partition));
    }
    return numbers;
}

}  // namespace

TargetRecords::TargetRecords(ZebHost& host, JobKind kind, const QDateTime& time)
    : m_host(host), m_kind(kind), m_time(time), m_skip(host, kind) {}

QJsonArray TargetRecords::records(const DocKeyList& keys, bool onMedium, CycleFailures& failures) const {
    const HostNameSource names(m_host);
    QJsonArray all;
    for (DOC_Interface* doc : docsOf(m_host.docManager(), keys)) {
        QList<QJsonObject> own;
        failures.attempt(QStringLiteral("recordings of %1").arg(doc->getKey()), [&] {
            onCamera(*doc, [&] { own = onMedium || doc->isConnected() ? recordsOf(*doc, onMedium, names) : own; });
        });
        for (QJsonObject& record : own) {
            record.insert(QStringLiteral("recid"), all.size() + 1);
            all.append(record);
        }
    }
    return all;
}

QList<QJsonObject> TargetRecords::recordsOf(DOC_Interface& doc, bool onMedium, const NameSource& names) const {
    QMap<PARTITIONNUMBER, zeb::RecordedData> recordings;
    for (const PARTITIONNUMBER partition : doc.getPartitionList()) {
        const zeb::RecordedData data = doc.frames().getRecordedData(partition);
        if (!data.resolution.isEmpty()) {
            recordings.insert(partition, data);
        }
    }
    if (recordings.isEmpty()) {
        return {};
    }
    QJsonObject common;
    addCamera(common, doc);
    common.insert(QStringLiteral("partitions"), numbersOf(recordings.keys()));
    const PARTITIONNUMBER current = doc.control().getCurrentPartition(0);
    QList<QJsonObject> records;
    for (auto recording = recordings.begin(); recording != recordings.end(); ++recording) {
        const PARTITIONNUMBER partition = recording.key();
        const zeb::MediumData medium = doc.storage().getMediumData(partition).value_or(zeb::MediumData());
        QJsonObject record = common;
        record.insert(QStringLiteral("partitionno"), qint64(partition));
        record.insert(QStringLiteral("currentpartition"), partition == current);
        record.insert(QStringLiteral("path"),
                      ExportNames(names, fileType(m_kind), names.document(doc.getKey()), partition, m_time).folder());
        record.insert(QStringLiteral("slotno"), medium.slot);
        addRecording(record, *recording);
        if (onMedium) {
            addMedium(record, doc, medium, recording->shutter);
        }
        records.append(record);
    }
    return records;
}

void TargetRecords::addCamera(QJsonObject& record, DOC_Interface& doc) const {
    record.insert(QStringLiteral("dockey"), qint64(doc.getKey()));
    record.insert(QStringLiteral("selected"), doc.isSelected());
    record.insert(QStringLiteral("cameraname"), doc.control().getCameraName(1));
    record.insert(QStringLiteral("ipaddress"), doc.control().getAddress(1));
    record.insert(QStringLiteral("filepath"), doc.getSourceFilePath());
    addCustomInfo(record, doc);
}

void TargetRecords::addRecording(QJsonObject& record, const zeb::RecordedData& data) const {
    const qint64 total = qint64(data.last) - data.first + 1;
    const qint64 kept = qint64(data.selectEnd) - data.selectStart + 1;
    const int step = m_skip.step(data.rate);
    const qint64 exported = (kept + step - 1) / step;
    const qint64 bytes = data.bytes / qMax<qint64>(total, 1) * exported;
    const bool delimited = m_host.getPrefBool(QStringLiteral("display/frameInsertDelimiter"));
    record.insert(QStringLiteral("recordrate"), qint64(data.rate));
    record.insert(QStringLiteral("totalframes"), (delimited ? QStringLiteral("%L1") : QStringLiteral("%1")).arg(total));
    record.insert(QStringLiteral("totalframesplain"), total);
    record.insert(QStringLiteral("saveframes"), kept);
    record.insert(QStringLiteral("exportframes"), exported);
    record.insert(QStringLiteral("multiskip"), step);
    record.insert(QStringLiteral("resolution"),
                  QStringLiteral("%1 x %2").arg(data.resolution.width()).arg(data.resolution.height()));
    record.insert(QStringLiteral("capacity"), bytes);
    record.insert(QStringLiteral("capacitylabel"), sizeText(bytes));
}

void TargetRecords::addMedium(QJsonObject& record, DOC_Interface& doc, const zeb::MediumData& medium,
                              int shutter) const {
    const bool byTime = m_host.getPrefInt(QStringLiteral("display/ShutterSpeed")) == zeb::ShutterDisplaySecondList;
    const int speed = byTime && shutter > 0 ? zeb::NanosecondsPerSecond / shutter : shutter;
    record.insert(QStringLiteral("filename"), medium.fileName);
    record.insert(QStringLiteral("name"), medium.cameraName);
    record.insert(QStringLiteral("dataname"), medium.dataName);
    record.insert(QStringLiteral("drivename"), medium.driveName);
    record.insert(QStringLiteral("serialno"), medium.serialNo);
    record.insert(QStringLiteral("datano"), medium.dataNo);
    record.insert(QStringLiteral("devicename"), medium.deviceName);
    record.insert(QStringLiteral("date"), medium.date);
    record.insert(QStringLiteral("time"), medium.time);
    record.insert(QStringLiteral("shutterspeed"), doc.formatShutterSpeed(speed, 0));
    record.insert(QStringLiteral("style"), medium.isMarked ? QStringLiteral("background-color:red;") : QString());
}
