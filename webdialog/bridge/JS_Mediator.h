#pragma once

#include "CycleFailures.h"
#include "FrameSkip.h"
#include "PageBridge.h"
#include "TraceText.h"

#include <QHash>
#include <QList>
#include <QStringList>
#include <QVariant>

#include <exception>
#include <functional>

class DOC_Interface;
class ZebHost;

/// Base of all bridges: what a page can ask of the application. GUI thread.
///
/// Slots are the page's interface, and their order is part of it. They run in the frame of `call`, so none throws;
/// after a failure, which the user has been shown, a slot answers its default. A slot may run an event loop, and other
/// slots inside it; those that change cameras or the host, or open a window, are refused there.
class JS_Mediator : public PageBridge {
    Q_OBJECT
    /// For the page: while a call runs, another one that changes something is refused.
    Q_PROPERTY(bool inCall READ isInCall)

public:
    /// `host` is not owned and outlives the bridge. `name` is how the page knows the bridge.
    JS_Mediator(ZebHost* host, const QString& name, QObject* parent = nullptr);

    void raiseUpdate() override;

    /// Another bridge of the page is its "prefs": this one never adds itself as that.
    void becomeSecond() { m_isSecond = true; }

    /// What a call of the page is to user and log.
    enum CallKind {
        /// A failure is told each time it comes. No lines in the log.
        Plain = 0,
        /// What the update cycle asks. Its failure comes again at every cycle while it lasts, so it is told when it is
        /// new and not again until the same method with the same arguments has had an answer. No lines in the log.
        Query = 1,
        /// As a plain one, with lines in the log where it begins and ends.
        Traced = 2,
        TracedQuery = Query | Traced,
        /// The same, and its end asks for an update.
        Updating = 4,
        /// Changes cameras or the host, or opens a window. The page can get to it inside another call only from an
        /// event loop that this call runs, over a box or a dialog: what the user decides there must not find other
        /// cameras than the user saw. So it is refused there, with a line in the log.
        Exclusive = 8,
        Action = Exclusive | Traced,
        Change = Exclusive | Updating,
    };
    /// The frame of every call: runs `work` while the bridge counts as busy. No exception leaves it, for one that
    /// reaches the page's script ends the process; the bridge is busy until the box that tells it is gone. `name` is
    /// class and method. Slots are framed by `call`.
    void runCall(CallKind kind, const QString& name, TraceArgs args, const std::function<void()>& work);

    /// What the update cycles of the page could not read.
    CycleFailures& cycleFailures() { return m_cycleFailures; }

    /// What a bridge of an export does with the values that its page chooses.
    virtual void setSkipMode(int mode) { Q_UNUSED(mode) }
    virtual void applySkipFrames(double frames) { Q_UNUSED(frames) }

Q_SIGNALS:
    void open();
    void update();
    void close();
    void enterQtWidget();

public Q_SLOTS:
    // How an export thins out its frames.
    virtual int getSkipMode() { return SkipByFrames; }
    virtual void setSkipFrames(double val) { Q_UNUSED(val) }
    virtual double getSkipFrames() { return 1.0; }
    double getSkipMinFrames() { return m_skip.minFrames; }
    double getSkipMaxFrames() { return m_skip.maxFrames; }

    // Style and plug-ins.
    void setStyle(const QString& style);
    QString getStyle();
    void openPlugin(const QString& name);
    /// Without a name: the panel of the plug-in that works on the images.
    void closePlugin();
    void closePlugin(const QString& name);

    // Messages and texts.
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

    // State of the application and of the current document.
    bool isReady();
    bool isLiveMode();
    bool isMemoryMode();
    virtual bool isFileMode();
    bool isPlaying();
    bool isConnected();

    /// Text of a resource; empty with a warning in the log when there is none of that name.
    QString load(const QString& fileName);
    void updateUI();
    void deterUpdateUI(bool deter);
    void addPrefsJSObject() override;

    // Preferences.
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

    // Windows of the host. Each runs an event loop.
    /// A `QDialog::DialogCode`; 0 when there is no such dialog.
    int openPrefsDialog(const QString& page = QString());
    void openPrefsEthernetSettings();
    void openExportSupportFileDialog();
    void openAbouZebDialog();

    // The log; `log` and `debugLog` write nothing.
    void log(const QString& msg) { Q_UNUSED(msg) }
    void debugLog(const QString& msg) { Q_UNUSED(msg) }
    void infoLog(const QString& msg);
    void errorLog(const QString& msg);

    /// The control states as one JSON object, empty text after a failure; `pDoc` null stands for the current document.
    QString getControlStatus(DOC_Interface* pDoc = nullptr);

    // Documents.
    /// A map for each; after a failure those up to the document that failed.
    virtual QVariantList getDeviceInfoList(bool isMinilist);
    /// Keys as decimal texts.
    QVariantList getSelectedDockey();
    /// Selects that document and no other; none for what is no key.
    void setSelectDoc(const QString& docKey);
    void selectAllDocs();
    void copySelectAreaToClipboard();
    bool isWaveDataAcquisition();
    /// A JSON array.
    QString getCalibrationUnits();
    /// Largest value of a pixel.
    int getRangeMax();
    bool isUpdateIgnore();
    void setDisableAllQuickTool();

    void userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                 const QString& id, const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);

    /// Whether a list of devices shows only those that are connected.
    void setConnectedCameraShowing(bool check);
    bool getConnectedCameraShowing();
    /// Number of image windows; with `visible` of those alone that are shown.
    int countMdiWindow(bool visible = true);
    bool isWrenRunning();
    /// The user has seen that the preferences are those of the factory.
    void checkRestoredPrefs();

    // Drop-down lists of the host; places in the pixels of the page.
    virtual void hideSelectBox();
    bool isShownDropBox();
    void showDropDownBox(const QString& key, int x, int y, int width, int height);
    void hideDropDownBox(const QString& key);
    /// Unless the point lies on the list.
    void hideDropDownBox(const QString& key, int x, int y);

    bool isMVersion();
    /// How the current image is shown, a number as text: 1 flipped from left to right, plus 2 upside down.
    QString getFlip();
    /// Degrees clockwise; "0" after a failure.
    QString getRotate();

protected:
    ZebHost& host() const { return *m_host; }
    /// Fits the frame skip to what is to be exported and applies it anew. Nothing happens without a target. Throws
    /// what the documents throw.
    void refreshSkipFrames(const ExportTargets& targets);
    /// The frame skip as it was fitted last.
    const FrameSkip& frameSkip() const { return m_skip; }
    /// The last answer of `getRangeMax`.
    int lastRangeMax() const { return m_rangeMax; }
    /// The parts of the host that `updateUI` asks for.
    void setUpdateMask(unsigned int mask) { m_updateMask = mask; }

private:
    void runTraced(CallKind kind, const QString& name, TraceArgs args, const std::function<void()>& work);
    void reportCurrentFailure() noexcept;
    void tellCycleFailures() noexcept;
    template <typename Read>
    auto readPref(const char* method, const QString& name, Read read);
    template <typename Store>
    void storePref(const char* method, const QString& name, const QVariant& value, bool update, Store store);

    /// Mask of an update of everything that stands in pages.
    static constexpr unsigned int AllParts = 63;

    ZebHost* const m_host;
    bool m_isSecond = false;
    int m_rangeMax = 0;
    unsigned int m_updateMask = AllParts;
    FrameSkip m_skip;
    CycleFailures m_cycleFailures;
    /// Preferences as last read, which stand for those that can't be read now: the page takes a change for the user's.
    QHash<QString, QVariant> m_lastRead;
};
