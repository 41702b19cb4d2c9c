#include "SignalSources.h"

#include "CycleFailures.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_VIGen.h"
#include "FailureText.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "SyncCamera.h"
#include "SyncPreferences.h"
#include "SyncState.h"
#include "TextKey.h"
#include "UTL_Exception.h"
#include "VisaLibrary.h"
#include "ZebHost.h"
#include "ZebSignalDevices.h"

#include <QDebug>
#include <QScopedValueRollback>

#include <algorithm>
#include <stdexcept>

template <typename Work, typename CleanUp>
void SignalSources::attempt(Work&& work, CleanUp&& cleanUp) {
    try {
        work();
        return;
    } catch (const std::exception& e) {
        if (m_failures != nullptr) {
            m_failures->noteCurrent();
        } else {
            logFailure([&] { m_host.errorHandler(e); });
        }
    } catch (...) {
        m_failures != nullptr ? m_failures->noteCurrent() : logCurrentFailure();
    }
    logFailure(cleanUp);
}

void SignalSources::connectGenerator() {
    if (m_state.connecting) {
        return;  // the worker has the instrument
    }
    const QScopedValueRollback busy(m_state.connecting, true);
    attempt([this] { openGenerator(); },
            [this] {
                if (m_state.generator) {
                    m_state.generator->disconnect();
                }
            });
}

void SignalSources::openGenerator() {
    if (!syncprefs::isExternal(m_host)) {
        return;
    }
    const QString address = syncprefs::generatorAddress(m_host);
    if (address.isEmpty()) {
        dropGenerator();
        return;
    }
    if (!m_state.generator) {
        auto generator = std::make_unique<DOC_VIGen>(&m_host);
        if (!generator->loadDriver()) {
            qCritical() << "visa64.dll not found.";
            qWarning() << "No signal generator is offered without a VISA library. Looked for"
                       << VisaLibrary::instance().files().join(QStringLiteral(", "));
            return;
        }
        m_state.generator = std::move(generator);
    }
    DOC_SignalGenerator& generator = *m_state.generator;
    if (generator.isConnected()) {
        return;
    }
    const quint32 number = addressNumber(address);
    if (number == 0) {
        qCritical() << "The address of the signal generator is no IPv4 address:" << address;
    }
    generator.connect(0, number);
    if (!generator.isConnected()) {
        throw UTL_Exception(m_host.translate(TextKey("Could not connect with signal generator")));
    }
    if (!generator.isSupported()) {
        throw UTL_Exception(m_host.translate(TextKey("can not be connected because unsupported device.")) %
                            QStringLiteral(" (") % generator.getIdentity().trimmed() % QLatin1Char(')'));
    }
    if (m_state.frequency < 1) {
        return;
    }
    const SignalOffer offer = SignalOffer::of(generator.getFrequency(), generator.getFrequencies());
    if (needsFrequency(m_state.frequency, offer)) {
        generator.setFrequency(m_state.frequency);
    }
}

void SignalSources::dropGenerator() {
    if (m_state.generator) {
        m_state.generator->disconnect();
    }
    m_state.generator.reset();
}

/// What it throws says which hub it was.
template <typename Work>
void SignalSources::onHub(const QString& address, Work&& work) const {
    try {
        ZebSignalDevice* hub = m_host.signalDevices().findByAddress(address);
        if (hub != nullptr && hub->isConnected()) {
            work(*hub);
        }
    } catch (...) {
        throw std::runtime_error(withName(currentFailureText(), address).toStdString());
    }
}

template <typename Work>
void SignalSources::onMasterHubs(Work&& work) {
    GatheredFailures failures;
    for (const QString& address : syncprefs::hubAddresses(m_host)) {
        failures.attempt([&] {
            onHub(address, [&work](ZebSignalDevice& hub) {
                if (hub.getRole() == zeb::HubRoleMaster) {
                    work(hub);
                }
            });
        });
    }
    failures.rethrow();
}

void SignalSources::connectHubs() {
    attempt([this] { openHubs(); }, [this] { m_host.signalDevices().close(); });
}

