#pragma once

#include "ZebTypes.h"

#include <QObject>
#include <QPair>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QVariantMap>

class QDialog;
class QKeyEvent;
class QWidget;
class ZebHost;
class ZebPageBridge;

/// A plug-in as the host sees it. GUI thread.
///
/// The host calls the operations by their place, so their order stays as it is. Those whose purpose is the host's alone
/// are called `reserved`. Signals are raised by name (`QMetaObject::invokeMethod`): `signalRecord`, `signalSaveFile`,
/// `signalSaveLayout`, `signalEndRecording`, `signalDisconnect`, `signalStartAutoUpdate`, `signalStopAutoUpdate`, and
/// `signalScreenShot(QString)`, which waits for the GUI thread and so must be raised from another one, by a direct
/// call.
///
/// What a host calls, in this order: `setHost`; to open, `prepareOpen`, `activate`, `getDialog(true)` and `showDialog`,
/// of which each may throw and end the opening; at every update cycle `updateDialog`; to close, `closeDialog`, which
/// may ask the user. When the dialog has closed, by whomever, the plug-in calls `ZebAppStatus::closePlugin`, and the
/// host answers with `deactivate`. A dialog that was closed is kept, and opened again in the same way.
///
/// The host's boxes and dialogs are modal for the application. What changes cameras is refused while the plug-in waits
/// for one; a user who reached the table beneath it would press in vain.
///
/// A host may destroy the plug-in from its event loop and in any call of the plug-in that runs one: boxes, dialogs,
/// searches, connecting, commands to cameras, saving, changes of mode. Also where it stores a preference and where it
/// hears of the plug-in: `setWrenRunning`, `notifyPluginShown`, `notifyPluginClosed`, `openPlugin`, `closePlugin`. From
/// then on `getPlugin` answers null. What the plug-in can't clear away beneath such a call it clears away when the
/// event loop is back; until then host and documents must live.
class PLG_Interface : public QObject {
public:
    using NoHandle = QPair<DOC_Interface*, int>;

    /// Called once, before any other use. The host outlives the plug-in.
    virtual void setHost(ZebHost* host) = 0;
    /// Closes the dialog of a plug-in whose button opens one.
    virtual void closeByType() = 0;
    /// Draws the panel anew when it is in the active window.
    virtual void updatePanel() = 0;
    virtual void reserved1() = 0;
    virtual void reserved2() = 0;
    virtual void reserved3() = 0;
    /// Text of the plug-in's page; empty when it has none.
    virtual QString getPageHtml() = 0;
    /// The plug-in is being opened, and has been closed.
    virtual void activate() = 0;
    virtual void deactivate() = 0;

    /// Life of an image tool; nothing happens while `isToolActive` is false.
    virtual void endTool() = 0;
    virtual void confirmTool() = 0;
    virtual void applyTool() = 0;
    virtual void cancelTool() = 0;
    virtual void resetToolGuarded(bool guarded) = 0;
    virtual void resetTool() = 0;
    virtual void previewToolGuarded(bool guarded) = 0;
    virtual void previewTool() = 0;
    virtual void repeatTool() = 0;
    virtual void reserved4() = 0;
    virtual void reserved5() = 0;
    virtual void reserved6() = 0;

    /// Bridge of the side panel; null when there is none. Owned by the plug-in.
    virtual ZebPageBridge* getPanelBridge() = 0;
    virtual QString getName() const = 0;
    /// How the host sorts its plug-ins; numbers of its own, as those of `getGroupNumber`, `getSizeGroup` and the
    /// further attributes.
    virtual int getCategory() const = 0;
    virtual int getAttributeA() const = 0;
    virtual int getAttributeB() const = 0;
    virtual int getAttributeC() const = 0;
    virtual bool isStandardPlugin() const = 0;
    /// An option of the plug-in, kept apart for file mode and for the others; it has a second one that is only read.
    virtual void setOptionForMode(bool on) = 0;
    /// Whether the plug-in is in use.
    virtual void setRunning(bool running) = 0;
    virtual bool isRunning() const = 0;
    /// `mode` 0 live, 1 memory, 2 file.
    virtual bool isAvailableInMode(int mode) const = 0;
    virtual bool isAvailable() const = 0;
    /// Whether a change of mode closes the dialog.
    virtual bool getCloseOnModeChange() const = 0;
    virtual void setCloseOnModeChange(bool close) = 0;
    virtual bool getOptionForMode() const = 0;
    virtual bool isToolActive() const = 0;
    virtual bool getOption2ForMode() const = 0;

    /// The panel is about to be shown, and has been given up.
    virtual void preparePanel() = 0;
    virtual void clearPanelWidget() = 0;
    /// Side panel widget; null when there is none. Owned by the page that shows it.
    virtual QWidget* getPanelWidget() const = 0;

