#pragma once

#include "ZebPageBridge.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <exception>
#include <functional>

class DOC_Interface;
class QWebView;
class ZebHost;

/// Base of all bridges: what a page can ask of the application. GUI thread.
///
/// Slots are the page's interface. They run in the frame of `bridgeCall`, so none throws; after a failure, which
/// the user has been shown, a slot answers its default. A slot may run an event loop, and other slots inside it.
class JS_Mediator : public ZebPageBridge {
    Q_OBJECT

public:
    /// `host` is not owned and outlives the bridge. `name` is how the page knows the bridge.
    JS_Mediator(ZebHost* host, const QString& name, QObject* parent = nullptr);

    QString bridgeName() const override { return m_name; }
    void setView(QWebView* view) override;
    void raiseUpdate() override;

    /// Whether a call runs. The bridge and its view must not be destroyed then.
    bool isInCall() const { return m_callDepth > 0; }
    /// Runs `action` from the event loop as soon as no call runs. Forgotten if the bridge goes before.
    void afterCalls(const std::function<void()>& action);
    /// Shows the exception that is being handled to the user. Only inside a `catch`; does not throw.
    void reportCurrentFailure() noexcept;

Q_SIGNALS:
    void open();
    void update();
    void close();
    void enterQtWidget();

public Q_SLOTS:
    void setStyle(const QString& style);
    QString getStyle();

    void errorHandler(std::exception& e);
    void info(const QString& message);
    void warn(const QString& message);
    void warn(const QString& message, const QStringList& messages);
    void alert(const QString& message);
    void alert(const QString& message, const QStringList& messages);
    bool confirm(const QString& message);
    QString translate(const QString& string);
    /// Both texts are translated, then `%1` of the first is replaced by the second.
    QString translate(const QString& string, const QString& arg);

    bool isLiveMode();
    bool isMemoryMode();
    virtual bool isFileMode();
    /// Text of a resource; empty with a warning in the log when there is none of that name.
    QString load(const QString& fileName);

    void updateUI();
    void deterUpdateUI(bool deter);
    void addPrefsJSObject() override;

    int getPrefInt(const QString& name, const QVariant& defaultValue = QVariant());
    bool getPrefBool(const QString& name, const QVariant& defaultValue = QVariant());
    float getPrefFloat(const QString& name, const QVariant& defaultValue = QVariant());
    QString getPrefString(const QString& name, const QVariant& defaultValue = QVariant());
    /// With `update` false the value is stored and nothing else happens.
    void setPrefInt(const QString& name, int value, bool update = true);
    void setPrefBool(const QString& name, bool value, bool update = true);
    void setPrefFloat(const QString& name, float value, bool update = true);
    void setPrefString(const QString& name, const QString& value, bool update = true);
    void setPrefDQString(const QString& name, const QString& value, bool update = true);

    void log(const QString& msg);
    void debugLog(const QString& msg);
    void infoLog(const QString& msg);
    void errorLog(const QString& msg);
    /// The control states as one JSON object, empty text after a failure; `pDoc` null stands for the current document.
    QString getControlStatus(DOC_Interface* pDoc = nullptr);
    /// Number of image windows; with `visible` of those alone that are shown.
    int countMdiWindow(bool visible = true);
    void userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                 const QString& id, const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);
    bool isWrenRunning();

protected:
    ZebHost& host() const { return *m_host; }
    /// The view that holds the page; null before the host has given it and after it is gone.
    QWebView* view() const;

    /// The first of nested calls begins, the last of them has ended. Must not throw.
    virtual void beginCall() {}
    virtual void endCall() {}

private:
    friend class BridgePause;

    void enterCall();
    void leaveCall();
    void runAfterCalls();
    template <typename Store>
    void storePref(const QString& method, const QString& name, const QVariant& value, bool update, Store store);

    ZebHost* const m_host;
    QPointer<QWebView> m_view;
    const QString m_name;
    unsigned int m_updateMask = 63;
    int m_callDepth = 0;
    QList<std::function<void()>> m_afterCalls;
};
