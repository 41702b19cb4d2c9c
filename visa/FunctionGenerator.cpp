#include "FunctionGenerator.h"

#include "GeneratorSetting.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int QueueLength = 20;

/// Below 0 when there is no such setting.
int settingOf(const QByteArray& header) {
    const QList<GeneratorSetting>& settings = GeneratorSetting::all();
    const auto found = std::find_if(settings.begin(), settings.end(), [&header](const GeneratorSetting& setting) {
        return GeneratorSetting::isForm(header, setting.header);
    });
    return found == settings.end() ? -1 : static_cast<int>(found - settings.begin());
}

}  // namespace

void FunctionGenerator::take(const QByteArray& text) {
    for (const QByteArray& message : text.split('\n')) {
        if (!message.trimmed().isEmpty()) {
            takeMessage(message.trimmed());
        }
    }
}

void FunctionGenerator::takeMessage(const QByteArray& message) {
    if (!m_reply.isEmpty()) {
        report("-410,\"Query INTERRUPTED\"");
    }
    m_reply.clear();
    const int blank = message.indexOf(' ');
    const QByteArray header = blank < 0 ? message : message.left(blank);
    if (header.endsWith('?')) {
        m_reply = answer(header.chopped(1));
        if (!m_reply.isEmpty()) {
            m_reply.append('\n');
        }
    } else {
        command(header, blank < 0 ? QByteArray() : message.mid(blank).trimmed());
    }
}

QByteArray FunctionGenerator::answer(const QByteArray& header) {
    if (GeneratorSetting::isForm(header, "*IDN")) {
        return m_identity;
    }
    if (GeneratorSetting::isForm(header, "SYSTem:ERRor")) {
        return takeError();
    }
    const int index = settingOf(header);
    if (index < 0) {
        report("-113,\"Undefined header\"");
    }
    return index < 0 ? QByteArray() : m_values.at(index);
}

void FunctionGenerator::command(const QByteArray& header, const QByteArray& argument) {
    if (GeneratorSetting::isForm(header, "*RST")) {
        reset();
        return;
    }
    const int index = settingOf(header);
    if (index < 0) {
        report("-113,\"Undefined header\"");
        return;
    }
    const GeneratorSetting::Reading reading = GeneratorSetting::all().at(index).read(argument);
    if (reading.error != nullptr) {
        report(reading.error);
    }
    if (!reading.value.isNull()) {
        m_values[index] = reading.value;
    }
}

QByteArray FunctionGenerator::reply() {
    if (m_reply.isEmpty()) {
        report("-420,\"Query UNTERMINATED\"");
    }
    return std::exchange(m_reply, {});
}

QByteArray FunctionGenerator::takeError() {
    return m_errors.isEmpty() ? QByteArrayLiteral("+0,\"No error\"") : m_errors.takeFirst();
}

double FunctionGenerator::signal() const {
    return m_values.at(settingOf("OUTP")) == "1" ? m_values.at(settingOf("FREQ")).toDouble() : 0;
}

void FunctionGenerator::reset() {
    m_values.clear();
    for (const GeneratorSetting& setting : GeneratorSetting::all()) {
        m_values.append(setting.read(setting.initial).value);
    }
}

void FunctionGenerator::report(const char* error) {
    if (m_errors.size() == QueueLength) {
        m_errors.last() = QByteArrayLiteral("-350,\"Queue overflow\"");
    }
    if (m_errors.size() < QueueLength) {
        m_errors.append(error);
    }
}
