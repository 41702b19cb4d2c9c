#include "DropDownBoxes.h"

#include "GUI_SelectBox.h"
#include "SimHost.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace {

std::optional<SelectBoxType> typeOf(const QString& key) {
    if (key == QLatin1String("partition")) {
        return SelectBoxType::Partition;
    }
    if (key == QLatin1String("variable")) {
        return SelectBoxType::Variable;
    }
    if (key == QLatin1String("variableRegist")) {
        return SelectBoxType::VariableRegist;
    }
    return std::nullopt;
}

}  // namespace

DropDownBoxes::DropDownBoxes(SimHost& host, QWidget& window) : m_host(host), m_window(window) {
    window.installEventFilter(this);
    connect(&host.events(), &HostEvents::updateFinished, this, [this] {
        for (const auto& entry : m_boxes) {
            entry.second->onUpdate();
        }
    });
}

DropDownBoxes::~DropDownBoxes() = default;

void DropDownBoxes::show(const QString& key, const QRect& anchor) {
    const std::optional<SelectBoxType> type = typeOf(key);
    if (!type) {
        return;
    }
    hide({});
    box(key).showBox(int(*type), anchor, {});
}

void DropDownBoxes::hide(const QString& key) {
    for (const auto& entry : m_boxes) {
        if (key.isEmpty() || entry.first == key) {
            entry.second->hide();
        }
    }
}

bool DropDownBoxes::isShown() const {
    return std::any_of(m_boxes.begin(), m_boxes.end(), [](const auto& entry) { return entry.second->isVisible(); });
}

QRect DropDownBoxes::rect(const QString& key) const {
    const auto found = m_boxes.find(key);
    if (found == m_boxes.end() || !found->second->isVisible()) {
        return {};
    }
    return found->second->geometry().translated(-m_window.geometry().topLeft());
}

bool DropDownBoxes::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        for (const auto& entry : m_boxes) {
            entry.second->setParentRect(m_window.geometry());
        }
    }
    return QObject::eventFilter(watched, event);
}

GUI_SelectBox& DropDownBoxes::box(const QString& key) {
    std::unique_ptr<GUI_SelectBox>& box = m_boxes[key];
    if (!box) {
        box = std::make_unique<GUI_SelectBox>(&m_host, QStringLiteral("qrc:selectbox.html"), &m_window);
    }
    return *box;
}
