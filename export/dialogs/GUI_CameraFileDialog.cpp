#include "GUI_CameraFileDialog.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DocumentGuard.h"
#include "FailureText.h"
#include "FileNameRules.h"
#include "LogFailure.h"
#include "NamedFailure.h"
#include "SettingsFolder.h"
#include "TextKey.h"
#include "ZebCycleFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

#include <stdexcept>
#include <utility>

namespace {

constexpr QRect CameraInTitleBar(0, 306, 24, 24);
constexpr QSize RowSize(50, 50);
constexpr int NameWidth = 140;
constexpr int PresetsLeft = 200;
constexpr int PresetStep = 40;
constexpr int NoneLeft = 500;
constexpr double PanelGrowth = 1.7;

/// Of a folder that is not there the dialog would take the last part for the name of a file.
QString madeFolder(const QString& folder) {
    return QDir().mkpath(folder) ? folder : QString();
}

void addLabel(QWidget& row, const QRect& place, const QString& text, const QString& styleSheet = {}) {
    auto* label = new QLabel(&row);
    label->setTextFormat(Qt::PlainText);
    label->setGeometry(place);
    label->setStyleSheet(styleSheet);
    label->setText(text);
}

QRadioButton* addButton(QWidget& row, const QRect& place, const QString& text, bool checked) {
    auto* button = new QRadioButton(text, &row);
    button->setGeometry(place.x(), place.y(), qMax(place.width(), button->sizeHint().width()), place.height());
    button->setChecked(checked);
    return button;
}

}  // namespace

GUI_CameraFileDialog::GUI_CameraFileDialog(ZebHost* host, QWidget* parent)
    : GUI_QFileDialog(host, parent, host->translate(TextKey("Device Open")), madeFolder(settingsFolder(*host))),
      m_titleIcon(QPixmap(QStringLiteral(":/is_titlebar.png")).copy(CameraInTitleBar)),
      m_checkLoadCamera(new QCheckBox(host->translate(TextKey("Load from camera")), this)),
      m_cameraList(new QListWidget(this)),
      m_okButton(new QPushButton(host->translate(TextKey("OK")), this)),
      m_cancelButton(new QPushButton(host->translate(TextKey("Cancel")), this)) {
    setNameFilters({host->translate(TextKey("rigx (*.rigx)")), host->translate(TextKey("All Files (* *.*)"))});
    setAcceptMode(QFileDialog::AcceptOpen);
    setFileMode(QFileDialog::ExistingFile);
    setDefaultSuffix(QStringLiteral("rigx"));
    // A name may begin with a dot.
    setFilter(filter() | QDir::Hidden);
    addPanel();
    guarded([this] { addRows(); });
    connect(m_checkLoadCamera, &QCheckBox::toggled, this, &GUI_CameraFileDialog::on_checkLoadCamera_change);
    connect(m_okButton, &QPushButton::clicked, this, &GUI_CameraFileDialog::on_ok_clicked);
    connect(m_cancelButton, &QPushButton::clicked, this, &GUI_CameraFileDialog::on_cancel_clicked);
}

void GUI_CameraFileDialog::addPanel() {
    constexpr int Columns = 3;
    constexpr int Most = 100;
    auto* cameraPanel = new QVBoxLayout;
    cameraPanel->addWidget(m_checkLoadCamera);
    cameraPanel->addWidget(m_cameraList, Most);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_okButton);
    buttonRow->addWidget(m_cancelButton);
    buttonRow->addStretch(6);
    auto* grid = qobject_cast<QGridLayout*>(layout());
    const int row = grid->rowCount();
    grid->addLayout(cameraPanel, row, 0, 1, Columns);
    grid->addLayout(buttonRow, row + 1, 0, 1, Columns);
    grid->setRowStretch(row, Most);
    m_cameraList->hide();
    m_okButton->hide();
    m_cancelButton->hide();
    m_checkLoadCamera->setEnabled(false);
}

void GUI_CameraFileDialog::addRows() {
    ZebDocManager& documents = host().docManager();
    GatheredFailures failures;
    for (DOC_Interface* doc : connectedDevices(documents, documents.getLiveDocKeys(0, 0), failures)) {
        attemptOn(*doc, failures, [&] { addRow(*doc); });
    }
    if (!failures.isEmpty()) {
        failures.log();
        host().errorHandler(ZebCycleFailure(failures.text().toStdString()));
    }
}

void GUI_CameraFileDialog::addRow(DOC_Interface& doc) {
    const DOC_Control& camera = doc.control();
    const zeb::CameraPresetInfo presets = camera.getCameraPresetInfo();
    const QString name = camera.getCameraName(1);
    const QString place = QStringLiteral("%1\t%2").arg(camera.getAddress(1), camera.getDeviceName(1));
    const bool locked = isDeviceLocked(doc);

    auto* row = new QWidget;
    addLabel(*row, {50, 3, 200, 20}, QFontMetrics(font()).elidedText(name.simplified(), Qt::ElideRight, NameWidth),
             QStringLiteral("QLabel { color : #428798; max-width: 142px;}"));
    addLabel(*row, {50, 25, 900, 20}, place);
    auto* icon = new QLabel(row);
    icon->setGeometry(12, 3, m_titleIcon.width(), m_titleIcon.height());
    icon->setPixmap(m_titleIcon);
    QList<QRadioButton*> buttons;
    for (int number = 1; number <= presets.count; ++number) {
        buttons << addButton(*row, {PresetsLeft + PresetStep * (number - 1), 0, 41, 26}, QString::number(number),
                             number == presets.current);
    }
    buttons << addButton(*row, {qMax(NoneLeft, PresetsLeft + PresetStep * presets.count), 0, 61, 26},
                         host().translate(TextKey("None")), presets.count == 0);
    for (QRadioButton* button : locked ? buttons : QList<QRadioButton*>()) {
        button->setEnabled(false);
        button->setToolTip(host().translate(TextKey("The camera is locked.")));
    }
    m_rowButtons.insert(doc.getKey(), buttons);

    auto* item = new QListWidgetItem(m_cameraList);
    item->setSizeHint(RowSize);
    m_cameraList->setItemWidget(item, row);
    m_checkLoadCamera->setEnabled(true);
}

