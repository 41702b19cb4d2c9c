#include "TargetFields.h"

#include "Preferences.h"
#include "SaveFormat.h"
#include "UiText.h"
#include "VideoEncoder.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>

namespace {

QString labelOf(const SaveFormat& format) {
    return format.isVideo() ? uiText("Video (MP4)") : format.id.toUpper();
}

/// What there must be for files of that format; empty when there is.
QString missingFor(const SaveFormat& format) {
    if (!format.isVideo()) {
        return {};
    }
    const VideoEncoder& encoder = VideoEncoder::installed();
    if (encoder.program.isEmpty()) {
        return uiText("Video needs the program ffmpeg, which is not installed.");
    }
    return encoder.isUsable() ? QString() : uiText("The installed ffmpeg has no encoder for MP4.");
}

}  // namespace

TargetFields::TargetFields(Preferences& prefs, const QString& family, bool withVideo, QWidget* parent)
    : QWidget(parent), m_prefs(prefs), m_family(family), m_folder(new QLineEdit(this)), m_format(new QComboBox(this)) {
    m_folder->setObjectName(QStringLiteral("folder"));
    m_format->setObjectName(QStringLiteral("format"));
    setFocusProxy(m_folder);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(uiText("Folder"), makeFolder(prefs.value(family % QStringLiteral("dir")).toString()));
    form->addRow(uiText("Format"), m_format);
    const QString missing = addFormats(withVideo);
    if (!missing.isEmpty()) {
        form->addRow(new QLabel(missing, this));
    }
    chooseFormat(prefs.value(family % QStringLiteral("format")).toString());
}

QWidget* TargetFields::makeFolder(const QString& folder) {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    setFolder(folder);
    m_folder->setMinimumWidth(50 * fontMetrics().averageCharWidth());
    layout->addWidget(m_folder);
    auto* button = new QPushButton(uiText("Browse..."), row);
    button->setAutoDefault(false);
    layout->addWidget(button);
    connect(m_folder, &QLineEdit::textChanged, this, &TargetFields::changed);
    connect(button, &QPushButton::clicked, this, &TargetFields::browse);
    return row;
}

/// Answers what the disabled ones lack.
QString TargetFields::addFormats(bool withVideo) {
    QStringList lacks;
    const auto* model = qobject_cast<QStandardItemModel*>(m_format->model());
    for (const SaveFormat& format : saveFormats()) {
        if (format.isVideo() && !withVideo) {
            continue;
        }
        m_format->addItem(labelOf(format), format.id);
        const QString missing = missingFor(format);
        if (missing.isEmpty()) {
            continue;
        }
        model->item(m_format->count() - 1)->setEnabled(false);
        lacks << missing;
    }
    return lacks.join(QLatin1Char('\n'));
}

void TargetFields::chooseFormat(const QString& id) {
    // It may have been stored under an older name.
    const int index = m_format->findData(saveFormat(id).id);
    const bool isThere = index >= 0 && (m_format->model()->index(index, 0).flags() & Qt::ItemIsEnabled);
    m_format->setCurrentIndex(isThere ? index : 0);
}

void TargetFields::browse() {
    const QString folder = QFileDialog::getExistingDirectory(this, uiText("Folder"), m_folder->text());
    if (!folder.isEmpty()) {
        setFolder(folder);
    }
}

bool TargetFields::isComplete() const {
    return !folder().isEmpty();
}

QString TargetFields::folder() const {
    QString folder = QDir::fromNativeSeparators(m_folder->text().trimmed());
    if (folder == QLatin1String("~") || folder.startsWith(QLatin1String("~/"))) {
        folder.replace(0, 1, QDir::homePath());
    }
    return folder;
}

void TargetFields::setFolder(const QString& folder) {
    m_folder->setText(QDir::toNativeSeparators(folder));
}

QHash<QString, QVariant> TargetFields::typed() const {
    return {{m_family % QStringLiteral("dir"), isComplete() ? QDir(folder()).absolutePath() : QString()},
            {m_family % QStringLiteral("format"), m_format->currentData()}};
}

void TargetFields::store() {
    const QHash<QString, QVariant> values = typed();
    for (auto value = values.begin(); value != values.end(); ++value) {
        m_prefs.setValue(value.key(), *value);
    }
}
