#include "DOC_VIGen.h"

#include "DOC_Exception.h"
#include "GUI_MarqueeProgressDialog.h"
#include "TextKey.h"
#include "VIGenThread.h"
#include "VisaLibrary.h"
#include "ZebHost.h"
#include "vi.h"

#include <QDebug>

#include <limits>
#include <stdexcept>

namespace {

QString tcpResource(unsigned int address) {
    const auto octet = [address](int shift) { return QString::number(address >> shift & 0xFFU); };
    return QStringLiteral("TCPIP0::%1.%2.%3.%4::inst0::INSTR").arg(octet(24), octet(16), octet(8), octet(0));
}

/// Instruments answer with an exponent, and with 9.91E37 when they have no number.
int wholeHertz(QString reply) {
    bool isNumber = false;
    const float hertz = reply.remove(QLatin1Char('\n')).toFloat(&isNumber);
    const bool isFrequency = isNumber && hertz >= 0 && double(hertz) <= std::numeric_limits<int>::max();
    if (!isFrequency) {
        throw std::runtime_error(QString("The answer to FREQ? is no frequency: " % reply).toStdString());
    }
    return static_cast<int>(hertz);
}

/// Runs questions or commands; what the instrument refuses is told by `message`, and in detail by the log.
template <typename Work>
auto talk(const QString& message, const QString& resource, Work&& work) {
    try {
        return work();
    } catch (const std::exception& e) {
        qCritical() << "Signal generator" << resource << QString::fromUtf8(e.what());
        throw DOC_Exception(message);
    }
}

}  // namespace

DOC_VIGen::~DOC_VIGen() {
    DOC_VIGen::unloadDriver();
}

bool DOC_VIGen::connect(int type, unsigned int address) {
    if (isConnected()) {
        return true;
    }
    disconnect();
    m_resource = type == 0 ? tcpResource(address) : QString();
    GUI_MarqueeProgressDialog dialog(m_host, m_host->translate(TextKey("Searching")) % QStringLiteral("..."), {},
                                     false);
    VIGenThread thread([resource = m_resource] { return vi::open(resource); });
    thread.attachDialog(&dialog);
    dialog.execThread(thread);
    m_connected = thread.result();
    return m_connected;
}

void DOC_VIGen::disconnect() {
    m_connected = false;
    if (m_driverLoaded) {
        vi::close();
    }
}

bool DOC_VIGen::isConnected() {
    if (!m_connected) {
        return false;
    }
    try {
        getFrequency();
    } catch (const std::exception&) {
        m_connected = false;
    }
    return m_connected;
}

bool DOC_VIGen::isSupported() const {
    const QString identity = getIdentity();
    qInfo() << "Signal generator" << m_resource << identity;
    const QStringList parts = identity.split(QLatin1Char(','));
    return parts.size() == 4 && m_supportedModels.contains(parts.at(1));
}

QString DOC_VIGen::getIdentity() const {
    if (!m_connected) {
        return {};
    }
    vi::sendCommandString(QStringLiteral("*IDN?\n"));
    return vi::recvString();
}

void DOC_VIGen::setFrequency(int hertz) {
    if (!m_connected) {
        return;
    }
    talk(TextKey("Failed sync to signal generator"), m_resource, [hertz] {
        vi::sendCommandString(QStringLiteral("*RST\n"));
        vi::clear();
        for (const QString& command : {
                 QStringLiteral("DISP ON\n"),
                 QStringLiteral("DISP:TEXT \"ZEB4 Setting Start\"\n"),
                 QStringLiteral("FUNC:SHAP PULS\n"),
                 QStringLiteral("FREQ %1\n").arg(hertz),
                 QStringLiteral("VOLT:LOW 0\n"),
                 QStringLiteral("VOLT:HIGH 5\n"),
                 QStringLiteral("FUNC:PULS:DCYC 50\n"),
                 QStringLiteral("OUTP ON\n"),
                 QStringLiteral("DISP:TEXT \"ZEB4 Setting End\"\n"),
             }) {
            vi::sendCommandString(command);
        }
    });
}

bool DOC_VIGen::loadDriver() {
    if (!m_driverLoaded) {
        m_driverLoaded = VisaLibrary::instance().load();
    }
    return m_driverLoaded;
}

void DOC_VIGen::unloadDriver() {
    if (!m_driverLoaded) {
        return;
    }
    disconnect();  // one that is lost has sessions too
    VisaLibrary::instance().unload();
    m_driverLoaded = false;
}

QList<int> DOC_VIGen::getFrequencies() const {
    return {1000, 2000, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 10000};
}

int DOC_VIGen::getFrequency() const {
    if (!m_connected) {
        return 0;
    }
    return talk(TextKey("Failed getFrequency"), m_resource, [] {
        vi::sendCommandString(QStringLiteral("FREQ?\n"));
        return wholeHertz(vi::recvString());
    });
}
