#pragma once

#include "Journal.h"
#include "PLG_Interface.h"

#include <QDialog>

/// A plug-in that has a dialog, a panel and no behaviour.
class FakePlugin : public PLG_Interface {
public:
    QDialog* dialog = nullptr;
    QWidget* panel = nullptr;
    bool reselect = false;

    QString getName() const override { return QStringLiteral("wren"); }
    QDialog* getDialog(bool) override { return dialog; }
    void closeDialog() override {
        Journal::note(QStringLiteral("closeDialog"));
        if (dialog) dialog->close();
    }
    void preparePanel() override { Journal::note(QStringLiteral("preparePanel")); }
    QWidget* getPanelWidget() const override { return panel; }
    bool isReselectOnActivate() const override { return reselect; }

    void setHost(ZebHost*) override {}
    void closeByType() override {}
    void updatePanel() override {}
    void reserved1() override {}
    void reserved2() override {}
    void reserved3() override {}
    QString getPageHtml() override { return {}; }
    void activate() override {}
    void deactivate() override {}
    void endTool() override {}
    void confirmTool() override {}
    void applyTool() override {}
    void cancelTool() override {}
    void resetToolGuarded(bool) override {}
    void resetTool() override {}
    void previewToolGuarded(bool) override {}
    void previewTool() override {}
    void repeatTool() override {}
    void reserved4() override {}
    void reserved5() override {}
    void reserved6() override {}
    ZebPageBridge* getPanelBridge() override { return {}; }
    int getCategory() const override { return {}; }
    int getAttributeA() const override { return {}; }
    int getAttributeB() const override { return {}; }
    int getAttributeC() const override { return {}; }
    bool isStandardPlugin() const override { return {}; }
    void setOptionForMode(bool) override {}
    void setRunning(bool) override {}
    bool isRunning() const override { return {}; }
    bool isAvailableInMode(int) const override { return {}; }
    bool isAvailable() const override { return {}; }
    bool getCloseOnModeChange() const override { return {}; }
    void setCloseOnModeChange(bool) override {}
    bool getOptionForMode() const override { return {}; }
    bool isToolActive() const override { return {}; }
    bool getOption2ForMode() const override { return {}; }
    void clearPanelWidget() override {}
    void mousePress(const QPoint&, DOCKEY) override {}
    void reserved7() override {}
    void mouseMove(const QPoint&, DOCKEY) override {}
    void mouseRelease(DOCKEY) override {}
    void mouseReleaseAt(const QPoint&, DOCKEY) override {}
    void reserved8() override {}
    void reserved9() override {}
    void reserved10() override {}
    void resetCursor() override {}
    bool isDragging() const override { return {}; }
    QPoint getDragStart() const override { return {}; }
    QPoint getDocPoint(DOCKEY) override { return {}; }
    QPoint getLastPoint() const override { return {}; }
    int getCursorHandle() const override { return {}; }
    int getButtonType() const override { return {}; }
    int getSelectKind() const override { return {}; }
    bool isButtonEnabled() const override { return {}; }
    int getToolKind() const override { return {}; }
    int getAttributeF() const override { return {}; }
    int getSizeGroup() const override { return {}; }
    int getAttributeG() const override { return {}; }
    bool reserved11() const override { return {}; }
    void lock() override {}
    void unlock() override {}
    bool isChecked(DOC_Interface*, int) override { return {}; }
    void showDialog() override {}
    void hideDialog() override {}
    void updateDialog(int) override {}
    int getGroupNumber() const override { return {}; }
    void reserved12() override {}
    int getAttributeH() const override { return {}; }
    void reserved13() override {}
    void dropString(const QString&) override {}
    void keyPress(QKeyEvent*) override {}
    void clearKeyStepped() override {}
    QString getConfirmText() const override { return {}; }
    bool getAttributeI() const override { return {}; }
    void prepareOpen() override {}
    bool reserved14() const override { return {}; }
    bool reserved15() const override { return {}; }
    bool reserved16() const override { return {}; }
    bool reserved17() const override { return {}; }
    bool reserved18() const override { return {}; }
    int getQuickKind() const override { return {}; }
    bool getAttributeJ() const override { return {}; }
    void reserved19() override {}
    int reserved20() const override { return {}; }
    bool reserved21() const override { return {}; }
    void reserved22() override {}
    void reserved23() override {}
    bool getAttributeK() const override { return {}; }
    void setAttributeK(bool) override {}
    void reserved24() override {}
    void reserved25() override {}
    int reserved26() const override { return {}; }
    bool reserved27() const override { return {}; }
    bool reserved28() const override { return {}; }
    NoHandle getNoHandle() const override { return {}; }
    QRect toSensorRect(DOC_Interface*, const QRect&) override { return {}; }
    void reserved29() override {}
    QVariantMap getRectParameters(DOC_Interface*, bool) override { return {}; }
    void setRect(const QRect&) override {}
    QRect getRect() const override { return {}; }
    void resetRect() override {}
    void setAttributeO(bool) override {}
    bool getAttributeO() const override { return {}; }
    void setAttributeP(bool) override {}
    bool getAttributeP() const override { return {}; }
    bool getAttributeL() const override { return {}; }
    void setAttributeL(bool) override {}
    int getAttributeM() const override { return {}; }
    void setAttributeM(int) override {}
    void reserved30() override {}
    void reserved31() override {}
    bool needsLivePause() const override { return {}; }
    bool getAttributeN() const override { return {}; }
    void reserved32() override {}
    bool hasDoc(DOCKEY) override { return {}; }
    void setCursorForHandle(DOC_Interface*, int) override {}
    bool isDialogVisible() const override { return {}; }
    bool isKeyStepped() const override { return {}; }
    void slotModelessPatternDialogShown() override {}
    void slotModelessPatternDialogClosed() override {}
    void slotScreenShot(const QString&) override {}
    bool reserved33() const override { return {}; }
    bool reserved34() const override { return {}; }
    double reserved35() const override { return {}; }
    bool reserved36() const override { return {}; }
    QDialog* createDialog(bool) override { return {}; }
};
