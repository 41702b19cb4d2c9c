#include "SimHost.h"

#include "Rig.h"
#include "SupportFile.h"

#include <QCoreApplication>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
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
      m_batch(m_context),
      m_messages(*this, desk, m_prefs, m_docManager),
      m_hostPrefs(m_calls, m_prefs),
      m_states(m_flags, m_cameras),
      m_hostUpdates(m_context),
      m_notices([this](Message::Kind kind, const QString& text) { m_messages.notify(kind, text); }),
      m_unsavedGuard(m_cameras, m_prefs, m_translator, m_messages),
      m_appStatus(m_context),
      m_signalDevices(m_calls, clock, m_faults),
      m_syncSignal(m_cameras, m_signalDevices),
      m_recorder(m_context),
      m_docManager(m_context),
      m_restarts(m_context),
      m_liveLoop(m_calls, m_cameras, m_events),
      m_player(m_calls),
      m_saver(m_context),
      m_cameraOps(m_context),
      m_viewOps(m_cameras, m_flags),
      m_mdi(m_cameras, m_flags),
      m_undo(m_context),
      m_imagePlugins(*this, m_appStatus) {
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

QString SimHost::getVersionText() const {
    m_calls.ask(OPERATION("getVersionText"));
    return QCoreApplication::applicationVersion();
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
    for (const QString& failure : m_shelf.replace(rig.media)) {
        m_messages.notify(Message::Warn, failure);
    }
    Q_EMIT m_events.camerasReplaced();
    m_updates.request();
}

void SimHost::attachBridge(QWebView* view, ZebPageBridge* bridge) {
    QWebFrame* frame = view->page()->mainFrame();
    QObject::connect(frame, &QWebFrame::javaScriptWindowObjectCleared, &m_appObject,
                     [this, frame] { frame->addToJavaScriptWindowObject(QStringLiteral("app"), &m_appObject); });
    m_hostPrefs.tried().beginFor(view, *bridge);
    m_hostUpdates.attachBridge(view, bridge);
}

void SimHost::prepareSupportFile(ZebSupportFile& file) {
    m_calls.ask(OPERATION("prepareSupportFile"));
    addHostState(file, *this);
    m_windows->addToSupportFile(file);
}

bool SimHost::exportSupportFile(const QString& path, const ZebSupportFile& file) {
    return writeSupportFile(path, file);
}

bool SimHost::hasWrenWindow() const {
    PLG_Interface* wren = m_appStatus.getPlugin(QStringLiteral("wren"));
    return wren && wren->isDialogVisible();
}
