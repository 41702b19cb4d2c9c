#include "GUI_SelectBox.h"

#include "BridgeCall.h"
#include "GUI_WebView.h"
#include "JS_Mediator_SelectBox.h"
#include "LogFailure.h"
#include "PageEnd.h"
#include "SelectBoxText.h"
#include "Style.h"
#include "TraceText.h"
#include "ZebHost.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebPage>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// Keys that the box's page answers.
constexpr std::array ListKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Enter};
constexpr float Opacity = 0.9F;
const QString RowSelector = QStringLiteral("#items>li>a");

SelectBoxDirection directionOf(SelectBoxType type) {
    switch (type) {
        case SelectBoxType::Partition:
        case SelectBoxType::OtherPartition:
            return SelectBoxDirection::Above;
        case SelectBoxType::Variable:
        case SelectBoxType::VariableRegist:
            return SelectBoxDirection::BelowWideToLeft;
    }
    return SelectBoxDirection::Below;
}

}  // namespace

GUI_SelectBox::GUI_SelectBox(ZebHost* host, const QString& url, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      m_bridge(new JS_Mediator_SelectBox(host)),
      m_view(new GUI_WebView(host, parent)),
      m_layout(new QVBoxLayout(this)),
      m_parentRect(parent->geometry()) {
    installEventFilter(this);
    parent->installEventFilter(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_view);
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setWindowOpacity(qreal(Opacity));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // The keyboard stays with the page that the box belongs to.
    setAttribute(Qt::WA_ShowWithoutActivating);
    frame()->setScrollBarPolicy(Qt::Horizontal, Qt::ScrollBarAlwaysOff);
    frame()->setScrollBarPolicy(Qt::Vertical, Qt::ScrollBarAsNeeded);
    connect(frame(), &QWebFrame::javaScriptWindowObjectCleared, this, &GUI_SelectBox::addJSObject);
    connect(m_view, &QWebView::loadFinished, this, &GUI_SelectBox::onLoadFinish);
    connect(m_bridge, &JS_Mediator::close, this, &GUI_SelectBox::onClose);
    connect(m_bridge, &JS_Mediator::update, this, &GUI_SelectBox::onUpdate);
    m_view->setUrl(QUrl(url));
}

GUI_SelectBox::~GUI_SelectBox() {
    disconnect(m_view, nullptr, this, nullptr);  // a load that is cut off ends once more
    destroyPage(m_view, {m_bridge});
}

void GUI_SelectBox::setOwner(JS_Mediator* owner) {
    m_bridge->setOwner(owner);
    connect(owner, &JS_Mediator::update, m_bridge, &JS_Mediator::update);
}

QWebFrame* GUI_SelectBox::frame() const {
    return m_view->page()->mainFrame();
}

QWebElementCollection GUI_SelectBox::rows() const {
    return frame()->findAllElements(RowSelector);
}

void GUI_SelectBox::addJSObject() {
    frame()->addToJavaScriptWindowObject(QStringLiteral("app"), m_host->getAppObject());
    frame()->addToJavaScriptWindowObject(QStringLiteral("main"), m_host->getMainObject());
    frame()->addToJavaScriptWindowObject(m_bridge->bridgeName(), m_bridge);
}

/// A list that was asked for while the page loaded has reached nobody: it is told again.
void GUI_SelectBox::onLoadFinish(bool ok) {
    call(*m_bridge, JS_Mediator::Plain, __func__, {}, [&] {
        m_pageLoaded = ok;
        onUpdate();
        // A list that can't be read is not shown, and so not wanted any more.
        const bool wanted = std::exchange(m_wantVisible, false);
        if (wanted) {
            fill();
        }
        setVisible(wanted);
    });
}

void GUI_SelectBox::onClose() {
    hide();
}

void GUI_SelectBox::onUpdate() {
    logFailure([this] {
        const bool light = styleName(*m_host) == QLatin1String("light");
        m_view->setStyleSheet(light ? QStringLiteral("background:#eee;") : QStringLiteral("background:#333;"));
    });
}

void GUI_SelectBox::showBox(int type, const QRect& anchor, const QString& value) {
    m_boxType = type;
    m_anchor = anchor;
    m_value = value;
    m_direction = directionOf(SelectBoxType(type));
    fill();
    setVisible(true);
}

void GUI_SelectBox::fill() {
    switch (SelectBoxType(m_boxType)) {
        case SelectBoxType::Partition:
        case SelectBoxType::OtherPartition:
            m_bridge->showPartitions();
            break;
        case SelectBoxType::Variable:
            m_bridge->showVariables(m_value);
            break;
        case SelectBoxType::VariableRegist:
            m_bridge->showVariablesToRegister(m_value);
            break;
    }
}

void GUI_SelectBox::setParentRect(const QRect& rect) {
    m_parentRect = rect;
    place();
}

void GUI_SelectBox::setVisible(bool visible) {
    m_wantVisible = visible;
    if (m_keyboard) {
        m_keyboard->removeEventFilter(this);
    }
    m_keyboard = nullptr;
    if (!visible) {
        QWidget::setVisible(false);
    } else if (m_pageLoaded) {
        place();
        QWidget::setVisible(true);
        scrollToSelected();
        m_keyboard = parentWidget()->focusWidget();
        if (m_keyboard) {
            m_keyboard->installEventFilter(this);
        }
    }
}

void GUI_SelectBox::place() {
    SelectBoxLayout layout;
    layout.direction = m_direction;
    layout.anchor = m_anchor;
    layout.parentRect = m_parentRect;
    const QWebElementCollection items = rows();
    layout.rows = items.count();
    if (growsWithText(m_direction)) {
        for (const QWebElement& row : items) {
            layout.textWidth = qMax(layout.textWidth, selectBoxTextWidth(row.toPlainText()));
        }
    }
    Q_EMIT m_bridge->signalSetHeight(m_anchor.height());
    setGeometry(placeSelectBox(layout));
}

void GUI_SelectBox::scrollToSelected() {
    const QWebElement selected = frame()->findFirstElement(RowSelector % QStringLiteral(".selected"));
    const int index = selected.isNull() ? -1 : selected.attribute(QStringLiteral("index")).toInt();
    if (const auto target = selectBoxScroll(rows().count(), m_anchor.height(), index)) {
        frame()->scroll(0, *target - frame()->scrollBarValue(Qt::Vertical));
    }
}

void GUI_SelectBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
    scrollToSelected();
}

