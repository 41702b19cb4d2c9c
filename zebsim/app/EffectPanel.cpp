#include "EffectPanel.h"

#include "Camera.h"
#include "ImageEffects.h"
#include "UiText.h"

#include <QCheckBox>
#include <QHBoxLayout>
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

void EffectPanel::follow(const Camera& camera) {
    const CameraState state = camera.state();
    build(state.plugins);
    for (Row& row : m_rows) {
        const bool isLive = (row.effect->modes >> zeb::LiveMode & 1) != 0;
        const bool isOpen = !(state.locked && isLive) && !state.blockedPlugins.contains(row.effect->name);
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
        auto* spin = new QSpinBox(row.box);
        spin->setObjectName(effect.name % QLatin1Char('.') % number.name);
        spin->setRange(number.lowest, number.highest);
        spin->setSingleStep(number.step);
        spin->setKeyboardTracking(false);
        layout->addWidget(new QLabel(uiText(number.text), row.box));
        layout->addWidget(spin);
        row.numbers.append(spin);
        if (!effect.needsOk) {
            connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this,
                    [this, name = effect.name] { send(m_rows[name]); });
        }
    }
    if (effect.needsOk) {
        auto* ok = new QPushButton(uiText("OK"), row.box);
        ok->setObjectName(effect.name % QStringLiteral(".ok"));
        layout->addWidget(ok);
        connect(ok, &QPushButton::clicked, this, [this, name = effect.name] { send(m_rows[name]); });
    }
    layout->addStretch();
    m_layout->addWidget(row.box);
    return row;
}

void EffectPanel::send(const Row& row) {
    QVector<int> values;
    for (int i = 0; i < row.numbers.size(); ++i) {
        // A number that is typed need not lie on a step.
        const EffectNumber& number = row.effect->numbers[i];
        const int typed = row.numbers[i]->value();
        values.append(typed - (typed - number.lowest) % number.step);
        row.numbers[i]->setValue(values.last());
    }
    Q_EMIT changed(row.effect->name, values);
}