void SignalSources::openHubs() {
    if (!syncprefs::isExternal(m_host) || m_state.generator || syncprefs::port(m_host) != zeb::SyncPortHub) {
        return;
    }
    ZebSignalDevices& devices = m_host.signalDevices();
    devices.close();
    const QStringList wanted = syncprefs::hubAddresses(m_host);
    if (wanted.isEmpty()) {
        return;
    }
    devices.open(1);
    if (devices.search(3, 1) != wanted.size()) {
        const QStringList missing = missingHubs();
        throw UTL_Exception(m_host.translate(TextKey("Failed to connect to Sync Hub")) % QStringLiteral(" (") %
                            (missing.isEmpty() ? wanted : missing).join(QStringLiteral(", ")) % QLatin1Char(')'));
    }
    if (m_state.frequency < 1) {
        return;
    }
    onMasterHubs([this](ZebSignalDevice& hub) {
        if (needsFrequency(m_state.frequency, SignalOffer::of(hub.getFrequency(), hub.getFrequencies()))) {
            hub.setFrequency(m_state.frequency);
        }
    });
}

void SignalSources::setFrequency(int hertz) {
    if (hertz < 1 || !syncprefs::isExternal(m_host)) {
        return;
    }
    m_state.frequency = hertz;
    if (isGeneratorConnected()) {
        m_state.generator->setFrequency(hertz);
    } else if (syncprefs::usesHubs(m_host)) {
        onMasterHubs([hertz](ZebSignalDevice& hub) { hub.setFrequency(hertz); });
    }
}

bool SignalSources::isGeneratorConnected() const {
    return m_state.generator && m_state.generator->isConnected();
}

template <typename Ask>
bool SignalSources::ask(const QString& address, const char* question, Ask&& ask) const {
    bool answered = false;
    const auto work = [&] {
        onHub(address, ask);
        answered = true;
    };
    if (m_state.failures != nullptr) {
        m_state.failures->attempt(QStringLiteral("hub %1 %2").arg(address, QLatin1String(question)), work);
    } else {
        logFailure(work);
    }
    return answered;
}

bool SignalSources::isHubConnected() const {
    const QStringList addresses = syncprefs::hubAddresses(m_host);
    return std::any_of(addresses.begin(), addresses.end(), [this](const QString& address) {
        bool connected = false;
        ask(address, "connection", [&connected](ZebSignalDevice&) { connected = true; });
        return connected;
    });
}

QStringList SignalSources::missingHubs() const {
    QStringList missing = syncprefs::hubAddresses(m_host);
    for (const QString& address : syncprefs::hubAddresses(m_host)) {
        ask(address, "connection", [&](ZebSignalDevice&) { missing.removeAll(address); });
    }
    return missing;
}

SignalOffer SignalSources::readGenerator() const {
    return SignalOffer::of(m_state.generator->getFrequency(), m_state.generator->getFrequencies());
}

std::optional<SignalOffer> SignalSources::readHub() const {
    if (!syncprefs::isExternal(m_host) || !syncprefs::usesHubs(m_host)) {
        return SignalOffer();
    }
    bool all = true;
    for (const QString& address : syncprefs::hubAddresses(m_host)) {
        std::optional<SignalOffer> offer;
        const bool answered = ask(address, "signal", [&offer](ZebSignalDevice& hub) {
            if (hub.getRole() == zeb::HubRoleMaster) {
                offer = SignalOffer::of(hub.getFrequency(), hub.getFrequencies());
            }
        });
        if (offer) {
            return offer;
        }
        all = all && answered;
    }
    return all ? std::optional(SignalOffer()) : std::nullopt;
}

bool SignalSources::givesFrequency() const {
    return syncprefs::isExternal(m_host) && m_state.frequency >= 1 && (isGeneratorConnected() || isHubConnected());
}

bool SignalSources::agreesWith(DOC_Interface& doc) const {
    return doc.control().getRecordRate(0) == static_cast<unsigned int>(m_state.frequency);
}