bool GUI_SelectBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this) {
        if (event->type() == QEvent::WindowDeactivate && m_wantVisible) {
            leave();
        }
        if (event->type() == QEvent::Close) {
            logUserClose(*this);
        }
    } else if (watched == m_keyboard && event->type() == QEvent::KeyPress) {
        return takesKey(static_cast<QKeyEvent&>(*event));
    } else if (m_wantVisible && watched == parentWidget()) {
        onParentEvent(*parentWidget(), *event);
    }
    return QWidget::eventFilter(watched, event);
}

/// The box itself is rarely the active window, so what its parent meets counts as well.
void GUI_SelectBox::onParentEvent(const QWidget& parent, const QEvent& event) {
    const bool goesAway =
        event.type() == QEvent::Hide || (event.type() == QEvent::WindowStateChange && parent.isMinimized());
    const bool leftForOther = event.type() == QEvent::WindowDeactivate && QApplication::activeWindow() != this;
    if (goesAway || leftForOther) {
        leave();
    }
}

/// Escape goes on to the parent's page, which takes away what it has laid over itself.
bool GUI_SelectBox::takesKey(QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape) {
        leave();
    }
    if (std::find(ListKeys.begin(), ListKeys.end(), event.key()) == ListKeys.end()) {
        return false;
    }
    QApplication::sendEvent(m_view, &event);
    return true;
}

void GUI_SelectBox::leave() {
    hide();
    logFailure([this] { m_host->hideSelectBox(); });
}
