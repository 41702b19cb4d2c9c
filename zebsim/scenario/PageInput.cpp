#include "PageInput.h"

#include "EventWait.h"
#include "PageScript.h"
#include "ScenarioError.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWebView>
#include <QWindow>

#include <utility>

namespace {

// A table takes up a column only when the button has been held for a moment.
constexpr int DragHoldMs = 400;
constexpr int DragSteps = 8;
// Nobody presses in the moment in which he sees something; what the page has on the way by then, comes first.
constexpr int ReactionMs = 40;
// What lies over an element may be a message that fades away.
constexpr int CoveredMs = 2000;

// Looks for an element as a person with a mouse does. Answers {x, y} of its middle; {again: true} when something was
// scrolled and the page has to be looked at anew; or {fault: text}. What is not there is searched for: step 1
// scrolls everything to its top, each further step one screen down, for a table has elements for its visible rows
// only.
const QString Look = QStringLiteral(R"js((function (selector, step) {
    function boxes() {
        return Array.prototype.filter.call(document.querySelectorAll('body *'), function (box) {
            var overflow = getComputedStyle(box).overflowY;
            return (overflow === 'auto' || overflow === 'scroll') && box.scrollHeight > box.clientHeight + 1;
        });
    }
    function search() {
        return boxes().filter(function (box) {
            var before = box.scrollTop;
            box.scrollTop = step === 1 ? 0 : before + box.clientHeight;
            return step === 1 || box.scrollTop !== before;
        }).length > 0;
    }
    function describe(element) {
        return element ? element.tagName.toLowerCase() + (element.id && '#' + element.id) +
            (element.className && '.' + element.className.split(' ').join('.')) : 'nothing';
    }
    var element = document.querySelector(selector);
    if (!element) {
        return step === 0 || search() ? {again: true} : {fault: 'there is no such element'};
    }
    var rect = element.getBoundingClientRect();
    if (rect.width === 0 || rect.height === 0) {
        return {fault: 'the element is not shown'};
    }
    var x = Math.floor(rect.left + rect.width / 2), y = Math.floor(rect.top + rect.height / 2);
    var hit = document.elementFromPoint(x, y);
    var passes = getComputedStyle(element).pointerEvents === 'none';
    if (hit && (element.contains(hit) || (passes && hit.contains(element)))) {
        return {x: x, y: y};
    }
    element.scrollIntoViewIfNeeded(true);
    var moved = element.getBoundingClientRect();
    return moved.top !== rect.top || moved.left !== rect.left ? {again: true}
        : {fault: 'the element lies under ' + describe(hit), covered: true};
})(%1, %2))js");

// What the open list offers: {at, native} of the wanted entry, from 0 on, or {offers}.
const QString FindEntry = QStringLiteral(R"js((function (selector, value) {
    var box = document.querySelector('.SumoSelect.open') || document.querySelector(selector);
    var entries = Array.prototype.slice.call(box.querySelectorAll('option'));
    var at = entries.findIndex(function (entry) { return entry.value === value || entry.textContent === value; });
    return at < 0 ? {offers: entries.map(function (entry) { return entry.textContent; }).join(', ')}
        : {at: at, native: box.tagName === 'SELECT'};
})(%1, %2))js");

/// In the list that a native one of the page has opened beside it.
void chooseInPopup(const QString& selector, int row) {
    QWidget* popup = QApplication::activePopupWidget();
    auto* list = popup ? popup->findChild<QAbstractItemView*>() : nullptr;
    if (list == nullptr) {
        throw ScenarioError(selector % QStringLiteral(": no list has opened"));
    }
    list->setCurrentIndex(list->model()->index(row, 0));
    QTest::keyClick(list, Qt::Key_Return);
}

const QString StartTurn = QStringLiteral(
    "window.zebTurned = false; setTimeout(function () { setTimeout(function () { window.zebTurned = true; }, 0); }, "
    "0)");

}  // namespace

PageInput::PageInput(QWebView& page, std::function<bool()> stop) : m_view(page), m_givenUp(std::move(stop)) {}

