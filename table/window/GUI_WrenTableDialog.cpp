#include "GUI_WrenTableDialog.h"

#include "BridgeCall.h"
#include "GUI_SelectBox.h"
#include "GUI_WebView.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "LogFailure.h"
#include "TablePlacement.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopWidget>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWebFrame>

#include <utility>

namespace {

constexpr QSize MinimumSize(1200, 400);
/// From the end of the page's load to the making of the select box, milliseconds.
constexpr int SelectBoxDelay = 200;
const QString ReadyPref = QStringLiteral("wren/ready");

QString placementPref(const char* name) {
    return QStringLiteral("wren/table/") % QLatin1String(name);
}

QVector<QRect> screenGeometries() {
    QVector<QRect> geometries;
    for (const QScreen* screen : QGuiApplication::screens()) {
        geometries.append(screen->geometry());
    }
    return geometries;
}

}  // namespace

GUI_WrenTableDialog::GUI_WrenTableDialog(ZebHost* host, const QString& title, const QString& url,
                                         JS_Mediator_WrenTableDialog* bridge, PLG_Interface* plugin)
    : GUI_ModelessPatternDialog(host, title, url, bridge, plugin), m_table(bridge) {
    // The table itself comes first.
    connect(getWebView(), &QWebView::loadFinished, this,
            [this] { QTimer::singleShot(SelectBoxDelay, this, &GUI_WrenTableDialog::prepareSelectBox); });
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    setMinimumSize(MinimumSize);
    restorePlacement();
}

GUI_WrenTableDialog::~GUI_WrenTableDialog() = default;

void GUI_WrenTableDialog::finishTyping() {
    getWebView()->page()->mainFrame()->evaluateJavaScript(
        QStringLiteral("typeof numberBox === 'object' && guarded(() => numberBox.finishTyping())"));
}

GUI_SelectBox& GUI_WrenTableDialog::selectBox() {
    if (!m_selectBox) {
        m_selectBox = std::make_unique<GUI_SelectBox>(&host(), QStringLiteral("qrc:selectbox.html"), this);
        m_selectBox->setOwner(m_table);
    }
    return *m_selectBox;
}

void GUI_WrenTableDialog::prepareSelectBox() {
    if (isVisible()) {
        logFailure([this] { selectBox(); });
    }
}

void GUI_WrenTableDialog::showPartitionBox(const QRect& anchor) {
    selectBox().showBox(int(SelectBoxType::Partition), anchor, {});
}

void GUI_WrenTableDialog::hidePartitionBox() {
    if (m_selectBox) {
        m_selectBox->hide();
    }
}

bool GUI_WrenTableDialog::isPartitionBoxShown() const {
    return m_selectBox && m_selectBox->isWanted();
}

void GUI_WrenTableDialog::openPage() {
    const QPointer<GUI_WrenTableDialog> self(this);
    GUI_ModelessPatternDialog::openPage();
    if (self) {
        m_table->ensureSession();
    }
}

void GUI_WrenTableDialog::closePage() {
    const QPointer<GUI_WrenTableDialog> self(this);
    GUI_ModelessPatternDialog::closePage();
    if (self) {
        m_table->endSession();
    }
}

void GUI_WrenTableDialog::updatePage() {
    logFailure([this] { GUI_ModelessPatternDialog::updatePage(); });
}

void GUI_WrenTableDialog::closeEvent(QCloseEvent* event) {
    if (isHidden()) {  // meanwhile, while its close was put off
        return;
    }
    const QPointer<GUI_WrenTableDialog> self(this);
    const bool ticking = m_table->isTicking();
    call(*m_table, JS_Mediator::Plain, __func__, {}, [this] { storePlacement(); });
    // The host may take the plug-in away in each of these calls, and the window with it.
    if (self) {
        QCoreApplication::processEvents();
    }
    if (!self || !mayClose()) {
        if (self && !ticking) {
            m_table->stopAutoUpdate();  // the end of our calls has started them
        }
        event->ignore();
        return;
    }
    call(*m_table, JS_Mediator::Plain, __func__, {},
         [this] { host().setPrefBool(ReadyPref, host().isApplicationClosing()); });
    if (self) {
        GUI_ModelessPatternDialog::closeEvent(event);
    }
}

void GUI_WrenTableDialog::moveEvent(QMoveEvent* event) {
    GUI_ModelessPatternDialog::moveEvent(event);
    takePartitionBoxAlong();
}

void GUI_WrenTableDialog::resizeEvent(QResizeEvent* event) {
    GUI_ModelessPatternDialog::resizeEvent(event);
    takePartitionBoxAlong();
}

void GUI_WrenTableDialog::takePartitionBoxAlong() {
    if (m_selectBox) {
        m_selectBox->setParentRect(geometry());
    }
}

/// Where the window was when it was closed; see `placeTable` for what has changed since.
void GUI_WrenTableDialog::restorePlacement() {
    const auto stored = [this](const char* name) { return host().getPrefInt(placementPref(name)); };
    const QScreen* mainScreen = host().getMainWindow() != nullptr ? host().getMainWindow()->screen() : screen();
    const TablePlacement placement = placeTable({QPoint(stored("x"), stored("y")), QSize(stored("w"), stored("h")),
                                                 Qt::WindowStates(QFlag(stored("stat"))), stored("scrno")},
                                                MinimumSize, screenGeometries(), mainScreen->geometry());
    setGeometry(placement.geometry);
    setWindowState(placement.state);
    if (placement.centered) {
        centerOnMainScreen();
    }
}

void GUI_WrenTableDialog::storePlacement() {
    if (host().isWindowStateSaveSuppressed()) {
        return;
    }
    ZebHost& store = host();
    const QRect normal = normalGeometry();
    const std::pair<const char*, int> values[] = {{"x", normal.left()},
                                                  {"y", normal.top()},
                                                  {"w", normal.width()},
                                                  {"h", normal.height()},
                                                  {"scrno", QApplication::desktop()->screenNumber(this)},
                                                  {"stat", int(windowState())}};
    for (const auto& [name, value] : values) {
        store.setPrefInt(placementPref(name), value);
    }
}

/// The question counts as a call of the bridge: no tick comes while it stands and no camera is changed behind it.
bool GUI_WrenTableDialog::mayClose() {
    const QPointer<GUI_WrenTableDialog> self(this);
    const bool agreed = host().isApplicationClosing() || call(*m_table, JS_Mediator::Plain, __func__, {}, [this] {
                            return host().confirmModal(TextKey("Quit WREN?"), this, {});
                        });
    return self && (agreed || host().isApplicationClosing());
}
