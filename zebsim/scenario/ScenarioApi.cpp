#include "ScenarioApi.h"

#include "AppWindows.h"
#include "DialogInput.h"
#include "EventWait.h"
#include "HostSignal.h"
#include "KeyInput.h"
#include "MenuInput.h"
#include "PageInput.h"
#include "PageScript.h"
#include "PluginSlot.h"
#include "ScenarioError.h"
#include "Simulator.h"
#include "ViewerWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJSEngine>

#include <utility>

namespace {

const QStringList& modeNames() {
    static const QStringList names = {QStringLiteral("live"), QStringLiteral("memory"), QStringLiteral("file")};
    return names;
}

void checkOptions(const QString& call, const QVariantMap& options, const QStringList& known) {
    for (auto option = options.keyBegin(); option != options.keyEnd(); ++option) {
        if (!known.contains(*option)) {
            throw ScenarioError(QStringLiteral("a %1 has no option %2").arg(call, *option));
        }
    }
}

ClickOptions clickOptions(const QVariantMap& members) {
    checkOptions(QStringLiteral("click"), members,
                 {QStringLiteral("ctrl"), QStringLiteral("shift"), QStringLiteral("double"), QStringLiteral("right"),
                  QStringLiteral("down")});
    ClickOptions options;
    options.modifiers.setFlag(Qt::ControlModifier, members.value(QStringLiteral("ctrl")).toBool());
    options.modifiers.setFlag(Qt::ShiftModifier, members.value(QStringLiteral("shift")).toBool());
    options.twice = members.value(QStringLiteral("double")).toBool();
    if (members.value(QStringLiteral("right")).toBool()) {
        options.button = Qt::RightButton;
    }
    const QVariant down = members.value(QStringLiteral("down"));
    if (down.isValid()) {
        options.part = down.toBool() ? ClickOptions::PressOnly : ClickOptions::ReleaseOnly;
    }
    return options;
}

}  // namespace

ScenarioApi::ScenarioApi(QJSEngine& engine, Simulator& simulator, const QString& folder, std::function<bool()> stop)
    : m_engine(engine),
      m_simulator(simulator),
      m_givenUp(std::move(stop)),
      m_cameras(simulator.host(), folder),
      m_hubs(simulator.host()),
      m_media(simulator.host(), folder),
      m_faults(simulator.host()),
      m_table(simulator, m_givenUp),
      m_dialogs(folder),
      m_logMark(simulator.log().count()),
      m_callMark(simulator.host().journal().count()) {}

template <typename Work>
auto ScenarioApi::guarded(Work work) -> decltype(work()) {
    try {
        if (m_givenUp()) {
            throw ScenarioError(QStringLiteral("the scenario was ended"));
        }
        return work();
    } catch (const std::exception& e) {
        m_engine.throwError(QString::fromUtf8(e.what()));
    }
    return decltype(work())();
}

QJSValue ScenarioApi::plain(const QVariant& value) {
    return m_engine.toScriptValue(value);
}

void ScenarioApi::rig(const QJSValue& pathOrCount) {
    guarded([&] {
        m_cameras.rig(pathOrCount);
        m_table.settle();
    });
}

QJSValue ScenarioApi::keys() {
    return guarded([&] { return plain(m_cameras.keys()); });
}

QJSValue ScenarioApi::camera(unsigned int key) {
    return guarded([&] {
        const QVariant state = m_cameras.camera(key);
        return state.isValid() ? plain(state) : QJSValue(QJSValue::NullValue);
    });
}

void ScenarioApi::setCamera(unsigned int key, const QVariantMap& members) {
    guarded([&] { m_cameras.setCamera(key, members); });
}

void ScenarioApi::reboot(unsigned int key) {
    guarded([&] { m_cameras.reboot(key); });
}

QJSValue ScenarioApi::hub(const QString& address) {
    return guarded([&] { return plain(m_hubs.hub(address)); });
}

void ScenarioApi::setHub(const QString& address, const QVariantMap& members) {
    guarded([&] { m_hubs.setHub(address, members); });
}

