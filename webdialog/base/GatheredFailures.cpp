#include "GatheredFailures.h"

#include "FailureText.h"

#include <QDebug>

#include <stdexcept>

void GatheredFailures::note(const QString& text) {
    // A host that was asked about many cameras answers with a line for each.
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (!m_texts.contains(line)) {
            m_texts.append(line);
        }
    }
}

void GatheredFailures::noteCurrent() {
    note(currentFailureText());
}

void GatheredFailures::log() const {
    for (const QString& text : m_texts) {
        qCritical() << text;
    }
}

void GatheredFailures::rethrow() const {
    if (!isEmpty()) {
        throw std::runtime_error(text().toStdString());
    }
}
