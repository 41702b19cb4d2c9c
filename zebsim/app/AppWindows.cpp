#include "AppWindows.h"

#include "AboutDialog.h"
#include "Camera.h"
#include "CameraView.h"
#include "CameraWindow.h"
#include "CameraWindows.h"
#include "DialogRun.h"
#include "EthernetDialog.h"
#include "FramePicture.h"
#include "FreshKeys.h"
#include "GUI_AddDeviceDialog.h"
#include "GUI_CameraFileDialog.h"
#include "GUI_CameraSettingsDialog.h"
#include "GUI_CustomInfoDialog.h"
#include "GUI_WebView.h"
#include "HostNameSource.h"
#include "JS_Mediator_MediaDialog.h"
#include "LogStore.h"
#include "PasswordDialogs.h"
#include "PreferencesDialog.h"
#include "ProgressWait.h"
#include "RecordingFolder.h"
#include "SaveInfoDialog.h"
#include "SaveTargets.h"
#include "SimHost.h"
#include "SnapShots.h"
#include "TargetPaths.h"
#include "TextKey.h"
#include "UiText.h"
#include "ZebSupportFile.h"

#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QPixmap>

namespace {

constexpr StatusFlags::Flag DialogState = StatusFlags::IsPrefDialogOpening;

constexpr QSize MediaSize{1120, 640};

QByteArray pngOf(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

}  // namespace

AppWindows::AppWindows(SimHost& host, const LogStore& log, const CameraWindows& images)
    : m_host(host), m_log(log), m_images(images), m_boxes(host, *host.getMainWindow()), m_saving(host) {
    host.setWindows(this);
}

AppWindows::~AppWindows() {
    m_host.setWindows(nullptr);
}

void AppWindows::setPage(const QString& page) {
    m_host.calls().ask(OPERATION("setPage"));
    m_page = page;
}

int AppWindows::exec() {
    m_host.calls().ask(OPERATION("exec"));
    return runPreferences();
}

int AppWindows::runPreferences() {
    auto* dialog = new PreferencesDialog(m_host.prefs(), m_host.getMainWindow());
    dialog->openAt(std::exchange(m_page, {}));
    const bool before = m_host.flags().isOn(DialogState);
    m_host.flags().set(DialogState, true);
    const int result = runDialog(m_host, dialog);
    m_host.flags().set(DialogState, before);
    m_host.updates().request();
    return result;
}

void AppWindows::openEthernetSettings() {
    runDialog(m_host, new EthernetDialog(m_host.cameras(), m_host.prefs(), m_host.getMainWindow()));
}

void AppWindows::openAbout() {
    runDialog(m_host, new AboutDialog(m_pluginFile, m_host.getMainWindow()));
}

void AppWindows::addCamera() {
    runDialog(m_host, new GUI_AddDeviceDialog(m_host, zeb::NoDocKey, m_host.getMainWindow()));
}

void AppWindows::editCamera(DOCKEY key) {
    auto* dialog = new GUI_AddDeviceDialog(m_host, key, m_host.getMainWindow());
    // Updates may be held back for as long as it stands.
    QObject::connect(&m_images, &CameraWindows::shown, dialog, &GUI_AddDeviceDialog::follow);
    runOnCameras(dialog);
}

void AppWindows::openRecordings() {
    const HostCalls::Own own;
    openRecordingFolder(m_host);
}

void AppWindows::openMedia() {
    auto* dialog = new GUI_WebViewDialog(&m_host, TextKey("Media"), QStringLiteral("qrc:/fileopendialog.html"),
                                         new JS_Mediator_MediaDialog(m_host), m_host.getMainWindow());
    resizeOnScreen(*dialog, MediaSize);
    takeFreshKeysOnly(*dialog->getWebView());
    runDialog(m_host, dialog);
}

bool AppWindows::askPassword(const QString& medium, const PasswordTest& fits) {
    return runDialog(m_host, new PasswordDialog(medium, fits, QApplication::activeWindow())) == QDialog::Accepted;
}

std::optional<QString> AppWindows::askNewPassword(const QString& medium, const PasswordTest& fits) {
    auto* dialog = new NewPasswordDialog(medium, fits, QApplication::activeWindow());
    std::optional<QString> password;
    QObject::connect(dialog, &QDialog::accepted, dialog, [&password, dialog] { password = dialog->password(); });
    runDialog(m_host, dialog);
    return password;
}

void AppWindows::editCustomInfo() {
    auto* dialog = new GUI_CustomInfoDialog(&m_host, false, m_host.getMainWindow());
    // The keys, or the lists that the cameras show, are others from then on: what is done stays done.
    QObject::connect(&m_host.events(), &HostEvents::camerasReplaced, dialog, &QDialog::accept);
    QObject::connect(&m_host.events(), &HostEvents::modeChanged, dialog, [this, dialog] {
        m_host.messages().notify(Message::Info,
                                 uiText("The mode has changed. What was done to the custom information stays."));
        dialog->accept();
    });
    runDialog(m_host, dialog);
}

void AppWindows::loadSettings() {
    runOnCameras(new GUI_CameraFileDialog(&m_host, m_host.getMainWindow()));
}

void AppWindows::saveSettings() {
    runOnCameras(new GUI_CameraSettingsDialog(&m_host, m_host.getMainWindow()));
}

/// Other cameras may bear the keys that it holds from then on.
void AppWindows::runOnCameras(QDialog* dialog) {
    QObject::connect(&m_host.events(), &HostEvents::camerasReplaced, dialog, &QDialog::reject);
    runDialog(m_host, dialog);
}

void AppWindows::snapShot(int mode) {
    takeSnapShot(m_host, currentFrame(), mode);
}

bool AppWindows::openTimeCode() {
    return runDialog(m_host, new TimeCodeDialog(m_host.prefs(), m_host.getMainWindow())) == QDialog::Accepted;
}

/// It is the same for all cameras.
bool AppWindows::openSaveInfo(const DocKeyList& /*keys*/) {
    return runDialog(m_host, new SaveInfoDialog(m_host.prefs(), m_host.getMainWindow())) == QDialog::Accepted;
}

void AppWindows::runProgress(const QString& text, QFutureWatcherBase& watcher) {
    waitWithProgress(m_host, text, watcher);
}

void AppWindows::waitForRows(ParallelRows& rows, const QStringList& names) {
    waitWithProgress(m_host, rows, names);
}

std::optional<CameraFrame> AppWindows::currentFrame() const {
    const CameraWindow* window = m_images.find(m_host.docManager().currentKey());
    return window ? window->view().frame() : std::nullopt;
}

/// A partition that is not in use is not played.
QString AppWindows::fileName(int type, DOCKEY key, PARTITIONNUMBER partition, const QDateTime& time) const {
    const auto document = namedPartition(m_host, key, partition);
    return document ? ::fileName(HostNameSource(m_host), type, document.get(), partition, true, time) : QString();
}

int AppWindows::shownFrame(DOCKEY key, const Recording& recording) const {
    const Camera* camera = m_host.cameras().find(key);
    const bool isShown = camera && camera->get(&CameraState::partition) == recording.partition;
    return isShown ? m_images.playback().frame(key, recording) : recording.selectedFirst;
}

QImage AppWindows::currentImage() const {
    const auto frame = currentFrame();
    return frame ? drawFrameOrFailure(*frame, frame->resolution) : QImage();
}

// With `addHostState` this writes what `supportFileContents` has promised the user.
void AppWindows::addToSupportFile(ZebSupportFile& file) const {
    file.files.insert(QStringLiteral("operation.log"), m_log.prefixed().join(QLatin1Char('\n')).toUtf8());
    if (QWidget* window = m_host.getMainWindow()) {
        file.files.insert(QStringLiteral("viewer.png"), pngOf(window->grab().toImage()));
    }
    for (PLG_Interface* plugin : m_host.appStatus().plugins()) {
        if (plugin->isDialogVisible()) {
            file.files.insert(plugin->getName() % QStringLiteral(".png"),
                              pngOf(plugin->getDialog(false)->grab().toImage()));
        }
    }
    const QImage image = currentImage();
    if (!image.isNull()) {
        file.files.insert(QStringLiteral("image.png"), pngOf(image));
    }
}
