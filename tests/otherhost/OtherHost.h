#pragma once

#include "HostParts.h"
#include "PLG_Interface.h"
#include "ZebPageBridge.h"

#include <QLibrary>
#include <QMap>
#include <QMutex>
#include <QPointer>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebView>

#include <memory>
#include <vector>

/// A host that has nothing in common with the stand-in host but the headers of the boundary and the resources of its
/// pages. It has loaded the plug-in and has three cameras. What is not told here it answers with nothing. One at a
/// time.
class OtherHost : public OtherZebHost {
public:
    static constexpr int Tabs = 7;

    struct Camera {
        OtherDOC_Interface doc;
        struct State {
            bool connected = true;
            bool selected = true;
            bool locked = false;
            bool checked = false;
            bool recorded = true;
            bool lowLight = false;
            int trigger = zeb::SignalTrigPos;
        } state;
    };

    OtherHost();
    ~OtherHost() override;

    void unload() { plugin.reset(); }
    void close() { plugin->closeDialog(); }
    /// As the plug-in's button does.
    void open();
    /// The same, and waits for the page.
    void openWhole();
    /// Asks for an update and waits until it has been made.
    void update();
    /// The value of a script in the table's page, as text; empty without a page.
    QString run(const QString& script);
    /// Brings a tab to the front and has it updated, if it is not there.
    void show(int tab);
    bool hasPage() { return run(QStringLiteral("!wrentabledialog_obj.initialize")) == QLatin1String("true"); }
    /// The rows of the tab in front, as they stand in the page, but for the place of the keyboard.
    QStringList rows();
    /// All cameras connected, selected and open, in live mode.
    void rest();

    std::unique_ptr<PLG_Interface> plugin;
    std::vector<std::unique_ptr<Camera>> cameras;
    int mode = zeb::LiveMode;
    bool running = false;
    bool textBoxFocused = false;
    QMap<QString, QVariant> prefs;
    /// How the user answers.
    bool agrees = true;
    QStringList errors;
    /// Runs at each call of the plug-in, and once for each modal window of its own, by the name of its class. What it
    /// throws goes to the plug-in. GUI thread.
    std::function<void(const QByteArray& operation, bool mayThrow)> onCall;
    /// Runs at each call on another thread, and there.
    std::function<void(const QByteArray& operation)> onWorkerCall;
    QPointer<QWebView> view;
    QPointer<ZebPageBridge> bridge;

private:
    void load();
    void prepareModes();
    void prepareDocuments();
    void addCamera(DOCKEY key);
    void prepareControl(DOCKEY key, OtherDOC_Control& control);
    void preparePrefs();
    void prepareBoxes();
    void prepareWorkers();
    void preparePages();
    void runCycle();
    void lookForModal();
    DocKeyList keys(bool Camera::State::*which) const;
    QVariant pref(const QString& key, const QVariant& defaultValue) const;

    QLibrary m_library{WREN_LIBRARY};
    QMutex m_docMutex;
    QObject m_pageObject;
    OtherZebPrefsDialog m_prefsDialog;
    QTimer m_modals;
    int m_newFiles = 0;
    QPointer<QWidget> m_modal;
    /// Of the file that is chosen wherever one is asked for.
    QTemporaryDir m_folder;
    /// What a worker waits for: that the GUI thread waits for it.
    QSemaphore m_watched;
    int m_deterred = 0;
    bool m_owed = false;
};
