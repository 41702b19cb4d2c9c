#include "EffectPanel.h"

#include "Camera.h"
#include "ImageEffects.h"
#include "UiText.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>
#include <vector>

namespace {

constexpr int Margin = 4;

}  // namespace

EffectPanel::EffectPanel(QWidget* parent) : QScrollArea(parent) {
    auto* inside = new QWidget(this);
    m_layout = new QVBoxLayout(inside);
    m_layout->setContentsMargins(Margin, Margin, Margin, Margin);
    m_layout->setSizeConstraint(QLayout::SetMinAndMaxSize);
    setWidget(inside);
    setWidgetResizable(true);
    hide();
}

void EffectPanel::follow(const Camera& camera, bool isBlocked) {
    const CameraState state = camera.state();
    build(state.plugins);
    for (Row& row : m_rows) {
        const bool isLive = (row.effect->modes >> zeb::LiveMode & 1) != 0;
        const bool isOpen = !isBlocked && !(state.locked && isLive) && !state.blockedPlugins.contains(row.effect->name);
        row.on->setChecked(state.effectivePlugins.contains(row.effect->name));
        const QVector<int> values = row.effect->valuesOf(state);
        if (values != row.values || isOpen != row.box->isEnabled()) {
            row.values = values;
            showValues(row, isOpen);
        }
    }
}

/// A number that is half typed would go out when its box is greyed.
void EffectPanel::showValues(const Row& row, bool isOpen) {
    std::vector<std::unique_ptr<QSignalBlocker>> silent;
    for (QSpinBox* number : row.numbers) {
        silent.push_back(std::make_unique<QSignalBlocker>(number));
    }
    row.box->setEnabled(isOpen);
    for (int i = 0; i < row.values.size(); ++i) {
        row.numbers[i]->setValue(row.values[i]);
    }
    if (row.ok != nullptr) {
        row.ok->setEnabled(false);
    }
}

bool EffectPanel::eventFilter(QObject* object, QEvent* event) {
    auto* number = qobject_cast<QSpinBox*>(object);
    if (number != nullptr && event->type() == QEvent::Wheel && !number->hasFocus()) {
        event->ignore();
        return true;
    }
    if (number != nullptr && event->type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        for (const Row& row : qAsConst(m_rows)) {
            if (row.numbers.contains(number)) {
                showValues(row, true);
            }
        }
        return true;
    }
    return QScrollArea::eventFilter(object, event);
}

void EffectPanel::build(const QStringList& plugins) {
    if (plugins == m_plugins) {
        return;
    }
    m_plugins = plugins;
    for (const Row& row : qAsConst(m_rows)) {
        delete row.box;
    }
    m_rows.clear();
    for (const ImageEffect& effect : imageEffects()) {
        if (plugins.contains(effect.name)) {
            m_rows.insert(effect.name, makeRow(effect));
        }
    }
}

EffectPanel::Row EffectPanel::makeRow(const ImageEffect& effect) {
    Row row;
    row.effect = &effect;
    row.box = new QWidget(widget());
    auto* layout = new QHBoxLayout(row.box);
    layout->setContentsMargins({});
    row.on = new QCheckBox(uiText(effect.title), row.box);
    row.on->setObjectName(effect.name);
    layout->addWidget(row.on);
    connect(row.on, &QCheckBox::clicked, this, [this, name = effect.name](bool on) { Q_EMIT switched(name, on); });
    for (const EffectNumber& number : effect.numbers) {
        layout->addWidget(new QLabel(uiText(number.text), row.box));
        row.numbers.append(makeNumber(effect, number, row.box));
        layout->addWidget(row.numbers.last());
    }
    if (effect.needsOk) {
        row.ok = new QPushButton(uiText("OK"), row.box);
        row.ok->setObjectName(effect.name % QStringLiteral(".ok"));
        row.ok->setEnabled(false);
        layout->addWidget(row.ok);
        connect(row.ok, &QPushButton::clicked, this, [this, name = effect.name] { send(m_rows[name]); });
    }
    layout->addStretch();
    m_layout->addWidget(row.box);
    return row;
}

QSpinBox* EffectPanel::makeNumber(const ImageEffect& effect, const EffectNumber& number, QWidget* parent) {
    auto* spin = new QSpinBox(parent);
    spin->setObjectName(effect.name % QLatin1Char('.') % number.name);
    spin->setRange(number.lowest, number.highest);
    spin->setSingleStep(number.step);
    spin->setKeyboardTracking(effect.needsOk);
    spin->setFocusPolicy(Qt::StrongFocus);
    spin->installEventFilter(this);
    connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, &effect] {
        const Row& row = m_rows[effect.name];
        if (row.ok != nullptr) {
            row.ok->setEnabled(typed(row) != row.values);
        } else {
            send(row);
        }
    });
    return spin;
}

/// A number that is typed need not lie on a step.
QVector<int> EffectPanel::typed(const Row& row) {
    QVector<int> values;
    for (int i = 0; i < row.numbers.size(); ++i) {
        const EffectNumber& number = row.effect->numbers[i];
        const int value = row.numbers[i]->value();
        values.append(value - (value - number.lowest) % number.step);
    }
    return values;
}

void EffectPanel::send(const Row& row) {
    const QVector<int> values = typed(row);
    for (int i = 0; i < values.size(); ++i) {
        row.numbers[i]->setValue(values[i]);
    }
    if (row.ok != nullptr) {
        row.ok->setEnabled(false);
    }
    Q_EMIT changed(row.effect->name, values);
}
