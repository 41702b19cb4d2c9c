#include "MessageBoxes.h"

#include "BoxText.h"
#include "HostCalls.h"
#include "ModalRun.h"
#include "NoHastyPress.h"
#include "Style.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace {

constexpr int CornerMargin = 24;
/// Lines of a notice.
constexpr int MostNews = 12;

struct Looks {
    QLatin1String kind;
    QString title;
    QMessageBox::Icon icon;
};

Looks looksOf(Message::Kind kind) {
    switch (kind) {
        case Message::Info:
            return {QLatin1String("info"), TextKey("Information"), QMessageBox::Information};
        case Message::Warn:
            return {QLatin1String("warn"), TextKey("Warning"), QMessageBox::Warning};
        case Message::Alert:
            return {QLatin1String("alert"), TextKey("Alert"), QMessageBox::Critical};
        case Message::Confirm:
            return {QLatin1String("confirm"), TextKey("Confirmation"), QMessageBox::Question};
        case Message::Error:
            break;
    }
    return {QLatin1String("error"), TextKey("Error"), QMessageBox::Critical};
}

QMessageBox::StandardButtons buttonsOf(const Message& message) {
    if (message.kind != Message::Confirm) {
        return QMessageBox::Ok;
    }
    QMessageBox::StandardButtons buttons;
    for (auto button = message.buttons.keyBegin(); button != message.buttons.keyEnd(); ++button) {
        buttons |= static_cast<QMessageBox::StandardButton>(*button);
    }
    // Texts for one of the usual buttons leave the other as it is.
    if ((buttons & ~(QMessageBox::Ok | QMessageBox::Cancel)) == 0) {
        buttons = QMessageBox::Ok | QMessageBox::Cancel;
    }
    return buttons;
}

/// The one that leaves all as it is; none for a message that only tells.
QMessageBox::StandardButton refusalAmong(QMessageBox::StandardButtons buttons) {
    for (const auto refusal : {QMessageBox::Cancel, QMessageBox::No}) {
        if (buttons.testFlag(refusal)) {
            return refusal;
        }
    }
    return QMessageBox::NoButton;
}

/// The last of the news; what was told before them has been seen.
QString newest(const QString& whole) {
    const QStringList lines = whole.split(QLatin1Char('\n'));
    if (lines.size() <= MostNews) {
        return whole;
    }
    return QStringLiteral("…\n") % lines.mid(lines.size() - MostNews).join(QLatin1Char('\n'));
}

/// The least width of a style sheet would let the box cut a long text.
void showWhole(const QList<QAbstractButton*>& buttons) {
    for (QAbstractButton* button : buttons) {
        button->ensurePolished();
        button->setMinimumWidth(button->sizeHint().width());
    }
}

/// The upper right one of the screen: what people press while they record stands further down.
void moveToCorner(QWidget& notice) {
    const QRect screen = notice.screen()->availableGeometry();
    notice.move(screen.right() - notice.width() - CornerMargin, screen.top() + CornerMargin);
}

}  // namespace

MessageBoxes::~MessageBoxes() {
    delete m_notice;
}

void MessageBoxes::showHeld() {
    const QList<Message> held = std::exchange(m_held, {});
    for (Message message : held) {
        message.parent = m_host->getMainWindow();
        show(message);
    }
}

void MessageBoxes::rejectAll() {
    m_rejecting = true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* box = qobject_cast<QMessageBox*>(window); box && box->isVisible()) {
            box->reject();
        }
    }
}

Answer MessageBoxes::show(const Message& message) {
    if (m_rejecting) {
        return {false};
    }
    if (m_host == nullptr) {
        m_held << message;
        return {};
    }
    QMessageBox* box = makeBox(message);
    ModalRun run(box);
    run.exec();
    if (run.isGone()) {
        return {false};
    }
    QAbstractButton* chosen = box->clickedButton();
    const QMessageBox::ButtonRole role = chosen ? box->buttonRole(chosen) : QMessageBox::RejectRole;
    return {role == QMessageBox::AcceptRole || role == QMessageBox::YesRole,
            box->checkBox() != nullptr && box->checkBox()->isChecked(), chosen ? box->standardButton(chosen) : 0};
}

