#pragma once

#include "PLG_Interface.h"
#include "ToolRectangle.h"

#include <QMutex>
#include <QPointer>
#include <QWidget>

#include <memory>

class GUI_ModelessPatternDialog;

/// What all plug-ins of the host have in common: a dialog that is made on demand, and the behaviour of image tools,
/// for which a tool sets the fields below in its constructor; that stands in `ToolLife.cpp` and `ToolGestures.cpp`. GUI
/// thread.
class PLG_Common : public PLG_Interface {
    Q_OBJECT

public:
    PLG_Common();
    ~PLG_Common() override;

    void setHost(ZebHost* host) override { m_host = host; }
    void closeByType() override;
    void updatePanel() override;
    void reserved1() override {}
    void reserved2() override {}
    void reserved3() override {}
    QString getPageHtml() override;
    void activate() override;
    void deactivate() override;

    void endTool() override;
    void confirmTool() override;
    void applyTool() override;
    void cancelTool() override;
    void resetToolGuarded(bool guarded) override;
    void resetTool() override;
    void previewToolGuarded(bool guarded) override;
    void previewTool() override;
    void repeatTool() override;
    void reserved4() override {}
    void reserved5() override {}
    void reserved6() override {}

    ZebPageBridge* getPanelBridge() override { return m_panelBridge.get(); }
    QString getName() const override { return m_name; }
    int getCategory() const override { return m_category; }
    int getAttributeA() const override { return 0; }
    int getAttributeB() const override { return 0; }
    int getAttributeC() const override { return 0; }
    bool isStandardPlugin() const override { return true; }
    void setOptionForMode(bool on) override;
    void setRunning(bool running) override { m_running = running; }
    bool isRunning() const override { return m_running; }
    bool isAvailableInMode(int mode) const override;
    bool isAvailable() const override;
    bool getCloseOnModeChange() const override { return m_closeOnModeChange; }
    void setCloseOnModeChange(bool close) override { m_closeOnModeChange = close; }
    bool getOptionForMode() const override;
    bool isToolActive() const override { return m_toolActive; }
    bool getOption2ForMode() const override;

    void preparePanel() override {}
    void clearPanelWidget() override { m_panelWidget = nullptr; }
    QWidget* getPanelWidget() const override { return m_panelWidget; }

    void mousePress(const QPoint& point, DOCKEY key) override;
    void reserved7() override {}
    void mouseMove(const QPoint& point, DOCKEY key) override;
    void mouseRelease(DOCKEY key) override;
    void mouseReleaseAt(const QPoint& point, DOCKEY key) override;
    void reserved8() override {}
    void reserved9() override {}
    void reserved10() override {}
    void resetCursor() override;
    bool isDragging() const override { return m_dragging; }
    QPoint getDragStart() const override { return m_dragStart; }
    QPoint getDocPoint(DOCKEY key) override;
    QPoint getLastPoint() const override { return m_lastPoint; }
    int getCursorHandle() const override { return m_cursorHandle; }
    int getButtonType() const override { return m_buttonType; }
    int getSelectKind() const override { return m_selectKind; }
    bool isButtonEnabled() const override { return true; }
    int getToolKind() const override { return m_toolKind; }
    int getAttributeF() const override { return 0; }
    int getSizeGroup() const override { return m_sizeGroup; }
    int getAttributeG() const override { return 0; }
    bool reserved11() const override { return false; }
    void lock() override { m_mutex.lock(); }
    void unlock() override { m_mutex.unlock(); }

    bool isChecked(DOC_Interface* doc, int arg) override;
    QDialog* getDialog(bool create) override;
    void showDialog() override;
    void hideDialog() override;
    void closeDialog() override;
    void updateDialog(int mode) override;
    int getGroupNumber() const override { return m_group; }
    void reserved12() override {}
    int getAttributeH() const override { return 0; }
    void reserved13() override {}
    void dropString(const QString&) override {}
    void keyPress(QKeyEvent* event) override;
    void clearKeyStepped() override { m_keyStepped = false; }
    QString getConfirmText() const override;
    bool getAttributeI() const override { return false; }
    void prepareOpen() override {}
    bool reserved14() const override { return false; }
    bool reserved15() const override { return false; }
    bool reserved16() const override { return false; }
    bool reserved17() const override { return false; }
    bool reserved18() const override { return false; }
    int getQuickKind() const override { return m_quickKind; }
    bool isReselectOnActivate() const override { return false; }
    bool getAttributeJ() const override { return false; }
    void reserved19() override {}
    int reserved20() const override { return 0; }
    bool reserved21() const override { return true; }
    void reserved22() override {}
    void reserved23() override {}
    bool getAttributeK() const override { return m_attributeK; }
    void setAttributeK(bool value) override { m_attributeK = value; }
    void reserved24() override {}
    void reserved25() override {}
    int reserved26() const override { return 0; }
    bool reserved27() const override { return false; }
    bool reserved28() const override { return false; }
    NoHandle getNoHandle() const override { return {nullptr, -1}; }

