#pragma once

#include "PageInput.h"
#include "host/PluginLoader.h"
#include "host/PluginSlot.h"
#include "support/TestHost.h"

#include <QJsonArray>
#include <QJsonValue>

#include <ostream>

class QDialog;
class QWebView;

/// The table over the cameras of a host, opened by its button. Its timer does not tick by itself: a test says when.
/// In the page stands `probe`, see probe.js. An error of the page's scripts, or a message box, fails the test.
class TablePage {
public:
    /// With `tab` in front.
    explicit TablePage(TestHost& test, int tab = 0);
    ~TablePage();

    /// The value of a script. A script that throws fails the test.
    QJsonValue run(const QString& script);
    QStringList list(const QString& script);
    int number(const QString& script) { return run(script).toInt(); }
    QString text(const QString& script) { return run(script).toString(); }

    /// Presses the plug-in's button once more.
    void open() { m_slot.open(); }
    /// Brings a tab to the front.
    void show(int tab);
    /// A tick of the timer, and where it wrote to.
    QStringList tick() { return list(QStringLiteral("probe.writes(() => wrentabledialog_obj.autoUpdate())")); }
    /// Waits until a script answers true; false when it never does.
    bool until(const QString& script);
    /// Waits for the update that was asked for.
    void settle();
    /// An update cycle of the host.
    void update();
    /// A click by the mouse and the update that it asks for.
    void click(const QString& selector, Qt::KeyboardModifiers modifiers = {});

    QDialog& window() { return *m_loader.plugin().getDialog(false); }

private:
    QWebView& view();

    TestHost& m_test;
    PluginLoader m_loader;
    PluginSlot m_slot;
};

/// Selects these cameras and no others, behind the table's back.
void choose(TestHost& test, const QStringList& keys);
/// Connects cameras `first` to `last`.
void connectCameras(TestHost& test, DOCKEY first, DOCKEY last);

/// A failure shows texts as they read.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QStringList& list, std::ostream* out);