void GUI_CameraFileDialog::on_checkLoadCamera_change(bool check) {
    logButton(QStringLiteral("checkLoadCamera"), QStringLiteral("toggled"),
              check ? QStringLiteral("ON") : QStringLiteral("OFF"));
    m_cameraList->setVisible(check);
    m_okButton->setVisible(check);
    m_cancelButton->setVisible(check);
    // What is Qt's has a name.
    for (QWidget* part : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!part->objectName().isEmpty()) {
            part->setEnabled(!check);
        }
    }
    QPushButton* open = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Open);
    (check ? m_okButton : open)->setDefault(true);
    // Beyond the screen nobody would reach the buttons.
    const int most = screen()->availableGeometry().height() - (frameGeometry().height() - height());
    resize(width(), qMin(most, int(check ? height() * PanelGrowth : height() / PanelGrowth)));
}

/// No exception may get into Qt's event loop.
template <typename Work>
void GUI_CameraFileDialog::guarded(Work&& work) {
    ZebHost& told = host();
    try {
        work();
    } catch (const std::exception& e) {
        logFailure([&] { told.errorHandler(e); });
    } catch (...) {
        logFailure([&] { told.errorHandler(std::runtime_error(currentFailureText().toStdString())); });
    }
}

template <typename Work>
void GUI_CameraFileDialog::end(Work&& work) {
    // In the event loops of the work the user can press once more.
    if (m_ending) {
        return;
    }
    m_ending = true;
    const QPointer<GUI_CameraFileDialog> here(this);
    guarded(work);
    if (here) {
        done(Accepted);
    }
}

/// Later: the field that took the key still works on it, and must not go under that with the dialog.
void GUI_CameraFileDialog::accept() {
    if (!std::exchange(m_accepting, true)) {
        QMetaObject::invokeMethod(this, &GUI_CameraFileDialog::takeName, Qt::QueuedConnection);
    }
}

void GUI_CameraFileDialog::takeName() {
    m_accepting = false;
    guarded([this] {
        auto* field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const QString name = field->text();
        if (!isGoodFileName(QFileInfo(name).fileName()) || !isGoodPath(name)) {
            host().alert(host().translate(TextKey("Invalid filename.")), this);
            return;
        }
        const QString path = QDir::cleanPath(pathOf(name));
        if (QFileInfo(path).isDir()) {
            setDirectory(path);
            field->clear();
        } else if (QFileInfo::exists(path)) {
            loadFile(path);
        } else {
            host().alert(host().translate(TextKey("%1 does not exist.")).arg(path), nullptr);
        }
    });
}

/// What is there is what is meant: Qt takes the name of a folder for that of a file without its suffix, and adds to the
/// files that are selected what it has met while the name was typed.
QString GUI_CameraFileDialog::pathOf(const QString& name) const {
    // Of a folder that is chosen in the list the field has no name.
    for (const QString& each :
         name.isEmpty() ? QStringList() : QStringList{name, QString(name % QLatin1Char('.') % defaultSuffix())}) {
        const QFileInfo typed(directory(), each);
        if (typed.exists()) {
            return typed.filePath();
        }
    }
    return selectedFiles().value(0, directory().path());
}

void GUI_CameraFileDialog::loadFile(const QString& path) {
    end([&] {
        rememberSettingsFolder(host(), directory().absolutePath());
        host().docManager().loadSettingsFile(path, 0, 0);
    });
}

void GUI_CameraFileDialog::on_ok_clicked() {
    logButton(QStringLiteral("okButton"), QStringLiteral("clicked"));
    end([this] {
        ZebHost& loading = host();
        DocumentGuard guard(loading, true);
        const PresetNumbers chosen = choices();
        if (acceptMode() == QFileDialog::AcceptOpen) {
            PresetLoad(loading).run(chosen);
        }
        guard.release();
    });
}

PresetNumbers GUI_CameraFileDialog::choices() const {
    PresetNumbers chosen;
    for (auto row = m_rowButtons.begin(); row != m_rowButtons.end(); ++row) {
        chosen.insert(row.key(), 0);
        for (const QRadioButton* button : row.value()) {
            if (button->isChecked() && button->isEnabled() && button != row.value().last()) {
                chosen.insert(row.key(), button->text().toInt());
            }
        }
    }
    return chosen;
}

void GUI_CameraFileDialog::on_cancel_clicked() {
    logButton(QStringLiteral("cancelButton"), QStringLiteral("clicked"));
    reject();
}
