#pragma once

#include "Course.h"
#include "PageInput.h"
#include "PluginLoader.h"
#include "PluginSlot.h"
#include "support/TestHost.h"

#include <QJsonArray>
#include <QJsonValue>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

class QDialog;
class QWebView;

/// The table over the cameras of a host, opened by its button. Its timer does not tick by itself: a test says when.
/// In the page stands `probe`, see probe.js. An error of the page's scripts, or a message box, fails the test.
class TablePage {
public:
    /// Interval of the table's own timer, which no test lives to see.
    static constexpr int TickMs = 3600 * 1000;

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
    /// The same without the batch row and the line of all cameras, which follow what the rows show.
    QStringList tickRows();
    /// From here on the errors of the page's scripts go into `lines`; null: they fail the test, as they did before.
    static void expectErrors(QStringList* lines);
    /// From here on the errors of the scripts of any page fail the test, until the end of a `TablePage`.
    static void watchErrors();
    /// Waits until a script answers true; false when it never does.
    bool until(const QString& script);
    /// Waits for the update that was asked for.
    void settle();
    /// Lets the host go into a mode, and the page follow.
    void enter(zeb::OperatingMode mode);
    /// An update cycle of the host.
    void update();
    /// A click by the mouse and the update that it asks for.
    void click(const QString& selector, Qt::KeyboardModifiers modifiers = {});
    /// With an update cycle between its two presses.
    void doubleClick(const QString& selector);
    void press(const QString& selector);
    /// Presses on a point of an element that is in view, by its shares of the width and of the height.
    void pressAt(const QString& selector, double right, double down);
    /// A click by a hand that moves so many pixels to the right meanwhile, from near the right end of an element.
    void clickMoving(const QString& selector, int pixels, Qt::KeyboardModifiers modifiers);
    /// Moves the mouse, its button as it is, to the middle of an element, or to `share` of its width.
    void move(const QString& selector, double share = 0.5);
    /// Lets go of the button where the mouse was moved to, or beyond the edge of the window.
    void release();
    void releaseOutside();
    /// Types into what has the focus, see `typeText`.
    void type(const QString& text);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// A key that is held down: it comes so many times more.
    void hold(Qt::Key key, int repeats);
    /// Chooses in the drop-down of a row, by its list. `word` ends the name of the class of its select.
    void pick(const char* key, const char* word, const char* value);

    /// The calls of the bridge that `work` and the update after it make and whose names match, as "setFrameRate 1,3
    /// 500".
    QStringList made(const QString& names, const std::function<void()>& work);

    QDialog& window() { return *m_loader.plugin().getDialog(false); }

private:
    QWebView& view();
    void input(const QString& selector, const ClickOptions& options);
    QWindow& handle();
    /// A point of an element in the window's pixels, by its shares of the width and of the height.
    QPoint spotOf(const QString& selector, double right, double down = 0.5);

    TestHost& m_test;
    QPoint m_spot;
    PluginLoader m_loader;
    PluginSlot m_slot;
};

/// What comes between, in a table of cases.
using Happening = std::pair<const char*, std::function<void()>>;

/// Selects these cameras and no others, behind the table's back.
void choose(TestHost& test, const QStringList& keys);
/// The keys of the cameras that have a property.
QStringList camerasWith(TestHost& test, bool CameraState::*property);
/// Connects cameras `first` to `last`.
void connectCameras(TestHost& test, DOCKEY first, DOCKEY last);

/// The commands to cameras that `work` and the update after it bring about, as "setRecordRate 1,3 2000".
QStringList commands(TestHost& test, TablePage& page, const std::function<void()>& work);
