#pragma once

#include "FileScripting.h"
#include "KeyboardReturn.h"
#include "ModalWatcher.h"
#include "PopupScripting.h"
#include "SaveScripting.h"

#include <QJSValue>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantList>

class QAbstractButton;
class QFileDialog;
class QMessageBox;
class QWebView;

/// What a scenario does with modal dialogs: functions that wait for one, and the answers to message boxes, which are
/// written down. GUI thread.
///
/// A message box is answered once the function that waited for it has returned.
class ScenarioDialogs : public QObject {
    Q_OBJECT

public:
    /// `folder` is the scenario's; empty: the program's.
    explicit ScenarioDialogs(const QString& folder = {});

    /// Runs `function` inside the next modal dialog, one function a dialog.
    void expect(const QJSValue& function);
    /// Texts of buttons, or their names ("ok", "cancel", "yes", "no"), for the message boxes to come. A box without
    /// an answer is accepted.
    void queueAnswers(const QStringList& answers);
    /// The orders for save dialogs, which come before the functions.
    SaveScripting& saves() { return m_saves; }
    /// The same for file dialogs. One that stands without an order is left, and counts as unanswerable.
    FileScripting& files() { return m_files; }
    /// The same for context menus.
    PopupScripting& popups() { return m_popups; }
    /// What the script does not answer is the user's: message boxes, file dialogs, context menus and notices stand.
    void leaveRestToUser();
    /// Notices stand as a user would see them until they are not to stand any more; or else each is closed at once.
    void letNoticesStand(bool stand);
    /// The boxes since the last call, each a map with `kind`, `text` and `answer`.
    QVariantList takeMessages();
    /// Functions, answers and orders that no dialog took, in words; empty when there are none.
    QString leftOver() const;
    /// The modal dialog that stands, and its page; throw `ScenarioError` when there is none.
    static QDialog& standing();
    static QWebView& pageOfStanding();

Q_SIGNALS:
    /// A function that waited for a dialog has thrown.
    void threw(const QJSValue& error);
    /// A message box had no button of the given answer, or a save or file dialog could not do as ordered.
    void unanswerable(const QString& text);

private:
    void dialogStands(QDialog* dialog);
    void runFunction();
    /// Serves a dialog as ordered.
    template <typename Orders, typename Dialog>
    void serve(Orders& orders, Dialog& dialog);
    void writeDown(QMessageBox& box);
    void answer(QMessageBox& box);

    ModalWatcher m_watcher;
    KeyboardReturn m_keyboardReturn;
    QList<QJSValue> m_functions;
    QStringList m_answers;
    SaveScripting m_saves;
    FileScripting m_files;
    PopupScripting m_popups;
    QVariantList m_messages;
    bool m_noticesStand = false;
    bool m_hasUser = false;
    QPointer<QMessageBox> m_notice;
};
