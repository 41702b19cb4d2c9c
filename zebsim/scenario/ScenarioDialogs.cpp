#include "ScenarioDialogs.h"

#include "BoxButton.h"
#include "MessageBoxes.h"
#include "PlanDialog.h"
#include "ScenarioError.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWebView>

#include <utility>

namespace {

QString kindOf(const QMessageBox& box) {
    const QVariant kind = box.property(MessageBoxes::KindProperty);
    if (kind.isValid()) {
        return kind.toString();
    }
    // One of the plug-in's own.
    return box.icon() == QMessageBox::Warning ? QStringLiteral("warn") : QStringLiteral("info");
}

QString textOf(const QMessageBox& box) {
    const QVariant text = box.property(MessageBoxes::TextProperty);
    return text.isValid() ? text.toString() : box.text();
}

}  // namespace

ScenarioDialogs::ScenarioDialogs(const QString& folder) : m_files(folder) {
    connect(&m_watcher, &ModalWatcher::stands, this, &ScenarioDialogs::dialogStands);
    connect(&m_popups, &PopupScripting::unanswerable, this, &ScenarioDialogs::unanswerable);
    connect(&m_watcher, &ModalWatcher::noticed, this, [this](QMessageBox* box) {
        writeDown(*box);
        m_notice = box;
        if (!m_noticesStand) {
            box->accept();
        }
    });
}

void ScenarioDialogs::leaveRestToUser() {
    m_hasUser = true;
    m_noticesStand = true;
    m_popups.leaveRestToUser();
}

void ScenarioDialogs::letNoticesStand(bool stand) {
    m_noticesStand = stand;
    if (!stand && m_notice) {
        m_notice->accept();
    }
}

void ScenarioDialogs::expect(const QJSValue& function) {
    if (!function.isCallable()) {
        throw ScenarioError(QStringLiteral("zeb.modal takes a function"));
    }
    m_functions.append(function);
}

void ScenarioDialogs::queueAnswers(const QStringList& answers) {
    m_answers += answers;
}

QVariantList ScenarioDialogs::takeMessages() {
    return std::exchange(m_messages, {});
}

QString ScenarioDialogs::leftOver() const {
    if (!m_functions.isEmpty()) {
        return QStringLiteral("a function still waits for a modal dialog");
    }
    if (!m_answers.isEmpty()) {
        return QStringLiteral("no box took the answer ") % m_answers.join(QLatin1String(", "));
    }
    if (m_saves.isOrderLeft()) {
        return QStringLiteral("no save dialog took an order");
    }
    if (m_files.isOrderLeft()) {
        return QStringLiteral("no file dialog took a zeb.file");
    }
    if (m_popups.isOrderLeft()) {
        return QStringLiteral("no context menu took a zeb.popup");
    }
    return {};
}

QDialog& ScenarioDialogs::standing() {
    QDialog* dialog = ModalWatcher::standing();
    if (dialog == nullptr) {
        throw ScenarioError(QStringLiteral("no modal dialog stands"));
    }
    return *dialog;
}

QWebView& ScenarioDialogs::pageOfStanding() {
    QWebView* view = ModalWatcher::standingPage();
    if (view == nullptr) {
        throw ScenarioError(QStringLiteral("no modal dialog with a page stands"));
    }
    return *view;
}

void ScenarioDialogs::dialogStands(QDialog* dialog) {
    if (m_saves.isFor(*dialog)) {
        const QPointer<QDialog> standing(dialog);
        if (qobject_cast<PlanDialog*>(dialog) != nullptr) {
            runFunction();
        }
        if (standing && standing->isVisible()) {
            serve(m_saves, *dialog);
        }
        return;
    }
    const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(dialog);
    const QPointer<QFileDialog> files = qobject_cast<QFileDialog*>(dialog);
    if (box) {
        writeDown(*box);
    }
    // An order comes before the functions.
    if (!files || !m_files.isOrderLeft()) {
        runFunction();
    }
    // The function may have answered the dialog itself.
    if (box && box->isVisible() && !(m_hasUser && m_answers.isEmpty())) {
        answer(*box);
    } else if (files && files->isVisible() && !(m_hasUser && !m_files.isOrderLeft())) {
        serve(m_files, *files);
    }
}

void ScenarioDialogs::runFunction() {
    if (m_functions.isEmpty()) {
        return;
    }
    const QJSValue result = m_functions.takeFirst().call();
    if (result.isError()) {
        Q_EMIT threw(result);
    }
}

template <typename Orders, typename Dialog>
void ScenarioDialogs::serve(Orders& orders, Dialog& dialog) {
    try {
        orders.serve(dialog);
    } catch (const ScenarioError& e) {
        Q_EMIT unanswerable(e.text());
    }
}

void ScenarioDialogs::writeDown(QMessageBox& box) {
    connect(&box, &QDialog::finished, this, [this, &box] {
        const QAbstractButton* chosen = box.clickedButton();
        m_messages << QVariantMap{{QStringLiteral("kind"), kindOf(box)},
                                  {QStringLiteral("text"), textOf(box)},
                                  {QStringLiteral("answer"), chosen ? buttonText(*chosen) : QString()}};
    });
}

void ScenarioDialogs::answer(QMessageBox& box) {
    const QString wanted = m_answers.isEmpty() ? QString() : m_answers.takeFirst();
    QAbstractButton* button = findButton(box, wanted);
    if (button == nullptr) {
        Q_EMIT unanswerable(QStringLiteral("the box \"%1\" has no button \"%2\"").arg(textOf(box), wanted));
        button = findButton(box, {});
    }
    button->click();
}
