#include "HostBatch.h"

#include "Camera.h"
#include "CameraBank.h"
#include "Clock.h"
#include "ClockRows.h"
#include "FailureText.h"
#include "HostContext.h"
#include "HostWindows.h"
#include "ParallelRows.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "Translator.h"
#include "ZebLeftOut.h"

#include <stdexcept>

namespace {

/// Until the user is told whom a command waits for, in milliseconds of the host's time.
constexpr int Patience = 1000;
/// Milliseconds between two looks at that time.
constexpr int LookAgain = 10;

/// What was wrong; empty for nothing.
QString reasonOf(const std::exception_ptr& failure) {
    if (!failure) {
        return {};
    }
    try {
        std::rethrow_exception(failure);
    } catch (...) {
        return currentFailureText();
    }
}

}  // namespace

std::vector<CameraAnswer> HostBatch::run(const HeldCameras& cameras, const std::function<void(Camera&)>& command) {
    if (cameras.empty()) {
        return {};
    }
    // An event loop may run, in which they would go.
    m_host.docs.endTurn();
    return m_host.clock.isStepped() ? runInOrder(cameras, command) : runAtOnce(cameras, command);
}

std::vector<CameraAnswer> HostBatch::runInOrder(const HeldCameras& cameras,
                                                const std::function<void(Camera&)>& command) {
    const auto work = [&](int row) { command(*cameras[std::size_t(row)]); };
    std::vector<CameraAnswer> answers;
    for (const std::exception_ptr& failure : runSteppedRows(m_host.clock, int(cameras.size()), work)) {
        answers.push_back({reasonOf(failure)});
    }
    return answers;
}

std::vector<CameraAnswer> HostBatch::runAtOnce(const HeldCameras& cameras,
                                               const std::function<void(Camera&)>& command) {
    ParallelRows rows(int(cameras.size()), [&](int row) { command(*cameras[std::size_t(row)]); });
    const qint64 end = m_host.clock.now() + Patience;
    while (!rows.waitFor(LookAgain)) {
        if (m_host.clock.now() >= end) {
            showWait(rows, cameras);
        }
    }
    std::vector<CameraAnswer> answers;
    answers.reserve(cameras.size());
    for (int row = 0; row < int(cameras.size()); ++row) {
        answers.push_back({reasonOf(rows.failureOf(row))});
    }
    const QString leftOut = m_host.translator.translate(TextKey("%1: the command was cancelled before it"));
    for (const int row : rows.leftOut()) {
        answers[std::size_t(row)] = {leftOut.arg(m_host.cameras.labelOf(*cameras[std::size_t(row)])), true};
    }
    return answers;
}

/// Back when the rows have ended.
void HostBatch::showWait(ParallelRows& rows, const HeldCameras& cameras) {
    QStringList names;
    for (const auto& camera : cameras) {
        names << m_host.cameras.labelOf(*camera);
    }
    m_host.windows->waitForRows(rows, names);
}

void HostBatch::runOrThrow(const HeldCameras& cameras, const std::function<void(Camera&)>& command) {
    QStringList reasons;
    DocKeyList leftOut;
    const std::vector<CameraAnswer> answers = run(cameras, command);
    for (std::size_t i = 0; i < answers.size(); ++i) {
        if (!answers[i].reason.isEmpty()) {
            reasons << answers[i].reason;
        }
        if (answers[i].isLeftOut) {
            leftOut << cameras[i]->key();
        }
    }
    const std::string text = reasons.join(QLatin1Char('\n')).toStdString();
    if (!leftOut.isEmpty()) {
        throw ZebLeftOut(text, leftOut);
    }
    if (!reasons.isEmpty()) {
        throw std::runtime_error(text);
    }
}
