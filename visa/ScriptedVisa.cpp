#include "ScriptedVisa.h"

#include "VisaStatus.h"

#include <algorithm>
#include <cstring>
#include <utility>

ScriptedVisa& ScriptedVisa::instance() {
    static ScriptedVisa visa;
    return visa;
}

/// The frame of a call: it stands in the journal, fails or waits as the script says, and else does its work.
template <typename Work>
std::int32_t ScriptedVisa::call(const char* name, const QString& argument, Work&& work) {
    Lock lock(m_mutex);
    m_journal.append(argument.isEmpty() ? QString(name) : name % QStringLiteral(" ") % argument);
    const std::int32_t status = planned(lock, name);
    return status != visastatus::Success ? status : work();
}

std::int32_t ScriptedVisa::planned(Lock& lock, const char* name) {
    const VisaBehaviour::Call plan = m_behaviour.calls.value(name);
    if (++m_counts[name] < plan.from) {
        return visastatus::Success;
    }
    const int script = m_scriptCount;
    if (plan.holds) {
        m_released.wait(lock, [&] { return m_isReleased || m_scriptCount != script; });
    }
    return plan.status;
}

std::uint32_t ScriptedVisa::open(QSet<std::uint32_t>& sessions) {
    sessions.insert(++m_lastSession);
    return m_lastSession;
}

std::int32_t ScriptedVisa::openManager(std::uint32_t& manager) {
    return call("viOpenDefaultRM", {}, [&] {
        manager = open(m_managers);
        return visastatus::Success;
    });
}

std::int32_t ScriptedVisa::open(std::uint32_t manager, const QByteArray& resource, std::uint32_t& session) {
    return call("viOpen", QString::fromUtf8(resource), [&] {
        if (!m_managers.contains(manager)) {
            return visastatus::InvalidObject;
        }
        if (!resource.startsWith("TCPIP") || !resource.endsWith("::INSTR")) {
            return visastatus::InvalidResourceName;
        }
        session = open(m_instruments);
        return visastatus::Success;
    });
}

std::int32_t ScriptedVisa::print(std::uint32_t session, const QByteArray& text) {
    return call("viPrintf", QString::fromUtf8(text), [&] {
        if (!m_instruments.contains(session)) {
            return visastatus::InvalidObject;
        }
        m_generator.take(text);
        const auto scripted = m_behaviour.replies.find(text.trimmed());
        if (scripted != m_behaviour.replies.end()) {
            m_generator.setReply(*scripted);
        }
        return visastatus::Success;
    });
}

std::int32_t ScriptedVisa::scan(std::uint32_t session, char* buffer, std::size_t size) {
    return call("viScanf", {}, [&] {
        if (!m_instruments.contains(session)) {
            return visastatus::InvalidObject;
        }
        const QByteArray reply = m_generator.reply();
        if (reply.isEmpty()) {
            return visastatus::TimeOut;
        }
        const std::size_t length = std::min(size, static_cast<std::size_t>(reply.size()));
        std::memcpy(buffer, reply.constData(), length);
        if (length < size) {
            buffer[length] = '\0';
        }
        return visastatus::Success;
    });
}

std::int32_t ScriptedVisa::clear(std::uint32_t session) {
    return call("viClear", {}, [&] {
        if (!m_instruments.contains(session)) {
            return visastatus::InvalidObject;
        }
        m_generator.clear();
        return visastatus::Success;
    });
}

std::int32_t ScriptedVisa::close(std::uint32_t object) {
    const QString name = [&] {
        const Lock lock(m_mutex);
        return nameOf(object);
    }();
    return call("viClose", name, [&] {
        const bool isOpen = m_managers.remove(object) || m_instruments.remove(object);
        return isOpen ? visastatus::Success : visastatus::InvalidObject;
    });
}

QString ScriptedVisa::nameOf(std::uint32_t object) const {
    if (m_managers.contains(object)) {
        return QStringLiteral("manager");
    }
    return m_instruments.contains(object) ? QStringLiteral("instrument") : QStringLiteral("nothing");
}

void ScriptedVisa::replaceScript(const QByteArray& json) {
    const VisaBehaviour behaviour = VisaBehaviour::fromJson(json);
    const Lock lock(m_mutex);
    m_behaviour = behaviour;
    ++m_scriptCount;
    m_isReleased = false;
    m_counts.clear();
    m_generator = FunctionGenerator();
    if (!behaviour.identity.isNull()) {
        m_generator.setIdentity(behaviour.identity);
    }
    if (behaviour.frequency) {
        m_generator.take("FREQ " + QByteArray::number(*behaviour.frequency) + "\nOUTP ON");
    }
    m_released.notify_all();
}

QStringList ScriptedVisa::takeJournal() {
    const Lock lock(m_mutex);
    return std::exchange(m_journal, {});
}

int ScriptedVisa::signal() {
    const Lock lock(m_mutex);
    if (m_scriptCount == 0 && m_lastSession == 0) {
        return -1;
    }
    const VisaBehaviour::Call opening = m_behaviour.calls.value("viOpen");
    const bool isOff = opening.status != visastatus::Success && m_counts["viOpen"] + 1 >= opening.from;
    return isOff ? 0 : qRound(m_generator.signal());
}

void ScriptedVisa::release() {
    const Lock lock(m_mutex);
    m_isReleased = true;
    m_released.notify_all();
}
