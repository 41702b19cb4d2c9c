#include "EthernetDialog.h"

#include "Camera.h"
#include "CameraBank.h"
#include "DialogButtons.h"
#include "Preferences.h"
#include "UiText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableWidget>

namespace {

const QString SearchKey = QStringLiteral("cameraconnection/SearchIP");

/// The first three numbers of an address; empty stands for no search.
bool isNetwork(const QString& text) {
    static const QRegularExpression octets(
        QStringLiteral("^((25[0-5]|2[0-4]\\d|1?\\d?\\d)\\.){2}(25[0-5]|2[0-4]\\d|1?\\d?\\d)$"));
    return text.isEmpty() || octets.match(text).hasMatch();
}

QString linkOf(const CameraState& state) {
    if (!state.connected) {
        return uiText("Not connected");
    }
    if (state.wifi) {
        return uiText("Connected by radio");
    }
    return state.slowLink ? uiText("Connected, slow link") : uiText("Connected");
}

}  // namespace

EthernetDialog::EthernetDialog(const CameraBank& cameras, Preferences& prefs, QWidget* parent)
    : QDialog(parent), m_prefs(prefs), m_search(new QLineEdit(prefs.value(SearchKey).toString(), this)) {
    setWindowTitle(uiText("Ethernet"));
    m_search->setObjectName(SearchKey);
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(makeTable(cameras));
    form->addRow(uiText("Search in the network"), m_search);
    form->addRow(addOkCancel(*this));
    m_search->setFocus();
}

QWidget* EthernetDialog::makeTable(const CameraBank& cameras) {
    const auto all = cameras.ofRig();
    auto* table = new QTableWidget(int(all.size()), 4, this);
    table->setObjectName(QStringLiteral("cameras"));
    table->setHorizontalHeaderLabels(
        {uiText("IP address"), uiText("Camera name"), uiText("Camera type"), uiText("Link")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    for (int row = 0; row < table->rowCount(); ++row) {
        const Camera& camera = *all[static_cast<std::size_t>(row)];
        const QStringList cells = {camera.device().address(), camera.name(), camera.model().name,
                                   linkOf(camera.state())};
        for (int column = 0; column < cells.size(); ++column) {
            table->setItem(row, column, new QTableWidgetItem(cells.at(column)));
        }
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setMinimumSize(80 * fontMetrics().averageCharWidth(), 16 * fontMetrics().height());
    return table;
}

void EthernetDialog::accept() {
    const QString network = m_search->text().trimmed();
    if (!isNetwork(network)) {
        m_search->setToolTip(uiText("Three numbers from 0 to 255 with dots between, as 192.168.0"));
        m_search->setStyleSheet(QStringLiteral("border: 2px solid #d03030;"));
        m_search->setFocus();
        return;
    }
    if (network != m_prefs.value(SearchKey).toString()) {
        m_prefs.setValue(SearchKey, network);
    }
    QDialog::accept();
}
