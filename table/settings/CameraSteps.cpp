#include "CameraSteps.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "FailureText.h"
#include "ParallelRows.h"
#include "RowsWait.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QMutex>

#include <vector>

namespace {

/// Between the name of a camera, a step, and what went wrong.
const QLatin1String Separator(": ");

}  // namespace

struct CameraSteps::Row {
    DOCKEY key;
    DOC_Interface* doc;
    bool answer = false;
    QString failure;
};

bool CameraSteps::isPluginThere() const {
    return m_host.appStatus().getPlugin(QStringLiteral("wren")) != nullptr;
}

DocKeyList CameraSteps::left(const DocKeyList& keys) const {
    DocKeyList left;
    const bool pluginThere = isPluginThere();
    for (const DOCKEY key : keys) {
        if (pluginThere && !m_failed.contains(key)) {
            left << key;
        }
    }
    return left;
}

DocKeyList CameraSteps::run(const QString& label, const DocKeyList& keys, const Step& step) {
    return runOn(label, left(keys), step);
}

void CameraSteps::runOnAll(const QString& label, const DocKeyList& keys, const Step& step) {
    runOn(label, keys, step);
}

void CameraSteps::readNames(const QString& label, const DocKeyList& keys) {
    QMutex mutex;
    run(label, keys, [&](DOC_Interface& doc) {
        const QString name = doc.control().getCameraName(1);
        const QMutexLocker lock(&mutex);
        m_names.insert(doc.getKey(), name);
        return true;
    });
}

QStringList CameraSteps::namesOf(const DocKeyList& keys) const {
    QStringList names;
    for (const DOCKEY key : keys) {
        names << nameOf(key);
    }
    return names;
}

QString CameraSteps::nameOf(DOCKEY key) const {
    return m_names.value(key, QString::number(key));
}

DocKeyList CameraSteps::runOn(const QString& label, const DocKeyList& keys, const Step& step) {
    std::vector<Row> rows;
    QStringList names;
    for (const DOCKEY key : keys) {
        if (DOC_Interface* doc = m_host.docManager().getDoc(key, 1)) {
            rows.push_back({key, doc, false, {}});
            names << nameOf(key);
        }
    }
    {
        const ParallelRows work(int(rows.size()), [&](int index) {
            Row& row = rows[std::size_t(index)];
            try {
                row.answer = step(*row.doc);
            } catch (...) {
                row.failure = currentFailureText();
            }
        });
        waitForRows(m_host, work, names);
    }
    DocKeyList yes;
    for (const Row& row : rows) {
        if (!row.failure.isEmpty()) {
            noteOf(row.key, label, row.failure);
        } else if (row.answer) {
            yes << row.key;
        }
    }
    return yes;
}

/// One that has not told its name has it from the host's own words, if they begin with it.
void CameraSteps::noteOf(DOCKEY key, const QString& label, const QString& failure) {
    const bool isNamed = !m_names.contains(key) && failure.contains(Separator);
    const QString prefix = (isNamed ? failure.section(Separator, 0, 0) : nameOf(key)) % Separator;
    const QString reason = failure.startsWith(prefix) ? failure.mid(prefix.size()) : failure;
    m_failures.note(prefix % label % Separator % reason);
    m_failed << key;
}

/// A line is of the camera with the longest name that it begins with; of none while two have that name.
void CameraSteps::note(const QString& label, const DocKeyList& keys, const GatheredFailures& refusals) {
    for (const QString& line : refusals.lines()) {
        DocKeyList named;
        int longest = 0;
        for (const DOCKEY key : keys) {
            const int length = nameOf(key).size();
            if (length >= longest && line.startsWith(nameOf(key) % Separator)) {
                named = length > longest ? DocKeyList{key} : named << key;
                longest = length;
            }
        }
        if (named.size() == 1) {
            noteOf(named.first(), label, line);
        } else {
            m_failures.note(line);
        }
    }
}