QJSValue ScenarioApi::medium(const QString& kind, const QVariantMap& members) {
    return guarded([&] {
        const QVariant medium = m_media.medium(kind, members);
        return medium.isValid() ? plain(medium) : QJSValue(QJSValue::NullValue);
    });
}

void ScenarioApi::fault(const QJSValue& target, const QString& operation, const QVariantMap& fault) {
    guarded([&] { m_faults.plant(target, operation, fault); });
}

void ScenarioApi::visa(const QVariantMap& members) {
    guarded([&] { m_visa.script(members); });
}

QJSValue ScenarioApi::visaCalls() {
    return guarded([&] { return plain(m_visa.takeCalls()); });
}

void ScenarioApi::visaRelease() {
    guarded([&] { m_visa.release(); });
}

bool ScenarioApi::open() {
    return guarded([&] { return m_table.open(); });
}

bool ScenarioApi::close() {
    return guarded([&] { return m_table.close(); });
}

QJSValue ScenarioApi::page(const QString& text) {
    return guarded([&] { return plain(m_table.page(text).toVariant()); });
}

QJSValue ScenarioApi::dialog(const QString& text) {
    return guarded([&] {
        const QVariant value = PageScript(text).run(ScenarioDialogs::pageOfStanding()).toVariant();
        m_table.settle();
        return plain(value);
    });
}

void ScenarioApi::click(const QString& selector, const QVariantMap& options) {
    guarded([&] { m_table.click(selector, clickOptions(options)); });
}

void ScenarioApi::drag(const QString& from, const QString& to) {
    guarded([&] { m_table.drag(from, to); });
}

void ScenarioApi::choose(const QString& selector, const QString& value) {
    guarded([&] { m_table.choose(selector, value); });
}

void ScenarioApi::type(const QString& text) {
    guarded([&] { m_table.type(text); });
}

void ScenarioApi::paste(const QString& text) {
    guarded([&] { m_table.paste(text); });
}

void ScenarioApi::key(const QString& name, const QVariantMap& options) {
    guarded([&] {
        checkOptions(QStringLiteral("key"), options, {QStringLiteral("hold")});
        pressKey(name, options.value(QStringLiteral("hold")).toInt(), m_givenUp);
        m_table.settle();
    });
}

void ScenarioApi::menu(const QString& path) {
    guarded([&] {
        chooseEntry(m_simulator.window(), path);
        m_table.settle();
    });
}

QString ScenarioApi::undo() {
    return guarded([&] {
        const QString step = m_simulator.host().undo().undo();
        m_table.settle();
        return step;
    });
}

QString ScenarioApi::redo() {
    return guarded([&] {
        const QString step = m_simulator.host().undo().redo();
        m_table.settle();
        return step;
    });
}

void ScenarioApi::addDevice() {
    guarded([&] {
        m_simulator.windows().addCamera();
        m_table.settle();
    });
}

QString ScenarioApi::active() {
    return activeTitle();
}

void ScenarioApi::window(const QString& what) {
    guarded([&] { m_table.window(what); });
}

QJSValue ScenarioApi::accessible() {
    return guarded([&] { return plain(m_table.accessible()); });
}

QString ScenarioApi::shot(const QString& path) {
    return guarded([&] { return m_table.shot(path); });
}

void ScenarioApi::wait(double ms) {
    guarded([&] {
        const qint64 end = m_simulator.clock().now() + qRound64(ms);
        waitUntil([&] { return m_simulator.clock().now() >= end; }, m_givenUp);
    });
}

bool ScenarioApi::until(const QString& text, double ms) {
    return guarded([&] {
        const qint64 end = m_simulator.clock().now() + qRound64(ms);
        const PageScript script(text);
        bool isTrue = false;
        waitUntil(
            [&] {
                isTrue = m_table.isTrue(script);
                return isTrue || m_simulator.clock().now() >= end;
            },
            m_givenUp);
        return isTrue;
    });
}

void ScenarioApi::speed(double factor) {
    guarded([&] {
        if (factor <= 0) {
            throw ScenarioError(QStringLiteral("the clock's speed must be above 0"));
        }
        m_simulator.clock().setSpeed(factor);
    });
}