    /// Mouse on the image of a document, `point` in image pixels.
    virtual void mousePress(const QPoint& point, DOCKEY key) = 0;
    virtual void reserved7() = 0;
    virtual void mouseMove(const QPoint& point, DOCKEY key) = 0;
    virtual void mouseRelease(DOCKEY key) = 0;
    virtual void mouseReleaseAt(const QPoint& point, DOCKEY key) = 0;
    virtual void reserved8() = 0;
    virtual void reserved9() = 0;
    virtual void reserved10() = 0;
    virtual void resetCursor() = 0;
    virtual bool isDragging() const = 0;
    virtual QPoint getDragStart() const = 0;
    /// (0,0) when the document is gone.
    virtual QPoint getDocPoint(DOCKEY key) = 0;
    virtual QPoint getLastPoint() const = 0;
    virtual int getCursorHandle() const = 0;
    /// 6: the button opens a dialog; 2 and 3: it is that of a tool on the images. How such a tool takes documents is
    /// told by the kinds that follow.
    virtual int getButtonType() const = 0;
    virtual int getSelectKind() const = 0;
    virtual bool isButtonEnabled() const = 0;
    virtual int getToolKind() const = 0;
    virtual int getAttributeF() const = 0;
    virtual int getSizeGroup() const = 0;
    virtual int getAttributeG() const = 0;
    virtual bool reserved11() const = 0;
    /// A mutex of the plug-in. A thread that holds it may take it again.
    virtual void lock() = 0;
    virtual void unlock() = 0;

    /// Whether the button stands pressed for `doc`, which may be null.
    virtual bool isChecked(DOC_Interface* doc, int arg) = 0;
    /// The plug-in's dialog, made when `create` says so; null when there is none, and while it is being made, which
    /// may run an event loop. Owned by the plug-in.
    virtual QDialog* getDialog(bool create) = 0;
    /// Does nothing unless the dialog is hidden or minimised.
    virtual void showDialog() = 0;
    virtual void hideDialog() = 0;
    /// Asks the user, unless the host itself is closing. A dialog whose page waits for something closes after that.
    virtual void closeDialog() = 0;
    /// Part of an update cycle; `mode` as in `isAvailableInMode`.
    virtual void updateDialog(int mode) = 0;
    virtual int getGroupNumber() const = 0;
    virtual void reserved12() = 0;
    virtual int getAttributeH() const = 0;
    virtual void reserved13() = 0;
    /// A text that was dropped on the images.
    virtual void dropString(const QString& text) = 0;
    /// A key that the viewer has got; `isKeyStepped` tells whether the plug-in has moved by it.
    virtual void keyPress(QKeyEvent* event) = 0;
    virtual void clearKeyStepped() = 0;
    virtual QString getConfirmText() const = 0;
    virtual bool getAttributeI() const = 0;
    /// Comes before the plug-in is opened; an exception ends the opening, silently with an empty text.
    virtual void prepareOpen() = 0;
    virtual bool reserved14() const = 0;
    virtual bool reserved15() const = 0;
    virtual bool reserved16() const = 0;
    virtual bool reserved17() const = 0;
    virtual bool reserved18() const = 0;
    virtual int getQuickKind() const = 0;
    virtual bool isReselectOnActivate() const = 0;
    virtual bool getAttributeJ() const = 0;
    virtual void reserved19() = 0;
    virtual int reserved20() const = 0;
    virtual bool reserved21() const = 0;
    virtual void reserved22() = 0;
    virtual void reserved23() = 0;
    virtual bool getAttributeK() const = 0;
    virtual void setAttributeK(bool value) = 0;
    virtual void reserved24() = 0;
    virtual void reserved25() = 0;
    virtual int reserved26() const = 0;
    virtual bool reserved27() const = 0;
    virtual bool reserved28() const = 0;
    virtual NoHandle getNoHandle() const = 0;

    /// `rect` in image pixels, in the sensor's pixels; at least 1 by 1.
    virtual QRect toSensorRect(DOC_Interface* doc, const QRect& rect) = 0;
    virtual void reserved29() = 0;
    /// Values for the panel page; `shown` says that a rectangle is shown.
    virtual QVariantMap getRectParameters(DOC_Interface* doc, bool shown) = 0;
    virtual void setRect(const QRect& rect) = 0;
    virtual QRect getRect() const = 0;
    virtual void resetRect() = 0;
    virtual void setAttributeO(bool value) = 0;
    virtual bool getAttributeO() const = 0;
    virtual void setAttributeP(bool value) = 0;
    virtual bool getAttributeP() const = 0;
    virtual bool getAttributeL() const = 0;
    virtual void setAttributeL(bool value) = 0;
    virtual int getAttributeM() const = 0;
    virtual void setAttributeM(int value) = 0;
    virtual void reserved30() = 0;
    virtual void reserved31() = 0;
    /// Whether the live loop rests while the dialog is open.
    virtual bool needsLivePause() const = 0;
    virtual bool getAttributeN() const = 0;
    virtual void reserved32() = 0;
    /// Whether there is such a document.
    virtual bool hasDoc(DOCKEY key) = 0;
    virtual void setCursorForHandle(DOC_Interface* doc, int handle) = 0;
    virtual bool isDialogVisible() const = 0;
    virtual bool isKeyStepped() const = 0;
    virtual void slotModelessPatternDialogShown() = 0;
    virtual void slotModelessPatternDialogClosed() = 0;
    /// Saves a picture of the dialog; the suffix of `path` is the format.
    virtual void slotScreenShot(const QString& path) = 0;
    virtual bool reserved33() const = 0;
    virtual bool reserved34() const = 0;
    virtual double reserved35() const = 0;
    virtual bool reserved36() const = 0;
    virtual QDialog* createDialog(bool create) = 0;
};
