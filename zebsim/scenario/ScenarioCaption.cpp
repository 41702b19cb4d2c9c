#include "ScenarioCaption.h"

#include <QScreen>

namespace {

constexpr int Padding = 12;
constexpr int Foot = 24;

}  // namespace

ScenarioCaption::ScenarioCaption(const QString& scenario, QWidget& viewer)
    : QLabel(&viewer,
             Qt::ToolTip | Qt::WindowStaysOnTopHint | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus),
      m_scenario(scenario) {
    setObjectName(QStringLiteral("caption"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setTextFormat(Qt::PlainText);
    setMargin(Padding);
    setStyleSheet(QStringLiteral("#caption { background: #1d3557; color: white; font-size: 15px; }"));
}

void ScenarioCaption::tell(const QString& text) {
    setText(m_scenario % QLatin1String(": ") % text);
    adjustSize();
    const QRect place = parentWidget()->screen()->availableGeometry();
    setMaximumWidth(place.width());
    move(place.center().x() - width() / 2, place.bottom() - Foot - height());
    show();
    raise();
}
