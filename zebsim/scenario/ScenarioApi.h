#pragma once

#include "CameraScripting.h"
#include "FaultScripting.h"
#include "HubScripting.h"
#include "MediumScripting.h"
#include "ScenarioDialogs.h"
#include "TableDriver.h"
#include "VisaScripting.h"

#include <QJSValue>
#include <QObject>
#include <QVariant>

#include <functional>

class QJSEngine;
class Simulator;

/// The object `zeb` of a scenario. Each call is told in docs/scenarios.md; what one can't do, the script sees as an
/// exception.
class ScenarioApi : public QObject {
    Q_OBJECT

public:
    /// All must outlive the object. `stop` ends every wait.
    ScenarioApi(QJSEngine& engine, Simulator& simulator, const QString& folder, std::function<bool()> stop);

    ScenarioDialogs& dialogs() { return m_dialogs; }

    Q_INVOKABLE void rig(const QJSValue& pathOrCount);
    Q_INVOKABLE QJSValue keys();
    Q_INVOKABLE QJSValue camera(unsigned int key);
    Q_INVOKABLE void setCamera(unsigned int key, const QVariantMap& members);
    Q_INVOKABLE void reboot(unsigned int key);
    Q_INVOKABLE QJSValue hub(const QString& address);
    Q_INVOKABLE void setHub(const QString& address, const QVariantMap& members);
    Q_INVOKABLE QJSValue medium(const QString& kind, const QVariantMap& members);
    /// `target` is the key of a camera, or the address of a hub.
    Q_INVOKABLE void fault(const QJSValue& target, const QString& operation, const QVariantMap& fault);

    Q_INVOKABLE void visa(const QVariantMap& members);
    Q_INVOKABLE QJSValue visaCalls();
    Q_INVOKABLE void visaRelease();

    Q_INVOKABLE bool open();
    Q_INVOKABLE bool close();
    Q_INVOKABLE QJSValue page(const QString& text);
    Q_INVOKABLE QJSValue dialog(const QString& text);
    Q_INVOKABLE void click(const QString& selector, const QVariantMap& options = {});
    Q_INVOKABLE void drag(const QString& from, const QString& to);
    Q_INVOKABLE void choose(const QString& selector, const QString& value);
    Q_INVOKABLE void type(const QString& text);
    Q_INVOKABLE void paste(const QString& text);
    Q_INVOKABLE void key(const QString& name, const QVariantMap& options = {});
    Q_INVOKABLE void addDevice();
    Q_INVOKABLE void menu(const QString& path);
    Q_INVOKABLE QString undo();
    Q_INVOKABLE QString redo();
    Q_INVOKABLE QString active();
    Q_INVOKABLE void window(const QString& what);
    Q_INVOKABLE QJSValue accessible();
    Q_INVOKABLE QString shot(const QString& path);

    Q_INVOKABLE void wait(double ms);
    Q_INVOKABLE bool until(const QString& text, double ms = 10000);
    Q_INVOKABLE void speed(double factor);

    Q_INVOKABLE void modal(const QJSValue& function);
    /// As `zeb.answer`, which takes any number of texts, hands them over.
    Q_INVOKABLE void answers(const QStringList& texts);
    Q_INVOKABLE void save(const QVariantMap& target = {});
    Q_INVOKABLE QJSValue plan();
    Q_INVOKABLE QJSValue saved();
    Q_INVOKABLE QJSValue files(const QString& folder);
    Q_INVOKABLE QJSValue results();
    /// `path` is a text, or null.
    Q_INVOKABLE void file(const QJSValue& path);
    Q_INVOKABLE QString readFile(const QString& path);
    Q_INVOKABLE void writeFile(const QString& path, const QString& text);
    Q_INVOKABLE QJSValue pixels(const QString& path);
    /// `text` is a text, or nothing.
    Q_INVOKABLE void popup(const QJSValue& text = {});
    Q_INVOKABLE void push(const QString& text, const QString& row = {});
    Q_INVOKABLE void notices(bool stand);
    Q_INVOKABLE QJSValue messages();
    Q_INVOKABLE QJSValue log();
    Q_INVOKABLE QJSValue calls();

    Q_INVOKABLE QString clipboard();
    Q_INVOKABLE QString translate(const QString& text);
    Q_INVOKABLE QJSValue pref(const QString& key);
    Q_INVOKABLE void setPref(const QString& key, const QVariant& value);
    Q_INVOKABLE void status(const QString& name, bool on);
    Q_INVOKABLE QString mode();
    Q_INVOKABLE void mode(const QString& name);
    Q_INVOKABLE void signal(const QString& name, const QString& argument = {});

private:
    /// Runs the work of a call; an exception becomes one of the script, and the answer a default.
    template <typename Work>
    auto guarded(Work work) -> decltype(work());
    QJSValue plain(const QVariant& value);

    QJSEngine& m_engine;
    Simulator& m_simulator;
    std::function<bool()> m_givenUp;
    CameraScripting m_cameras;
    HubScripting m_hubs;
    MediumScripting m_media;
    FaultScripting m_faults;
    VisaScripting m_visa;
    TableDriver m_table;
    ScenarioDialogs m_dialogs;
    quint64 m_logMark;
    quint64 m_callMark;
};
