#pragma once

#include "JobKind.h"
#include "SkipPrefs.h"
#include "ZebTypes.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>

class CycleFailures;
class NameSource;

/// The recordings that can be saved as a page lists them, a record for each partition. GUI thread.
class TargetRecords {
public:
    /// `host` must outlive the object; `time` stands in names that hold one.
    TargetRecords(ZebHost& host, JobKind kind, const QDateTime& time);

    /// Of these documents, those that are gone are left out. A document that fails costs its own records, and
    /// `failures` is told. `onMedium`: the records tell also what the medium tells.
    QJsonArray records(const DocKeyList& keys, bool onMedium, CycleFailures& failures) const;

private:
    QList<QJsonObject> recordsOf(DOC_Interface& doc, bool onMedium, const NameSource& names) const;
    void addCamera(QJsonObject& record, DOC_Interface& doc) const;
    void addRecording(QJsonObject& record, const zeb::RecordedData& data) const;
    void addMedium(QJsonObject& record, DOC_Interface& doc, const zeb::MediumData& medium, int shutter) const;

    ZebHost& m_host;
    const JobKind m_kind;
    const QDateTime m_time;
    const SkipPrefs m_skip;
};
