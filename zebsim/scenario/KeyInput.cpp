#include "KeyInput.h"

#include "EventWait.h"
#include "ScenarioError.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QElapsedTimer>
#include <QHash>
#include <QKeySequence>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

// As a keyboard's usual setting.
constexpr int RepeatAfterMs = 500;
constexpr int RepeatEachMs = 33;
constexpr int ActivationMs = 2000;

/// What a key writes; nothing for one that does not.
QString textOf(int key, Qt::KeyboardModifiers modifiers) {
    if (key > 0x7f || (modifiers & ~Qt::ShiftModifier) != 0) {
        return {};
    }
    const QChar letter(key);
    return modifiers.testFlag(Qt::ShiftModifier) ? letter : letter.toLower();
}

/// What a keyboard sends when that key goes down.
int keyOf(int key, Qt::KeyboardModifiers modifiers) {
    return key == Qt::Key_Tab && modifiers.testFlag(Qt::ShiftModifier) ? int(Qt::Key_Backtab) : key;
}

/// As the window system does for the menu key.
void askForMenu(QWindow& window, Qt::KeyboardModifiers modifiers) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, window.mapFromGlobal(QCursor::pos()), QCursor::pos(),
                            modifiers);
    QCoreApplication::sendEvent(&window, &event);
}

/// A dialog that has just come up becomes active a moment later, and so does the window behind one that has gone;
/// nobody presses before that.
void awaitActivation(const std::function<bool()>& stop) {
    QElapsedTimer asked;
    asked.start();
    const auto isSettled = [] {
        const QWidget* active = QApplication::activeWindow();
        const QWidget* modal = QApplication::activeModalWidget();
        return active != nullptr && (modal == nullptr || active == modal);
    };
    waitUntil(isSettled, [&] { return stop() || asked.hasExpired(ActivationMs); });
}

}  // namespace

void typeText(QWindow& window, const QString& text) {
    static const QHash<QChar, Qt::Key> keys = {{QLatin1Char('\n'), Qt::Key_Return},
                                               {QLatin1Char('\t'), Qt::Key_Tab},
                                               {QLatin1Char('\b'), Qt::Key_Backspace},
                                               {QLatin1Char('\x1b'), Qt::Key_Escape}};
    for (const QChar letter : text) {
        if (letter.category() == QChar::Other_Control && !keys.contains(letter)) {
            throw ScenarioError(QStringLiteral("no key types U+%1; zeb.key presses one by its name, as 'Delete'")
                                    .arg(QString::number(letter.unicode(), 16).toUpper(), 4, QLatin1Char('0')));
        }
    }
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (keys.contains(letter)) {
            QTest::keyClick(&window, keys.value(letter));
        } else if (letter.unicode() < 128) {
            QTest::keyClick(&window, letter.toLatin1());
        } else {
            const int halves = letter.isHighSurrogate() ? 2 : 1;
            QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, text.mid(i, halves), Qt::NoModifier);
            i += halves - 1;
        }
    }
}

void pressKey(const QString& name, int hold, const std::function<bool()>& stop) {
    const QKeySequence sequence(name, QKeySequence::PortableText);
    const int code = sequence[0];
    const Qt::KeyboardModifiers modifiers(code & int(Qt::KeyboardModifierMask));
    const int key = keyOf(code & ~int(Qt::KeyboardModifierMask), modifiers);
    if (sequence.count() != 1 || key == Qt::Key_unknown) {
        throw ScenarioError(QStringLiteral("there is no key ") % name);
    }
    awaitActivation(stop);
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    if (window == nullptr) {
        throw ScenarioError(QStringLiteral("no window is active, so no key goes anywhere"));
    }
    const auto send = [&](bool press, bool repeated) {
        if (window && press && key == Qt::Key_Menu) {
            askForMenu(*window, modifiers);
        }
        // The key's work may have closed the window.
        if (window) {
            QTest::simulateEvent(window, press, key, modifiers, textOf(key, modifiers), repeated);
        }
    };
    send(true, false);
    QElapsedTimer held;
    held.start();
    for (int wait = RepeatAfterMs; held.elapsed() + wait < hold && !stop(); wait = RepeatEachMs) {
        letPass(wait, stop);
        send(false, true);
        send(true, true);
    }
    if (held.elapsed() < hold) {
        letPass(int(hold - held.elapsed()), stop);
    }
    send(false, false);
}

QString activeTitle() {
    const QWidget* window = QApplication::activeWindow();
    return window ? window->windowTitle() : QString();
}
