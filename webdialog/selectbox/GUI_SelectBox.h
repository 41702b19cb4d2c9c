#pragma once

#include "SelectBoxPlacement.h"

#include <QPointer>
#include <QWebElement>
#include <QWidget>

class GUI_WebView;
class JS_Mediator;
class JS_Mediator_SelectBox;
class QKeyEvent;
class QVBoxLayout;
class QWebFrame;
class ZebHost;

/// What a drop-down box lists.
enum class SelectBoxType { Partition = 0, OtherPartition = 1, Variable = 2, VariableRegist = 3 };

/// A floating list, itself a page, that opens beside a control of its parent's page. GUI thread.
///
/// The keyboard stays with the parent. While the box is shown it hands the arrows, Home, End and Enter to its own page,
/// and hides at Escape. It keeps its page between two uses. It hides after a choice, and when its parent is hidden,
/// minimised or no longer the active window. It may be destroyed at any time: view and bridge live on until a call that
/// runs in them ends.
class GUI_SelectBox : public QWidget {
    Q_OBJECT

public:
    /// The page at `url` begins to load. `parent` is the window over which the box floats; never null.
    GUI_SelectBox(ZebHost* host, const QString& url, QWidget* parent);
    ~GUI_SelectBox() override;

    /// Follows the updates of `owner`, whose page waits while a choice takes effect.
    void setOwner(JS_Mediator* owner);

    /// Lists what `type`, a `SelectBoxType`, says and shows the box beside `anchor`, in the pixels of the parent's
    /// page. `value` is the channel to select, empty for the one in use. Before the page has loaded the box is shown at
    /// the end of the load; with a page that could not be loaded, never. Throws what the cameras throw, and shows
    /// nothing.
    void showBox(int type, const QRect& anchor, const QString& value);
    /// Where the parent stands on the screen by now.
    void setParentRect(const QRect& rect);
    void setVisible(bool visible) override;
    /// Whether it is shown, or will be when its page has loaded.
    bool isWanted() const { return m_wantVisible; }

public Q_SLOTS:
    void addJSObject();
    void onLoadFinish(bool ok);
    void onClose();
    void onUpdate();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWebFrame* frame() const;
    QWebElementCollection rows() const;
    void fill();
    void place();
    void scrollToSelected();
    void onParentEvent(const QWidget& parent, const QEvent& event);
    /// Whether the key is the box's alone.
    bool takesKey(QKeyEvent& event);
    void leave();

    ZebHost* const m_host;
    JS_Mediator_SelectBox* const m_bridge;
    GUI_WebView* const m_view;
    QVBoxLayout* const m_layout;
    int m_boxType = 0;
    QString m_value;
    QPointer<QWidget> m_keyboard;  // what has the keyboard while the box is shown
    bool m_wantVisible = false;
    bool m_pageLoaded = false;
    QRect m_anchor{QPoint(0, 0), QPoint(-1, -1)};
    QRect m_parentRect;
    SelectBoxDirection m_direction = SelectBoxDirection::Above;
};
