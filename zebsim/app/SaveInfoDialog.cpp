#include "SaveInfoDialog.h"

#include "DialogButtons.h"
#include "DrawnInformation.h"
#include "Preferences.h"
#include "UiText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>

#include <algorithm>

namespace {

/// Letters of an entry, with some room.
constexpr int LongestChoice = 14;

}  // namespace

SaveInfoDialog::SaveInfoDialog(Preferences& prefs, QWidget* parent) : QDialog(parent), m_prefs(prefs) {
    setWindowTitle(uiText("Information on images"));
    auto* form = new QFormLayout(this);
    for (int item = 0; item < DrawnInformation::itemNames().size(); ++item) {
        const QString& name = DrawnInformation::itemNames().at(item);
        auto* choice = new QComboBox(this);
        choice->setObjectName(name);
        choice->setMinimumContentsLength(LongestChoice);
        choice->addItem(uiText("Not drawn"));
        for (int line = 0; line < DrawnInformation::Lines; ++line) {
            choice->addItem(uiText("Line %1").arg(line + 1));
            const auto shown = DrawnInformation::lineOf(prefs.value(DrawnInformation::lineKey(line)).toString());
            if (std::find(shown.begin(), shown.end(), item) != shown.end()) {
                choice->setCurrentIndex(line + 1);
            }
        }
        form->addRow(uiText(name), choice);
        m_lines.append(choice);
    }
    form->addRow(addOkCancel(*this));
}

void SaveInfoDialog::accept() {
    for (int line = 0; line < DrawnInformation::Lines; ++line) {
        QStringList items;
        for (int item = 0; item < m_lines.size(); ++item) {
            const bool isIn = m_lines.at(item)->currentIndex() == line + 1;
            items << DrawnInformation::itemNames().at(item) % (isIn ? QStringLiteral(":1") : QStringLiteral(":0"));
        }
        m_prefs.setValue(DrawnInformation::lineKey(line), items.join(QLatin1Char(',')));
    }
    QDialog::accept();
}

TimeCodeDialog::TimeCodeDialog(Preferences& prefs, QWidget* parent)
    : QDialog(parent), m_prefs(prefs), m_form(new QComboBox(this)) {
    setWindowTitle(uiText("Time code"));
    m_form->setObjectName(QStringLiteral("form"));
    m_form->addItem(uiText("Seconds from the trigger"), QStringLiteral("seconds"));
    m_form->addItem(uiText("As on a clock, from the trigger"), QStringLiteral("clock"));
    m_form->setCurrentIndex(std::max(0, m_form->findData(prefs.value(QLatin1String(DrawnInformation::TimeFormKey)))));
    auto* form = new QFormLayout(this);
    form->addRow(uiText("Time"), m_form);
    form->addRow(addOkCancel(*this));
}

void TimeCodeDialog::accept() {
    m_prefs.setValue(QLatin1String(DrawnInformation::TimeFormKey), m_form->currentData());
    QDialog::accept();
}
