#include "SimHost.h"

#include "AppDesk.h"
#include "Rig.h"
#include "SupportFile.h"
#include "TextKey.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QMessageBox>
#include <QtDebug>

SimHost::SimHost(Clock& clock, MessageDesk& desk, const QString& prefsPath)
    : m_clock(clock),
      m_prefs(prefsPath),
      m_calls(m_journal, m_faults, clock),
      m_cameras(clock, m_faults),
      m_updates([this] {
          if (!isUpdateIgnore()) {
              m_hostUpdates.runCycle();
          }
      }),
      m_appObject(m_prefs, m_translator),
      m_messages(*this, desk, m_prefs, m_docManager),
      m_hostPrefs(m_calls, m_prefs),
      m_states(m_flags, m_cameras),
      m_hostUpdates(m_appStatus, m_events, m_messages),
      m_notices([this](Message::Kind kind, const QString& text) { m_messages.notify(kind, text); }),
      m_unsavedGuard(m_cameras, m_prefs, m_translator,
                     [this](const QString& question, const QStringList& lines) { return mayLose(question, lines); }),
      m_appStatus(m_calls, m_events, m_updates, m_cameras, m_flags),
      m_signalDevices(m_calls, clock, m_faults),
      m_syncSignal(m_cameras, m_signalDevices),
      m_recorder(m_calls, clock, m_cameras, m_prefs, m_flags, m_appStatus, m_events, m_updates, m_translator, m_notices,
                 m_unsavedGuard),
      m_docManager(m_calls, m_cameras, m_prefs, m_appStatus, m_flags, m_translator, m_syncSignal, m_recorder, m_updates,
                   m_notices, m_unsavedGuard, [this](const std::exception& e) { m_messages.tellFailure(e); }),
      m_liveLoop(m_calls, m_cameras, m_events),
      m_player(m_calls),
      m_saver(m_calls, m_flags, [this] { return m_appDesk; }),
      m_cameraOps(m_calls, m_cameras, m_docManager, m_recorder, m_saver, m_prefs, m_flags, m_translator, m_notices),
      m_viewOps(m_cameras, m_flags),
      m_mdi(m_cameras, m_appStatus, m_flags),
      m_undo(m_calls) {
    m_translator.load(QStringLiteral("en"));
    m_faults.whenGone([this] {
        QMetaObject::invokeMethod(
            &m_updates, [this] { m_updates.request(); }, Qt::QueuedConnection);
    });
    if (!m_prefs.problem().isEmpty()) {
        Message message;
        message.kind = Message::Warn;
        message.text = m_prefs.problem();
        desk.show(message);
    }
}

void SimHost::setRig(const Rig& rig) {
    const QStringList unsaved = m_unsavedGuard.lines(lostByClosing(heldRecordings(m_cameras)));
    if (!unsaved.isEmpty()) {
        qWarning() << "Unsaved images go with their cameras:" << unsaved;
    }
    m_recorder.abandon();
    m_docManager.forgetDocs();
    m_faults.clear();
    m_cameras.replace(rig);
    m_signalDevices.replace(rig.hubs);
    Q_EMIT m_events.camerasReplaced();
    m_updates.request();
}

ZebPrefsDialog* SimHost::getPrefsDialog() {
    m_calls.ask("getPrefsDialog");
    return m_appDesk ? m_appDesk->prefsDialog() : nullptr;
}

void SimHost::openPrefsEthernetSettings() {
    m_calls.change("ZebHost::openPrefsEthernetSettings");
    if (m_appDesk) {
        m_appDesk->openEthernetSettings();
    }
}

void SimHost::openAboutDialog() {
    m_calls.change("ZebHost::openAboutDialog");
    if (m_appDesk) {
        m_appDesk->openAbout();
    }
}

void SimHost::execProgress(const QString& text, QFutureWatcherBase& watcher) {
    m_calls.change("ZebHost::execProgress", {text});
    if (m_appDesk) {
        m_appDesk->runProgress(text, watcher);
        return;
    }
    m_docManager.endTurn();
    QEventLoop loop;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished()) {
        loop.exec();
    }
}

void SimHost::prepareSupportFile(ZebSupportFile& file) {
    m_calls.ask("prepareSupportFile");
    addHostState(file, *this);
    if (m_appDesk) {
        m_appDesk->addToSupportFile(file);
    }
}

bool SimHost::exportSupportFile(const QString& path, const ZebSupportFile& file) {
    return writeSupportFile(path, file);
}

bool SimHost::hasWrenWindow() const {
    PLG_Interface* wren = m_appStatus.getPlugin(QStringLiteral("wren"));
    return wren && wren->isDialogVisible();
}

void SimHost::hideSelectBox() {
    m_calls.change("ZebHost::hideSelectBox");
    hideDropDownBox({});
}

bool SimHost::isShownDropBox() const {
    m_calls.ask("isShownDropBox");
    return m_appDesk && m_appDesk->isDropDownBoxShown();
}

void SimHost::showDropDownBox(const QString& key, const QRect& anchor) {
    m_calls.change("ZebHost::showDropDownBox", {key});
    if (m_appDesk) {
        m_appDesk->showDropDownBox(key, anchor);
    }
}

void SimHost::hideDropDownBox(const QString& key) {
    m_calls.ask("hideDropDownBox");
    if (m_appDesk) {
        m_appDesk->hideDropDownBox(key);
    }
}

void SimHost::hideDropDownBoxAt(const QString& key, const QPoint& point) {
    m_calls.ask("hideDropDownBoxAt");
    if (m_appDesk && !m_appDesk->dropDownBoxRect(key).contains(point)) {
        m_appDesk->hideDropDownBox(key);
    }
}

void SimHost::saveFiles() {
    m_calls.change("ZebHost::saveFiles");
    if (m_appDesk) {
        m_appDesk->save(false);
    }
}

void SimHost::saveLayoutFiles() {
    m_calls.change("ZebHost::saveLayoutFiles");
    if (m_appDesk) {
        m_appDesk->save(true);
    }
}

bool SimHost::mayLose(const QString& question, const QStringList& lines) {
    const ButtonTexts answers{{QMessageBox::Yes, translate(TextKey("Yes"))},
                              {QMessageBox::No, translate(TextKey("No"))}};
    return m_messages.choose(question, nullptr, answers, QMessageBox::No, lines) == QMessageBox::Yes;
}
