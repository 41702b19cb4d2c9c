#pragma once

#include "JS_Mediator_ModelessPatternDialog.h"
#include "TableState.h"
#include "UpdateTimers.h"

#include <QPointer>

#include <functional>

class GUI_ProgressDialog;
class TableView;
struct CameraAction;

/// What the page of the table can ask and do: one slot a request. GUI thread.
///
/// The slots name the work and the topic classes do it; they stand in `CameraSlots.cpp` and its like. One that changes
/// something is refused while another call runs, for then a message box or the like stands that the user has to answer
/// first.
class JS_Mediator_WrenTableDialog : public JS_Mediator_ModelessPatternDialog {
    Q_OBJECT

public:
    /// Opens the table's session with the host. `plugin` is not owned and outlives the bridge.
    JS_Mediator_WrenTableDialog(ZebHost* host, const QString& name, PLG_Interface* plugin, QObject* parent = nullptr);
    ~JS_Mediator_WrenTableDialog() override;

    void setRecordRunning() override { m_state.recordRunning = true; }
    void clearRecordRunning() override { m_state.recordRunning = false; }

    TableState& state() { return m_state; }
    /// Open and end the session where the page has not done so, as one that has not loaded.
    void ensureSession();
    void endSession();
    /// Whether ticks come, now that no call runs.
    bool isTicking() const { return m_timers.isTicking(); }

Q_SIGNALS:
    /// A tick of the update timer: the page follows the cameras.
    void autoUpdate();

public Q_SLOTS:
    void onOpen() override;
    void onClose() override;

    // What the page shows.
    QString getRecords(const QString& json);
    QString getRecStatus();
    bool isRecReady();
    bool isRecording();
    QString getGroups();
    QString getGroup();
    int getFilter();
    DOCKEY getBatchDocKey();
    /// How all cameras stand, see `TableStatus`.
    QString getTableStatus();
    /// Puts the rows as the page tells them, tab separated, on the clipboard.
    void copyTable(const QString& text);
    /// Writes them, comma separated, into a file that the user chooses.
    void saveTable(const QString& csv);
    /// How a camera stands to the common signal, see `SyncVerdict`; empty when there is none of that key.
    QString getSyncVerdict(DOCKEY dockey);
    bool isSuspendReduceMode(DOCKEY dockey);
    /// The partition that the current camera has in use; 0 and an empty text without one.
    PARTITIONNUMBER getCurrentPartition();
    QString getCurrentPartitionName();
    /// The list of partitions floats beside that rectangle of the page.
    void showLivePartition(int x, int y, int width, int height);
    void hideSelectBox() override;
    bool isShownSelectBox();

    // Cameras.
    QString getSearchAddress();
    void searchCamera(const QString& ipAddress);
    void discoverysearch();
    void updateCamera();
    void deleteAllCamera();
    bool confirmDisconnect(const QVariantList& keys);
    void connect(const QVariantList& keys, bool connect, bool force = false);
    void select(const QVariantList& keys, bool select);
    void setCameraName(const QVariantList& keys, const QString& cameraName);
    void setComment(const QVariantList& keys, const QString& comment);
    void editDoc(DOCKEY dockey);

    /// Brings the default settings to all cameras when the dialog is accepted.
    void openDefaultSettingsDialog();

    // Parameters.
    void setParamLock(const QVariantList& keys, bool lock);
    /// Of every connected camera, listed or not.
    void lockAll(bool lock);
    void setFrameRate(const QVariantList& keys, const QString& val);
    void setShutterSpeed(const QVariantList& keys, const QString& val);
    void setResolution(const QVariantList& keys, const QString& val);
    void setTriggerMode(const QVariantList& keys, const QString& val);
    void setReduceMode(const QVariantList& keys, bool on);
    void setLowLight(const QVariantList& keys, bool on);
    void setLowLightType(const QVariantList& keys, bool check);

    // The common signal.
    QString getSyncSettings();
    /// Whether the cameras were handed over; the host tells the user itself when they did not take it.
    bool setSyncSettings();
    void connectSignalGenerator();
    void connectSignalDistributors();
    void setSignalFrequency(int freq);
    /// False when the common signal has a frequency and it is not the record rate of `doc`.
    bool checkDifferenceRecordRateAndExternalFrequency(DOC_Interface* doc);

    // Recording and live.
    void record();
    void cancelRecord();
    void setTriggerTesting(bool value);
    void stopLive(bool stop);
    void updateLive();
    /// 1 to a file, 2 to the clipboard, 3 both, 4 the settings of that.
    void snapShot(int mode);
    bool isRecordDuringExporting();
    bool isOtherPluginOpen();
    bool getTriggerTesting();
    bool isStopLive();
    void enterLiveMode();
    void enterMemoryMode();
    void showReadyProgress();
    void deleteReadyProgress();
    void startAutoUpdate();
    void stopAutoUpdate();
    void slotSelectForUpdate();

    // What is recorded. Frames are counted from each camera's trigger.
    void setRecordCheck(const QVariantList& keys, bool check);
    void setSelectStartFrameNo(const QVariantList& keys, int frameNo);
    void setSelectEndFrameNo(const QVariantList& keys, int frameNo);
    void setTriggerOffset(const QVariantList& keys, int offset);
    void save();
    void saveLayout();

    // Image plug-ins of the cameras, and files of settings.
    void togglePlugin(const QVariantList& keys, const QString& pluginName, bool enable);
    /// The menu of the icon of a plug-in, at that point of the screen.
    void effectContextMenu(const QString& key, const QString& pluginName, int x, int y);
    /// A map with the key `dockey` of the camera and the name `plugin`.
    void deletePlugin(const QVariant& pluginName);
    void loadRigx();
    void saveRigx();

    // Custom information, as JSON arrays. Empty ones in file mode, and after a failure of a file; an empty text after
    // one of a camera.
    QString getCustomSettings(const QVariant& key, bool withoutRecId = false);
    void setCustomSettings(const QVariantList& keys, const QString& json);
    QString loadCustomSettingsXml();
    void saveCustomSettingsXml(const QString& json);

protected:
    void beginCall() override { m_timers.pause(); }
    void endCall() override { m_timers.resume(); }

private:
    /// The class that does the work of a topic, made where the slots of the topic stand.
    template <typename Topic>
    Topic topic();
    /// Defined in `CameraEdit.h`.
    template <typename Topic, typename Param, typename Value>
    void edit(const char* method, const QVariantList& keys, const char* name, const Value& value,
              void (Topic::*set)(const DocKeyList&, Param), const CameraAction& action);
    /// Runs `change`, which answers whether it has told the host anything, and notes what the cameras make of it.
    void watch(const CameraAction& action, const DocKeyList& keys, const QString& asked,
               const std::function<bool()>& change);
    /// What was noted stays where nobody was asked.
    void note(const std::optional<ActionResult>& result);

    void openSession();
    void closeSession();
    TableView* tableView() const;
    QWidget* tableWindow() const;
    void activateTable();
    void showReady();

    TableState m_state;
    bool m_sessionOpen = false;
    UpdateTimers m_timers;
    QPointer<GUI_ProgressDialog> m_readyProgress;
};
