#include "CameraSteps.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "FailureText.h"
#include "ParallelRows.h"
#include "RowsWait.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QMutex>

#include <vector>

struct CameraSteps::Row {
    DOCKEY key;
    DOC_Interface* doc;
    bool answer = false;
    QString failure;
};

DocKeyList CameraSteps::left(const DocKeyList& keys) const {
    DocKeyList left;
    for (const DOCKEY key : keys) {
        if (!m_failed.contains(key)) {
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
            const QString name = nameOf(row.key);
            const QString prefix = name % QLatin1String(": ");
            const QString reason = row.failure.startsWith(prefix) ? row.failure.mid(prefix.size()) : row.failure;
            m_failures.note(name % QLatin1String(": ") % label % QLatin1String(": ") % reason);
            m_failed << row.key;
        } else if (row.answer) {
            yes << row.key;
        }
    }
    return yes;
}
