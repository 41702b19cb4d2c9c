#include "TableDriver.h"

#include "AccessibleTree.h"
#include "EventWait.h"
#include "KeyInput.h"
#include "ModalWatcher.h"
#include "PLG_Interface.h"
#include "PageInput.h"
#include "PageScript.h"
#include "PluginSlot.h"
#include "ScenarioError.h"
#include "Simulator.h"
#include "ViewerWindow.h"
#include "WholePicture.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>
#include <QWebView>
#include <QWindow>

#include <utility>

namespace {

constexpr int ActivationMs = 2000;
constexpr int LookMs = 60;
constexpr int MostLooks = 20;

}  // namespace

TableDriver::TableDriver(Simulator& simulator, std::function<bool()> stop)
    : m_simulator(simulator), m_givenUp(std::move(stop)) {}

bool TableDriver::open() {
    pressButton();
    if (dialog() == nullptr || !dialog()->isVisible()) {
        return false;
    }
    // An update has been asked for by now, and is owed until the page has loaded. A message that stood before the page
    // has let it pass. The page makes its tabs and the like when it stands.
    const PageScript loaded(
        QStringLiteral("document.URL !== 'about:blank' && document.readyState === 'complete' && "
                       "!(window.wrentabledialog_obj && wrentabledialog_obj.initialize)"));
    return waitUntil([&] { return isTrue(loaded) && !m_simulator.host().updates().isPending(); }, m_givenUp);
}

void TableDriver::pressButton() {
    if (m_simulator.plugin() == nullptr) {
        throw ScenarioError(QStringLiteral("no plug-in is loaded"));
    }
    ViewerWindow& viewer = m_simulator.window();
    const auto* button = viewer.findChild<QToolButton*>(m_simulator.plugin()->plugin().getName());
    const QPoint middle = button->mapTo(&viewer, button->rect().center());
    QTest::mouseClick(viewer.windowHandle(), Qt::LeftButton, {}, middle);
}

bool TableDriver::close() {
    shownDialog().close();
    settle();
    return !dialog()->isVisible();
}

QJsonValue TableDriver::page(const QString& text) {
    const QJsonValue value = PageScript(text).run(view());
    settle();
    return value;
}

bool TableDriver::isTrue(const PageScript& script) const {
    const QVariant value = script.run(view()).toVariant();
    // As in a script: an object is true whatever it holds.
    return value.canConvert<bool>() ? value.toBool() : value.isValid() && !value.isNull();
}

void TableDriver::click(const QString& selector, const ClickOptions& options) {
    PageInput(front(), m_givenUp).click(selector, options);
    settle();
}

void TableDriver::drag(const QString& from, const QString& to) {
    PageInput(front(), m_givenUp).drag(from, to);
    settle();
}

void TableDriver::choose(const QString& selector, const QString& value) {
    PageInput(front(), m_givenUp).choose(selector, value);
    settle();
}

void TableDriver::type(const QString& text) {
    typeText(keyWindow(), text);
    settle();
}

void TableDriver::paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&keyWindow(), Qt::Key_V, Qt::ControlModifier);
    settle();
}

void TableDriver::window(const QString& what) {
    QDialog& table = shownDialog();
    if (what == QLatin1String("minimise")) {
        table.showMinimized();
    } else if (what == QLatin1String("restore")) {
        table.showNormal();
    } else if (what == QLatin1String("activate")) {
        table.activateWindow();
    } else {
        place(what);
    }
    settle();
}

void TableDriver::place(const QString& geometry) {
    static const QRegularExpression pattern(QStringLiteral("^(-?\\d+),(-?\\d+),(\\d+),(\\d+)$"));
    const QRegularExpressionMatch numbers = pattern.match(geometry);
    if (!numbers.hasMatch()) {
        throw ScenarioError(
            QStringLiteral("zeb.window takes \"minimise\", \"restore\", \"activate\" or \"x,y,w,h\", not \"%1\"")
                .arg(geometry));
    }
    const auto number = [&](int group) { return numbers.captured(group).toInt(); };
    shownDialog().setGeometry(number(1), number(2), number(3), number(4));
}

QVariantMap TableDriver::accessible() const {
    QAccessible::setActive(true);
    return accessibleTree(*QAccessible::queryAccessibleInterface(&frontDialog()));
}

QString TableDriver::shot(const QString& path) {
    const QFileInfo file(path);
    QDir().mkpath(file.absolutePath());
    const QString reason = writeWholePicture(path, stillPicture());
    if (!reason.isEmpty()) {
        throw ScenarioError(QStringLiteral("%1: the picture can't be written: %2").arg(path, reason));
    }
    return file.absoluteFilePath();
}

QImage TableDriver::stillPicture() const {
    // The page asks for its pictures when it is first painted.
    QImage picture = shownDialog().grab().toImage();
    QImage before;
    for (int looks = 0; picture != before && looks < MostLooks; ++looks) {
        before = picture;
        letPass(LookMs, m_givenUp);
        picture = shownDialog().grab().toImage();
    }
    return picture;
}

void TableDriver::settle() {
    waitUntil([this] { return !m_simulator.host().updates().isQueued(); }, m_givenUp);
}

QDialog* TableDriver::dialog() const {
    return m_simulator.plugin() ? m_simulator.plugin()->plugin().getDialog(false) : nullptr;
}

QDialog& TableDriver::shownDialog() const {
    if (dialog() == nullptr || !dialog()->isVisible()) {
        throw ScenarioError(QStringLiteral("the table is not open"));
    }
    return *dialog();
}

QDialog& TableDriver::frontDialog() const {
    QDialog* modal = ModalWatcher::standing();
    return modal ? *modal : shownDialog();
}

QWindow& TableDriver::keyWindow() const {
    QDialog& target = frontDialog();
    // Keys go to the active window, which a dialog that has just come up is not yet.
    target.activateWindow();
    QElapsedTimer asked;
    asked.start();
    waitUntil([&] { return target.isActiveWindow(); }, [&] { return m_givenUp() || asked.hasExpired(ActivationMs); });
    return *target.windowHandle();
}

QWebView& TableDriver::front() const {
    QWebView* modal = ModalWatcher::standingPage();
    return modal ? *modal : view();
}

QWebView& TableDriver::view() const {
    // The page lives on behind a closed window.
    auto* found = dialog() ? dialog()->findChild<QWebView*>() : nullptr;
    if (found == nullptr) {
        throw ScenarioError(QStringLiteral("the table was never open"));
    }
    return *found;
}
