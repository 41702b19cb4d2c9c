#include "CameraSteps.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "FailureText.h"
#include "ParallelRows.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

/// Between the name of a camera, a step, and what went wrong.
const QLatin1String Separator(": ");

}  // namespace

struct CameraSteps::Row {
    DOCKEY key;
    DOC_Interface* doc;
    bool answer = false;
    QString failure;
    QString name;
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

DocKeyList CameraSteps::ask(const QString& label, const DocKeyList& keys, const Question& question) {
    return askAll(label, left(keys), question);
}

void CameraSteps::run(const QString& label, const DocKeyList& keys, const Step& step) {
    runOnAll(label, left(keys), step);
}

void CameraSteps::runOnAll(const QString& label, const DocKeyList& keys, const Step& step) {
    askAll(label, keys, [&step](DOC_Interface& doc) {
        step(doc);
        return true;
    });
}

void CameraSteps::readNames(const QString& label, const DocKeyList& keys) {
    const auto read = [](Row& row) { row.name = row.doc->control().getCameraName(1); };
    for (const Row& row : runRows(left(keys), read)) {
        if (!row.failure.isEmpty()) {
            m_failures.note(lineOf(row.key, label, row.failure));
        } else if (!row.name.isEmpty()) {
            m_names.insert(row.key, row.name);
        }
    }
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

/// Documents are fetched here, for those from before the last step are dead.
std::vector<CameraSteps::Row> CameraSteps::runRows(const DocKeyList& keys, const std::function<void(Row&)>& work) {
    std::vector<Row> rows;
    QStringList names;
    for (const DOCKEY key : keys) {
        if (DOC_Interface* doc = m_host.docManager().getDoc(key, 1)) {
            rows.push_back({key, doc, false, {}, {}});
            names << nameOf(key);
        }
    }
    if (!rows.empty()) {
        const ParallelRows running(
            int(rows.size()),
            [&](int index) {
                Row& row = rows[std::size_t(index)];
                try {
                    work(row);
                } catch (...) {
                    row.failure = currentFailureText();
                }
            },
            ParallelRows::MostAtOnce, m_patience);
        m_wait.waitFor(running, names);
    }
    return rows;
}

DocKeyList CameraSteps::askAll(const QString& label, const DocKeyList& keys, const Question& question) {
    const auto ask = [&question](Row& row) { row.answer = question(*row.doc); };
    DocKeyList yes;
    for (const Row& row : runRows(keys, ask)) {
        if (!row.failure.isEmpty()) {
            m_failures.note(lineOf(row.key, label, row.failure));
            m_failed << row.key;
        } else if (row.answer) {
            yes << row.key;
        }
    }
    return yes;
}

/// One that has not told its name has it from the host's own words, if they begin with it.
QString CameraSteps::lineOf(DOCKEY key, const QString& label, const QString& failure) const {
    const bool isNamed = !m_names.contains(key) && failure.contains(Separator);
    const QString prefix = (isNamed ? failure.section(Separator, 0, 0) : nameOf(key)) % Separator;
    const QString reason = failure.startsWith(prefix) ? failure.mid(prefix.size()) : failure;
    return prefix % label % Separator % reason;
}

/// A line is of the camera with the longest name that it begins with; of none while two have that name.
DocKeyList CameraSteps::note(const QString& label, const DocKeyList& keys, const DocKeyList& failing,
                             const GatheredFailures& refusals) {
    DocKeyList refusing;
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
        m_failures.note(named.size() == 1 ? lineOf(named.first(), label, line) : line);
        if (named.size() == 1) {
            refusing << named;
            if (failing.contains(named.first())) {
                m_failed << named.first();
            }
        }
    }
    return refusing;
}
