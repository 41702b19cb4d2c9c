#include "MediumDialog.h"

#include "ByteText.h"
#include "DialogButtons.h"
#include "DialogRun.h"
#include "MediumKind.h"
#include "SimHost.h"
#include "UiText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <stdexcept>
#include <utility>

namespace {

constexpr int Width = 420;

template <typename Widget>
Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(QLatin1String(name));
    return widget;
}

}  // namespace

MediumDialog::MediumDialog(std::function<void(const RigMedium&)> putIn, QWidget* parent)
    : QDialog(parent),
      m_putIn(std::move(putIn)),
      m_kind(named(new QComboBox(this), "kind")),
      m_folder(named(new QLineEdit(this), "folder")),
      m_name(named(new QLineEdit(this), "name")),
      m_capacity(named(new QLineEdit(this), "capacity")),
      m_password(named(new QLineEdit(this), "password")),
      m_protected(named(new QCheckBox(uiText("Write protected"), this), "protected")),
      m_fault(named(new QLabel(this), "fault")) {
    setWindowTitle(uiText("Put in a medium"));
    for (const MediumKind& kind : mediumKinds()) {
        m_kind->addItem(uiText(kind.text), kind.kind);
    }
    m_capacity->setPlaceholderText(uiText("As 8 GB; empty: all of the disk"));
    m_password->setEchoMode(QLineEdit::Password);
    m_fault->setTextFormat(Qt::PlainText);
    m_fault->setWordWrap(true);
    auto* browse = named(new QPushButton(uiText("Browse..."), this), "browse");
    // Enter means OK.
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &MediumDialog::browse);
    auto* folder = new QHBoxLayout;
    folder->addWidget(m_folder);
    folder->addWidget(browse);
    auto* form = new QFormLayout(this);
    form->addRow(uiText("Medium"), m_kind);
    form->addRow(uiText("Folder"), folder);
    form->addRow(uiText("Name"), m_name);
    form->addRow(uiText("Capacity"), m_capacity);
    form->addRow(uiText("Password"), m_password);
    form->addRow(m_protected);
    form->addRow(m_fault);
    form->addRow(addOkCancel(*this));
    setTabOrder(m_folder, browse);
    setTabOrder(browse, m_name);
    setMinimumWidth(Width);
    m_folder->setFocus();
}

void MediumDialog::browse() {
    const QString folder = QFileDialog::getExistingDirectory(this, uiText("Select folder"), m_folder->text());
    if (!folder.isEmpty()) {
        m_folder->setText(QDir::toNativeSeparators(folder));
        m_name->setText(m_name->text().isEmpty() ? QDir(folder).dirName() : m_name->text());
    }
}

RigMedium MediumDialog::medium() const {
    RigMedium medium;
    medium.kind = m_kind->currentData().toInt();
    medium.name = m_name->text().trimmed();
    medium.folder = QDir::fromNativeSeparators(m_folder->text().trimmed());
    medium.password = m_password->text();
    medium.isProtected = m_protected->isChecked();
    if (!m_capacity->text().trimmed().isEmpty()) {
        medium.capacity = bytesOf(m_capacity->text()).value_or(0);
        if (medium.capacity <= 0) {
            throw std::runtime_error(uiText("The capacity is a size as 8 GB.").toStdString());
        }
    }
    if (!QDir::isAbsolutePath(medium.folder)) {
        throw std::runtime_error(uiText("The folder is a whole path.").toStdString());
    }
    return medium;
}

void MediumDialog::accept() {
    try {
        m_putIn(medium());
        QDialog::accept();
    } catch (const std::exception& e) {
        m_fault->setText(QString::fromUtf8(e.what()));
    }
}

void runMediumDialog(SimHost& host) {
    const auto putIn = [&host](const RigMedium& medium) {
        try {
            host.shelf().putIn(medium);
        } catch (const std::exception& e) {
            throw std::runtime_error(host.messages().translated(QString::fromUtf8(e.what())).toStdString());
        }
    };
    runDialog(host, new MediumDialog(putIn, host.getMainWindow()));
}
