#include "Simulator.h"

#include "AppWindows.h"
#include "CameraWindows.h"
#include "CommandLine.h"
#include "PluginLoader.h"
#include "PluginSlot.h"
#include "RecordingGuard.h"
#include "RigFile.h"
#include "ScriptedVisaLoader.h"
#include "UiText.h"
#include "ViewerWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMdiArea>
#include <QtDebug>

#include <stdexcept>

namespace {

const QString FirstRig = QStringLiteral("eight-mixed");

Rig rigOf(const CommandLine& line) {
    if (line.cameraCount > 0) {
        return standardRig(line.cameraCount);
    }
    return readRig(line.rig.isEmpty() ? FirstRig : line.rig);
}

}  // namespace

Simulator::Simulator(const CommandLine& line) : m_host(m_clock, m_boxes, line.prefs) {
    m_host.syncSignal().setGenerator(ScriptedVisaLoader::signal);
    ScriptedVisaLoader visa;
    if (line.scriptedVisa && !visa.load()) {
        throw std::runtime_error(visa.errorString().toStdString());
    }
    chooseLanguage(line.language);
    m_host.setRig(rigOf(line));
    if (!line.style.isEmpty()) {
        m_host.prefs().setValue(QStringLiteral("env/style"), line.style);
    }
    m_window = std::make_unique<ViewerWindow>(m_host, m_log);
    m_host.setMainWindow(m_window.get());
    m_boxes.setHost(&m_host);
    m_host.setMdiWidget(m_window->mdiArea());
    m_windows = std::make_unique<AppWindows>(m_host, m_log, m_window->images());
    m_window->addDialogs(*m_windows);
    QObject::connect(&m_host.events(), &HostEvents::updateFinished, m_window.get(), [this] { m_boxes.followStyle(); });
    QObject::connect(m_window.get(), &ViewerWindow::closeAsked, m_window.get(), [this] {
        if (mayLetGoOfRecording(m_host, uiText("Cameras are armed or recording. Close the viewer all the same?")) &&
            m_host.unsavedGuard().mayClose() && mayEndConversion(m_host)) {
            quit();
        }
    });
    loadPlugin(line);
    QObject::connect(&m_recorderTimer, &QTimer::timeout, m_window.get(), [this] { m_host.proceed(); });
    m_recorderTimer.start(RecorderInterval);
}

Simulator::~Simulator() {
    beginClosing();
    if (m_slot) {
        m_slot->close();
    }
    m_windows.reset();
    m_window.reset();
    m_slot.reset();
    m_loader.reset();
}

int Simulator::run(const std::function<void()>& work) {
    QTimer::singleShot(0, m_window.get(), work);
    QTimer::singleShot(0, m_window.get(), [this] { m_boxes.showHeld(); });
    return QApplication::exec();
}

void Simulator::quit() {
    beginClosing();
    QCoreApplication::quit();
}

void Simulator::beginClosing() {
    m_host.flags().set(StatusFlags::IsApplicationClosing, true);
    m_boxes.rejectAll();
}

void Simulator::chooseLanguage(const QString& wanted) {
    const QString stored = m_host.prefs().value(QStringLiteral("env/language")).toString();
    const QString language = wanted.isEmpty() ? stored : wanted;
    if (!language.isEmpty() && !m_host.setLanguage(language)) {
        qWarning() << "There is no catalogue for the language" << language;
    }
}

void Simulator::loadPlugin(const CommandLine& line) {
    const QString beside = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("wren.zeb"));
    if (line.plugin.isEmpty() && !QFileInfo::exists(beside)) {
        qWarning() << "The viewer runs without a plug-in; there is none at" << beside;
        return;
    }
    const QString file = line.plugin.isEmpty() ? beside : line.plugin;
    m_loader = std::make_unique<PluginLoader>(file, m_host);
    m_windows->setPluginFile(file);
    m_slot = std::make_unique<PluginSlot>(m_host, m_loader->plugin());
    m_window->addPlugin(*m_slot);
}