    QRect toSensorRect(DOC_Interface* doc, const QRect& rect) override;
    void reserved29() override {}
    QVariantMap getRectParameters(DOC_Interface* doc, bool shown) override;
    void setRect(const QRect& rect) override { m_rect = rect; }
    QRect getRect() const override { return m_rect; }
    void resetRect() override { m_rect = QRect(); }
    /// O and P: whether the rectangle's edges move in mirrored pairs, sideways and up and down.
    void setAttributeO(bool value) override { m_rules.mirrorX = value; }
    bool getAttributeO() const override { return m_rules.mirrorX; }
    void setAttributeP(bool value) override { m_rules.mirrorY = value; }
    bool getAttributeP() const override { return m_rules.mirrorY; }
    /// L: whether the tool lies in the panel, not in the auxiliary one.
    bool getAttributeL() const override { return m_attributeL; }
    void setAttributeL(bool value) override { m_attributeL = value; }
    int getAttributeM() const override { return m_attributeM; }
    void setAttributeM(int value) override { m_attributeM = value; }
    void reserved30() override {}
    void reserved31() override {}
    bool needsLivePause() const override { return m_pauseLiveForDialog; }
    bool getAttributeN() const override { return false; }
    void reserved32() override {}
    bool hasDoc(DOCKEY key) override;
    void setCursorForHandle(DOC_Interface* doc, int handle) override;
    bool isDialogVisible() const override;
    bool isKeyStepped() const override { return m_keyStepped; }

Q_SIGNALS:
    void signalRecord();
    void signalSaveFile();
    void signalSaveLayout();
    void signalEndRecording();
    void signalDisconnect();
    void signalStartAutoUpdate();
    void signalStopAutoUpdate();
    void signalScreenShot(const QString& path);

public Q_SLOTS:
    void slotModelessPatternDialogShown() override {}
    void slotModelessPatternDialogClosed() override;
    void slotScreenShot(const QString&) override {}

public:
    bool reserved33() const override { return false; }
    bool reserved34() const override { return false; }
    double reserved35() const override { return 0.0; }
    bool reserved36() const override { return false; }
    QDialog* createDialog(bool) override { return nullptr; }

protected:
    ZebHost* m_host = nullptr;
    QString m_name;
    int m_category = 0;
    /// 1 and 5 always pressed, 2 and 3 pressed as the document says, 4 pressed while the plug-in is the current one,
    /// 6 pressed while the dialog is visible.
    int m_buttonType = 0;
    int m_group = 3;
    /// Bit 0 live, bit 1 memory, bit 2 file.
    int m_modeMask = 7;
    bool m_closeOnModeChange = true;
    bool m_pauseLiveForDialog = false;

    bool m_toolActive = false;
    int m_toolKind = 0;
    int m_quickKind = 0;
    int m_selectKind = 0;
    int m_sizeGroup = 2;
    bool m_attributeL = false;
    /// Index 1 in file mode, 0 else.
    bool m_optionByMode[2] = {false, false};
    bool m_option2ByMode[2] = {false, false};
    std::unique_ptr<ZebPageBridge> m_panelBridge;
    /// Owned by the page that shows it.
    QPointer<QWidget> m_panelWidget;
    ToolRectangle::Rules m_rules;

private:
    static constexpr int DialogButton = 6;
    bool selectsDocuments() const { return m_buttonType == 2 || m_buttonType == 3; }
    void selectToolOnActivate();
    void closeToolPanel();
    void acceptTool();
    void restartLiveAfterTool();
    void restartLiveAfterEnd();

    ToolRectangle toolRectangleOn(DOC_Interface& doc) const;
    /// Gives the document its new rectangle, unless nothing of it is left.
    void setToolRectOn(DOC_Interface& doc, const QRect& rect);

    GUI_ModelessPatternDialog* m_dialog = nullptr;
    bool m_creatingDialog = false;
    QRecursiveMutex m_mutex;

    bool m_running = false;
    /// The host has been told that the tool began.
    bool m_toolPending = false;
    bool m_attributeK = false;
    int m_attributeM = 0;

    QRect m_rect;
    QPoint m_lastPoint;
    bool m_dragging = false;
    QPoint m_dragStart;
    QRect m_dragRect;
    int m_dragHandle = ToolRectangle::Outside;
    /// Handle whose cursor overrides the application's; -1 when none does.
    int m_cursorHandle = -1;
    bool m_keyStepped = false;
};