void MessageBoxes::notify(const Message& message) {
    if (m_rejecting || m_host == nullptr) {
        show(message);
        return;
    }
    if (m_notice && m_notice->isVisible()) {
        join(*m_notice, message);
        return;
    }
    Message alone = message;
    // As a window of the viewer it would be minimised with that.
    alone.parent = nullptr;
    m_notice = makeBox(alone);
    {
        const HostCalls::Own own;
        m_noticeStyle = styleName(*m_host);
    }
    m_notice->setModal(false);
    // The table, where people work on, would cover it, and the record key belongs to the table while that is active.
    m_notice->setWindowFlags(m_notice->windowFlags() | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    m_notice->setAttribute(Qt::WA_DeleteOnClose);
    m_notice->setAttribute(Qt::WA_ShowWithoutActivating);
    m_notice->show();
    moveToCorner(*m_notice);
}

/// The notice stays where the user has moved it.
void MessageBoxes::join(QMessageBox& notice, const Message& message) const {
    const QPoint corner = notice.frameGeometry().topRight();
    const QString whole = notice.property(TextProperty).toString() % QLatin1Char('\n') % message.text;
    setTexts(notice, whole, newest(whole));
    if (message.kind == Message::Error) {
        setKind(notice, message.kind);
    }
    notice.move(corner.x() - notice.frameGeometry().width() + 1, corner.y());
}

void MessageBoxes::followStyle() {
    if (!m_notice) {
        return;
    }
    const HostCalls::Own own;
    const QString style = styleName(*m_host);
    if (std::exchange(m_noticeStyle, style) != style) {
        applyMessageBoxStyle(*m_host, *m_notice);
    }
}

QMessageBox* MessageBoxes::makeBox(const Message& message) const {
    const HostCalls::Own own;
    const QString whole = (QStringList(message.text) << message.list).join(QLatin1Char('\n'));
    const QMessageBox::StandardButtons buttons = buttonsOf(message);
    auto* box = new QMessageBox(QMessageBox::NoIcon, {}, {}, buttons, message.parent);
    setKind(*box, message.kind);
    box->setTextFormat(Qt::PlainText);
    setTexts(*box, whole, whole);
    nameButtons(*box, message.buttons);
    const QMessageBox::StandardButton refusal = refusalAmong(buttons);
    box->setEscapeButton(refusal);
    box->setDefaultButton(message.preferred != 0 ? static_cast<QMessageBox::StandardButton>(message.preferred)
                                                 : refusal);
    if (message.offersSilence) {
        box->setCheckBox(new QCheckBox(translated(TextKey("Don't show again"))));
    }
    applyMessageBoxStyle(*m_host, *box);
    showWhole(box->buttons());
    new NoHastyPress(*box);
    return box;
}

void MessageBoxes::setKind(QMessageBox& box, Message::Kind kind) const {
    const Looks looks = looksOf(kind);
    box.setIcon(looks.icon);
    box.setWindowTitle(translated(looks.title));
    box.setProperty(KindProperty, QString(looks.kind));
}

void MessageBoxes::setTexts(QMessageBox& box, const QString& whole, const QString& shown) {
    const BoxText text = fitIntoBox(shown);
    box.setText(text.head);
    if (text.cut || shown != whole) {
        box.setDetailedText(whole);
    }
    box.setProperty(TextProperty, whole);
}

void MessageBoxes::nameButtons(QMessageBox& box, const ButtonTexts& texts) const {
    const QList<QAbstractButton*> buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        const int standard = box.standardButton(button);
        if (texts.contains(standard)) {
            button->setText(texts.value(standard));
        } else if (standard == QMessageBox::Ok) {
            button->setText(translated(TextKey("OK")));
        } else if (standard == QMessageBox::Cancel) {
            button->setText(translated(TextKey("Cancel")));
        }
    }
}

QString MessageBoxes::translated(const QString& text) const {
    return m_host->translate(text);
}
