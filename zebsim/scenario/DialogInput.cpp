#include "DialogInput.h"

#include "BoxButton.h"
#include "ScenarioError.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include <algorithm>

namespace {

bool tells(const QWidget& row, const QString& text) {
    const auto labels = row.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&text](const QLabel* label) {
        return label->text().split(QLatin1Char('\t')).contains(text) || label->toolTip() == text;
    });
}

QWidget& findRow(const QDialog& dialog, const QString& text) {
    const auto lists = dialog.findChildren<QListWidget*>();
    for (QListWidget* list : lists) {
        for (int i = 0; i < list->count(); ++i) {
            QWidget* row = list->itemWidget(list->item(i));
            if (row != nullptr && list->isVisible() && tells(*row, text)) {
                list->scrollToItem(list->item(i));
                return *row;
            }
        }
    }
    throw ScenarioError(QStringLiteral("no list of the dialog has a row \"%1\"").arg(text));
}

/// A check box or radio button takes a press on its mark and text only, not on all of its room.
QPoint spotOf(const QAbstractButton& button) {
    const bool marked = qobject_cast<const QCheckBox*>(&button) || qobject_cast<const QRadioButton*>(&button);
    const int mark = button.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &button);
    return marked ? QPoint(mark / 2, button.height() / 2) : button.rect().center();
}

}  // namespace

void pushButton(QDialog& dialog, const QString& text, const QString& row) {
    const QWidget& place = row.isEmpty() ? dialog : findRow(dialog, row);
    QStringList present;
    bool isGreyed = false;
    const auto buttons = place.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (!button->isVisible() || button->text().isEmpty()) {
            continue;
        }
        if (buttonText(*button) != text) {
            present.append(buttonText(*button));
        } else if (button->isEnabled()) {
            QTest::mouseClick(button, Qt::LeftButton, {}, spotOf(*button));
            return;
        } else {
            isGreyed = true;
        }
    }
    throw ScenarioError(
        isGreyed
            ? QStringLiteral("the button \"%1\" is greyed").arg(text)
            : QStringLiteral("the dialog has no button \"%1\", but %2").arg(text, present.join(QStringLiteral(", "))));
}
