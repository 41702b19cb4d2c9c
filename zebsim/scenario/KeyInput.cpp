#include "KeyInput.h"

#include "EventWait.h"
#include "ScenarioError.h"

#include <QApplication>
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

/// A modal dialog that has just come up becomes active a moment later; nobody presses before that.
void awaitModal(const std::function<bool()>& stop) {
    QElapsedTimer asked;
    asked.start();
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) {
        return;
    }
    waitUntil([&] { return QApplication::activeWindow() == modal || QApplication::activeModalWidget() != modal; },
              [&] { return stop() || asked.hasExpired(ActivationMs); });
}

}  // namespace

void typeText(QWindow& window, const QString& text) {
    static const QHash<QChar, Qt::Key> keys = {{QLatin1Char('\n'), Qt::Key_Return},
                                               {QLatin1Char('\t'), Qt::Key_Tab},
                                               {QLatin1Char('\b'), Qt::Key_Backspace},
                                               {QLatin1Char('\x1b'), Qt::Key_Escape}};
    for (const QChar letter : text) {
        if (keys.contains(letter)) {
            QTest::keyClick(&window, keys.value(letter));
        } else if (letter.unicode() < 128) {
            QTest::keyClick(&window, letter.toLatin1());
        } else {
            QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        }
    }
}

void pressKey(const QString& name, int hold, const std::function<bool()>& stop) {
    const QKeySequence sequence(name, QKeySequence::PortableText);
    const int code = sequence[0];
    const int key = code & ~int(Qt::KeyboardModifierMask);
    if (sequence.count() != 1 || key == Qt::Key_unknown) {
        throw ScenarioError(QStringLiteral("there is no key ") % name);
    }
    const Qt::KeyboardModifiers modifiers(code & int(Qt::KeyboardModifierMask));
    awaitModal(stop);
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    if (window == nullptr) {
        throw ScenarioError(QStringLiteral("no window is active, so no key goes anywhere"));
    }
    const auto send = [&](bool press, bool repeated) {
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
