#include "VisaFile.h"

#include "VisaLibrary.h"
#include "VisaScript.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVariant>

#include <stdexcept>

VisaFile::VisaFile() : m_library(QStringLiteral(WREN_VISA_FILE)) {
    VisaLibrary& visa = VisaLibrary::instance();
    visa.setFiles({m_library.fileName()});
    visa.manager = visa.session = 0;
    script("{}");
    journal();
}

VisaFile::~VisaFile() {
    VisaLibrary::instance().setFiles({});
}

template <typename Function>
Function* VisaFile::function(const char* name) {
    const auto found = reinterpret_cast<Function*>(m_library.resolve(name));
    if (found == nullptr) {
        throw std::runtime_error(m_library.errorString().toStdString());
    }
    return found;
}

void VisaFile::script(const QByteArray& json) {
    const char* wrong = function<decltype(visaScript)>("visaScript")(json.constData());
    if (wrong != nullptr) {
        throw std::runtime_error(wrong);
    }
}

QStringList VisaFile::journal() {
    const QByteArray calls = function<decltype(visaJournal)>("visaJournal")();
    return QJsonDocument::fromJson(calls).toVariant().toStringList();
}

void VisaFile::release() {
    function<decltype(visaRelease)>("visaRelease")();
}
