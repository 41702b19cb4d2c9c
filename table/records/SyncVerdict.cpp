#include "SyncVerdict.h"

#include "CameraAction.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "FailureText.h"
#include "LiveControlMembers.h"
#include "SignalSources.h"
#include "SyncCamera.h"
#include "SyncChecks.h"
#include "SyncPreferences.h"
#include "SyncState.h"
#include "SyncableDocs.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

QString inBrackets(const QString& text) {
    return text.isEmpty() ? text : QString(QStringLiteral(" (") % text % QLatin1Char(')'));
}

/// What the obstacle is measured by.
QString numbersOf(SyncObstacle obstacle, ZebHost& host, const DOC_Control& camera) {
    switch (obstacle) {
        case SyncObstacle::Unsupported:
            return host.translate(TextKey("camera type %1")).arg(camera.getCameraType());
        case SyncObstacle::TriggerMode: {
            const DocList cameras = withoutDummies(host.docManager().getCameraDocs());
            if (cameras.isEmpty()) {
                return {};
            }
            const DOC_Control& first = cameras.first()->control();
            const auto mode = [&host](const DOC_Control& each) {
                return LiveControlMembers::triggerText(host, each.getTriggerMode());
            };
            return host.translate(TextKey("%1; %2 has %3")).arg(mode(camera), first.getCameraName(1), mode(first));
        }
        case SyncObstacle::MixedExposures: {
            const QList<SyncCamera> cameras = SyncCamera::readAll(withoutDummies(host.docManager().getCameraDocs()));
            const int delayed =
                int(std::count_if(cameras.begin(), cameras.end(), [](const SyncCamera& each) { return each.delayed; }));
            return host.translate(TextKey("with delay: %1, without: %2")).arg(delayed).arg(cameras.size() - delayed);
        }
        default:
            return {};
    }
}

template <typename Ask>
QString answerOrFailure(Ask&& ask) {
    try {
        return ask();
    } catch (...) {
        return currentFailureText();
    }
}

}  // namespace

QString SyncVerdict::toJson() const {
    const QJsonObject verdict{{QStringLiteral("check"), answerOrFailure([this] { return check(); })},
                              {QStringLiteral("follows"), answerOrFailure([this] { return follows(); })},
                              {QStringLiteral("rate"), answerOrFailure([this] { return rate(); })},
                              {QStringLiteral("recorded"), answerOrFailure([this] { return recorded(); })}};
    return QString::fromUtf8(QJsonDocument(verdict).toJson(QJsonDocument::Compact));
}

QString SyncVerdict::check() const {
    if (!syncprefs::isInUse(m_host)) {
        return {};
    }
    const auto text = [this](SyncObstacle obstacle, DOC_Interface& doc) {
        return QString(m_host.translate(textOf(obstacle)) % inBrackets(numbersOf(obstacle, m_host, doc.control())));
    };
    if (const auto own = syncObstacleOf(m_host, m_doc)) {
        return text(*own, m_doc);
    }
    const auto other = firstSyncObstacle(m_host);
    return other ? QString(other->doc->control().getCameraName(1) % QLatin1String(": ") %
                           text(other->obstacle, *other->doc))
                 : QString();
}

QString SyncVerdict::follows() const {
    if (!syncprefs::isInUse(m_host)) {
        return m_host.translate(TextKey("Synchronisation is not in use."));
    }
    if (syncprefs::isExternal(m_host)) {
        return sourceText();
    }
    if (m_state.masterCamera == zeb::NoDocKey) {
        return m_host.translate(TextKey("The cameras have not been synchronised yet."));
    }
    if (m_state.masterCamera == m_doc.getKey()) {
        return m_host.translate(TextKey("It is the master camera."));
    }
    DOC_Interface* leader = master();
    return leader == nullptr
               ? m_host.translate(TextKey("The master camera is not connected."))
               : m_host.translate(TextKey("Master camera: %1, %2"))
                     .arg(leader->control().getCameraName(1), rateText(leader->control().getRecordRate(0)));
}

QString SyncVerdict::sourceText() const {
    const SignalSources signal(m_host, m_state);
    const bool fromGenerator = signal.isGeneratorConnected();
    if (!fromGenerator && !signal.isHubConnected()) {
        return m_host.translate(TextKey("The source of the signal is not connected."));
    }
    return m_host
        .translate(fromGenerator ? TextKey("Signal of the generator: %1") : TextKey("Signal of the Sync Hub: %1"))
        .arg(m_state.frequency < 1 ? m_host.translate(TextKey("no frequency is chosen"))
                                   : QStringLiteral("%1 Hz").arg(m_state.frequency));
}

QString SyncVerdict::rate() const {
    return m_host.translate(TextKey("Record rate: %1")).arg(comparedText(m_doc.control().getRecordRate(0)));
}

QString SyncVerdict::recorded() const {
    const zeb::RecordedData data = m_doc.frames().getRecordedData(m_doc.control().getCurrentPartition(1));
    if (data.rate == 0) {
        return {};
    }
    return m_host.translate(TextKey("Recorded: %1 frames, %2"))
        .arg(QString::number(data.last - data.first + 1), comparedText(data.rate));
}

std::optional<int> SyncVerdict::reference() const {
    if (syncprefs::isExternal(m_host)) {
        return SignalSources(m_host, m_state).givesFrequency() ? std::optional(m_state.frequency) : std::nullopt;
    }
    DOC_Interface* leader = syncprefs::isInUse(m_host) ? master() : nullptr;
    return leader != nullptr && leader != &m_doc ? std::optional(int(leader->control().getRecordRate(0)))
                                                 : std::nullopt;
}

DOC_Interface* SyncVerdict::master() const {
    DOC_Interface* leader = m_host.docManager().getDocAny(m_state.masterCamera);
    return leader != nullptr && leader->isConnected() ? leader : nullptr;
}

QString SyncVerdict::rateText(unsigned int rate) const {
    return cameraaction::FrameRate.text(m_host, m_doc, QString::number(rate));
}

QString SyncVerdict::comparedText(unsigned int rate) const {
    const QString text = rateText(rate);
    const std::optional<int> signal = reference();
    if (!signal) {
        return text;
    }
    const int difference = int(rate) - *signal;
    return difference == 0 ? m_host.translate(TextKey("%1, as the signal")).arg(text)
           : difference > 0
               ? m_host.translate(TextKey("%1, %2 above the signal")).arg(text, QString::number(difference))
               : m_host.translate(TextKey("%1, %2 below the signal")).arg(text, QString::number(-difference));
}
