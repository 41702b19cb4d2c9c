#pragma once

#include <QDialog>
#include <QVariant>

#include <functional>

class Preferences;
class QFormLayout;
class QListWidget;
class QStackedWidget;
struct PreferenceField;
struct PreferencePage;

/// The user's preferences, a page a topic. OK stores what was changed and nothing else; Cancel stores nothing.
class PreferencesDialog : public QDialog {
    Q_OBJECT

public:
    /// `prefs` must outlive the dialog.
    PreferencesDialog(Preferences& prefs, QWidget* parent);

    /// `page` is a page's id or its title; any other leaves the dialog where it is.
    void openAt(const QString& page);

    void accept() override;

private:
    /// Answers the value that an editor shows.
    using Reader = std::function<QVariant()>;
    struct Editor {
        QString key;
        QVariant before;
        Reader value;
    };

    QWidget* makePage(const PreferencePage& page);
    void addEditor(QFormLayout& form, const PreferenceField& field);
    QWidget* makeEditor(const PreferenceField& field, const QVariant& value, Reader& reader);

    Preferences& m_prefs;
    QListWidget* m_titles;
    QStackedWidget* m_pages;
    QList<Editor> m_editors;
};
