#include "PreferencesDialog.h"

#include "DialogButtons.h"
#include "PreferencePages.h"
#include "Preferences.h"
#include "UiText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QStackedWidget>

PreferencesDialog::PreferencesDialog(Preferences& prefs, QWidget* parent)
    : QDialog(parent), m_prefs(prefs), m_titles(new QListWidget(this)), m_pages(new QStackedWidget(this)) {
    setWindowTitle(uiText("Preferences"));
    m_titles->setObjectName(QStringLiteral("pages"));
    for (const PreferencePage& page : preferencePages()) {
        m_titles->addItem(uiText(page.id));
        m_pages->addWidget(makePage(page));
    }
    connect(m_titles, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_titles->setCurrentRow(0);
    m_titles->setFixedWidth(m_titles->sizeHintForColumn(0) + 4 * fontMetrics().averageCharWidth());
    auto* layout = new QGridLayout(this);
    layout->addWidget(m_titles, 0, 0);
    layout->addWidget(m_pages, 0, 1);
    layout->addWidget(addOkCancel(*this), 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
}

void PreferencesDialog::openAt(const QString& page) {
    for (int i = 0; i < preferencePages().size(); ++i) {
        const bool isWanted = page == preferencePages().at(i).id || page == m_titles->item(i)->text();
        if (isWanted) {
            m_titles->setCurrentRow(i);
        }
    }
}

QWidget* PreferencesDialog::makePage(const PreferencePage& page) {
    auto* widget = new QWidget(m_pages);
    auto* form = new QFormLayout(widget);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const PreferenceField& field : page.fields) {
        addEditor(*form, field);
    }
    return widget;
}

void PreferencesDialog::addEditor(QFormLayout& form, const PreferenceField& field) {
    const QVariant value = m_prefs.value(field.key);
    Reader reader;
    QWidget* editor = makeEditor(field, value, reader);
    editor->setObjectName(field.key);
    m_editors.append({field.key, reader(), reader});
    if (auto* box = qobject_cast<QCheckBox*>(editor)) {
        box->setText(uiText(field.label));
        form.addRow(box);
    } else {
        form.addRow(uiText(field.label), editor);
    }
}

QWidget* PreferencesDialog::makeEditor(const PreferenceField& field, const QVariant& value, Reader& reader) {
    switch (field.editor) {
        case PreferenceField::Box: {
            auto* box = new QCheckBox(this);
            box->setChecked(value.toBool());
            reader = [box] { return box->isChecked(); };
            return box;
        }
        case PreferenceField::Number: {
            auto* box = new QSpinBox(this);
            box->setRange(field.lowest, field.highest);
            box->setValue(value.toInt());
            reader = [box] { return box->value(); };
            return box;
        }
        case PreferenceField::Text: {
            auto* text = new QLineEdit(value.toString(), this);
            reader = [text] { return text->text().trimmed(); };
            return text;
        }
        case PreferenceField::Choice:
            break;
    }
    auto* box = new QComboBox(this);
    for (const PreferenceChoice& choice : field.choices) {
        box->addItem(uiText(choice.label), choice.value);
    }
    box->setCurrentIndex(box->findData(value));
    reader = [box] { return box->currentData(); };
    return box;
}

void PreferencesDialog::accept() {
    for (const Editor& editor : qAsConst(m_editors)) {
        const QVariant value = editor.value();
        // A value that none of the choices stands for stays unless the user has made a choice.
        if (value != editor.before) {
            m_prefs.setValue(editor.key, value);
        }
    }
    QDialog::accept();
}
