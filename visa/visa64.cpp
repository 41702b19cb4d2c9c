// The functions of the library's file. Nothing is thrown through them.

#include "ScriptedVisa.h"
#include "VisaScript.h"
#include "VisaStatus.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#define VISA_CALL extern "C" __attribute__((visibility("default")))

VISA_CALL std::int32_t viOpenDefaultRM(std::uint32_t* manager) {
    return ScriptedVisa::instance().openManager(*manager);
}

VISA_CALL std::int32_t viOpen(std::uint32_t manager, const char* resource, std::uint32_t, std::uint32_t,
                              std::uint32_t* session) {
    return ScriptedVisa::instance().open(manager, resource, *session);
}

// NOLINTNEXTLINE(cert-dcl50-cpp): VISA's own signature
VISA_CALL std::int32_t viPrintf(std::uint32_t session, const char* format, ...) {
    std::array<char, 4096> text{};
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    if (length < 0 || length >= static_cast<int>(text.size())) {
        return visastatus::InvalidFormat;
    }
    return ScriptedVisa::instance().print(session, text.data());
}

/// Of the formats it knows the one for a whole reply, as "%1024t".
// NOLINTNEXTLINE(cert-dcl50-cpp): VISA's own signature
VISA_CALL std::int32_t viScanf(std::uint32_t session, const char* format, ...) {
    char* end = nullptr;
    const unsigned long size = *format == '%' ? std::strtoul(format + 1, &end, 10) : 0;
    if (size == 0 || QByteArray(end) != "t") {
        return visastatus::InvalidFormat;
    }
    va_list arguments;
    va_start(arguments, format);
    char* buffer = va_arg(arguments, char*);
    va_end(arguments);
    return ScriptedVisa::instance().scan(session, buffer, size);
}

VISA_CALL std::int32_t viClose(std::uint32_t object) {
    return ScriptedVisa::instance().close(object);
}

VISA_CALL std::int32_t viClear(std::uint32_t session) {
    return ScriptedVisa::instance().clear(session);
}

VISA_CALL const char* visaScript(const char* json) {
    static QByteArray wrong;
    try {
        ScriptedVisa::instance().replaceScript(json);
        return nullptr;
    } catch (const std::exception& e) {
        wrong = e.what();
        return wrong.constData();
    }
}

VISA_CALL const char* visaJournal() {
    static QByteArray journal;
    const QStringList calls = ScriptedVisa::instance().takeJournal();
    journal = QJsonDocument(QJsonArray::fromStringList(calls)).toJson(QJsonDocument::Compact);
    return journal.constData();
}

VISA_CALL int visaSignal() {
    return ScriptedVisa::instance().signal();
}

VISA_CALL void visaRelease() {
    ScriptedVisa::instance().release();
}