void PageInput::click(const QString& selector, const ClickOptions& options) {
    const QPoint at = aim(selector);
    if (options.twice) {
        QTest::mouseDClick(&window(), options.button, options.modifiers, at);
    } else if (options.part == ClickOptions::PressOnly) {
        QTest::mousePress(&window(), options.button, options.modifiers, at);
    } else if (options.part == ClickOptions::ReleaseOnly) {
        QTest::mouseRelease(&window(), options.button, options.modifiers, at);
    } else {
        QTest::mouseClick(&window(), options.button, options.modifiers, at);
    }
}

void PageInput::drag(const QString& from, const QString& to) {
    const QPoint end = locate(to);
    const QPoint start = aim(from);
    QTest::mousePress(&window(), Qt::LeftButton, {}, start);
    letPass(DragHoldMs, m_givenUp);
    for (int step = 1; step <= DragSteps; ++step) {
        QTest::mouseMove(&window(), start + (end - start) * step / DragSteps);
    }
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, end);
}

void PageInput::choose(const QString& selector, const QString& value) {
    click(selector, {});
    const QString script = FindEntry.arg(scriptString(selector), scriptString(value));
    const QJsonObject entry = PageScript(script).run(m_view).toObject();
    if (!entry.contains(QLatin1String("at"))) {
        throw ScenarioError(QStringLiteral("%1 offers no \"%2\" but: %3")
                                .arg(selector, value, entry.value(QLatin1String("offers")).toString()));
    }
    const int at = entry.value(QLatin1String("at")).toInt();
    if (!entry.value(QLatin1String("native")).toBool()) {
        click(QStringLiteral(".SumoSelect.open .options li:nth-child(%1)").arg(at + 1), {});
        return;
    }
    chooseInPopup(selector, at);
    // The page hears of it from its event loop.
    const PageScript chosen(QStringLiteral("document.querySelector(%1).selectedIndex").arg(scriptString(selector)));
    waitUntil([&] { return chosen.run(m_view).toInt() == at; }, m_givenUp);
}

QPoint PageInput::aim(const QString& selector) {
    QPoint at = locate(selector);
    for (QPoint before(-1, -1); at != before; at = locate(selector)) {
        before = at;
        QTest::mouseMove(&window(), at);
        letPass(ReactionMs, m_givenUp);
    }
    return at;
}

QPoint PageInput::locate(const QString& selector) {
    QElapsedTimer covered;
    for (int step = 0;; ++step) {
        const QJsonObject seen = look(selector, step);
        if (seen.contains(QLatin1String("x"))) {
            const QPoint inView(seen.value(QLatin1String("x")).toInt(), seen.value(QLatin1String("y")).toInt());
            return m_view.mapTo(m_view.window(), inView);
        }
        const bool isCovered = seen.value(QLatin1String("covered")).toBool();
        if (isCovered && !covered.isValid()) {
            covered.start();
        }
        if (seen.contains(QLatin1String("fault")) && !(isCovered && !covered.hasExpired(CoveredMs))) {
            throw ScenarioError(selector % QLatin1String(": ") % seen.value(QLatin1String("fault")).toString());
        }
        turn(selector);
    }
}

QJsonObject PageInput::look(const QString& selector, int step) {
    const QString script = QString(Look)
                               .replace(QLatin1String("%1"), scriptString(selector))
                               .replace(QLatin1String("%2"), QString::number(step));
    return PageScript(script).run(m_view).toObject();
}

/// A scroll reaches the page's handlers from its event loop, and they may draw what was looked for.
void PageInput::turn(const QString& selector) {
    PageScript(StartTurn).run(m_view);
    const PageScript hasTurned(QStringLiteral("window.zebTurned"));
    const auto turned = [&] { return hasTurned.run(m_view).toBool(); };
    if (!waitUntil(turned, m_givenUp) || m_givenUp()) {
        throw ScenarioError(selector % QStringLiteral(": given up"));
    }
}

QWindow& PageInput::window() const {
    QWindow* handle = m_view.window()->windowHandle();
    if (handle == nullptr || !m_view.isVisible()) {
        throw ScenarioError(QStringLiteral("the page is not on the screen"));
    }
    return *handle;
}