void ScenarioApi::modal(const QJSValue& function) {
    guarded([&] { m_dialogs.expect(function); });
}

void ScenarioApi::answers(const QStringList& texts) {
    m_dialogs.queueAnswers(texts);
}

void ScenarioApi::save(const QVariantMap& target) {
    guarded([&] { m_dialogs.saves().order(target); });
}

QJSValue ScenarioApi::saved() {
    return guarded([&] { return plain(SaveScripting::results(m_givenUp, false)); });
}

QJSValue ScenarioApi::plan() {
    return guarded([&] { return plain(SaveScripting::plan()); });
}

QJSValue ScenarioApi::files(const QString& folder) {
    return guarded([&] { return plain(m_dialogs.files().list(folder)); });
}

QJSValue ScenarioApi::results() {
    return guarded([&] { return plain(SaveScripting::results(m_givenUp)); });
}

void ScenarioApi::file(const QJSValue& path) {
    guarded([&] {
        if (!path.isString() && !path.isNull()) {
            throw ScenarioError(QStringLiteral("zeb.file takes a path, or null to leave the dialog"));
        }
        m_dialogs.files().order(path.isNull() ? QString() : path.toString());
    });
}

QString ScenarioApi::readFile(const QString& path) {
    return guarded([&] { return m_dialogs.files().read(path); });
}

void ScenarioApi::writeFile(const QString& path, const QString& text) {
    guarded([&] { m_dialogs.files().write(path, text); });
}

QJSValue ScenarioApi::pixels(const QString& path) {
    return guarded([&] { return plain(m_dialogs.files().pixels(path)); });
}

void ScenarioApi::popup(const QJSValue& text) {
    m_dialogs.popups().order(text.isString() ? text.toString() : QString());
}

void ScenarioApi::push(const QString& text, const QString& row) {
    guarded([&] {
        pushButton(ScenarioDialogs::standing(), text, row);
        // What it brings about may come a turn later.
        letPass(1, m_givenUp);
    });
}

void ScenarioApi::notices(bool stand) {
    m_dialogs.letNoticesStand(stand);
}

QJSValue ScenarioApi::messages() {
    return plain(m_dialogs.takeMessages());
}

QJSValue ScenarioApi::log() {
    const quint64 mark = std::exchange(m_logMark, m_simulator.log().count());
    return plain(m_simulator.log().since(mark));
}

QJSValue ScenarioApi::calls() {
    const Journal& journal = m_simulator.host().journal();
    const quint64 mark = std::exchange(m_callMark, journal.count());
    return plain(journal.since(mark));
}

QString ScenarioApi::clipboard() {
    return QGuiApplication::clipboard()->text();
}

QString ScenarioApi::translate(const QString& text) {
    return m_simulator.host().translate(text);
}

QJSValue ScenarioApi::pref(const QString& key) {
    return plain(m_simulator.host().prefs().value(key));
}

void ScenarioApi::setPref(const QString& key, const QVariant& value) {
    m_simulator.host().prefs().setValue(key, value);
}

void ScenarioApi::status(const QString& name, bool on) {
    guarded([&] { m_simulator.host().flags().set(name, on); });
}

QString ScenarioApi::mode() {
    return modeNames().at(m_simulator.host().getOperatingMode());
}

void ScenarioApi::mode(const QString& name) {
    guarded([&] {
        const int mode = modeNames().indexOf(name);
        if (mode < 0) {
            throw ScenarioError(QStringLiteral("the modes are live, memory and file, not \"%1\"").arg(name));
        }
        m_simulator.host().appStatus().enterMode(mode);
        m_table.settle();
    });
}

void ScenarioApi::signal(const QString& name, const QString& argument) {
    guarded([&] {
        if (m_simulator.plugin() == nullptr) {
            throw ScenarioError(QStringLiteral("no plug-in is loaded"));
        }
        raiseHostSignal(m_simulator.plugin()->plugin(), name, argument, m_givenUp);
        m_table.settle();
    });
}
