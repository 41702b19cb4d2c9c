#include "AccessibleState.h"

#include <QPair>
#include <QVector>

#include <cstring>

namespace {

quint64 bitsOf(const QAccessible::State& state) {
    static_assert(sizeof(QAccessible::State) == sizeof(quint64));
    quint64 bits = 0;
    std::memcpy(&bits, &state, sizeof bits);
    return bits;
}

QAccessible::State stateOf(quint64 bits) {
    QAccessible::State state;
    std::memcpy(static_cast<void*>(&state), &bits, sizeof bits);
    return state;
}

template <typename Set>
quint64 bitOf(Set set) {
    QAccessible::State state;
    set(state);
    return bitsOf(state);
}

const QVector<QPair<QString, quint64>>& namedBits() {
    using State = QAccessible::State;
    static const QVector<QPair<QString, quint64>> bits{
        {QStringLiteral("disabled"), bitOf([](State& s) { s.disabled = true; })},
        {QStringLiteral("focusable"), bitOf([](State& s) { s.focusable = true; })},
        {QStringLiteral("focused"), bitOf([](State& s) { s.focused = true; })},
        {QStringLiteral("selectable"), bitOf([](State& s) { s.selectable = true; })},
        {QStringLiteral("selected"), bitOf([](State& s) { s.selected = true; })},
        {QStringLiteral("checkable"), bitOf([](State& s) { s.checkable = true; })},
        {QStringLiteral("checked"), bitOf([](State& s) { s.checked = true; })},
        {QStringLiteral("checkStateMixed"), bitOf([](State& s) { s.checkStateMixed = true; })},
        {QStringLiteral("expandable"), bitOf([](State& s) { s.expandable = true; })},
        {QStringLiteral("expanded"), bitOf([](State& s) { s.expanded = true; })},
        {QStringLiteral("collapsed"), bitOf([](State& s) { s.collapsed = true; })},
        {QStringLiteral("editable"), bitOf([](State& s) { s.editable = true; })},
        {QStringLiteral("multiLine"), bitOf([](State& s) { s.multiLine = true; })},
        {QStringLiteral("readOnly"), bitOf([](State& s) { s.readOnly = true; })},
        {QStringLiteral("passwordEdit"), bitOf([](State& s) { s.passwordEdit = true; })},
        {QStringLiteral("modal"), bitOf([](State& s) { s.modal = true; })},
        {QStringLiteral("invisible"), bitOf([](State& s) { s.invisible = true; })},
        {QStringLiteral("offscreen"), bitOf([](State& s) { s.offscreen = true; })},
    };
    return bits;
}

}  // namespace

QAccessible::State accessibleState(const QStringList& names) {
    quint64 bits = 0;
    for (const auto& [name, bit] : namedBits()) {
        bits |= names.contains(name) ? bit : 0;
    }
    return stateOf(bits);
}

QStringList stateNames(const QAccessible::State& state) {
    QStringList names;
    for (const auto& [name, bit] : namedBits()) {
        if ((bitsOf(state) & bit) != 0) {
            names.append(name);
        }
    }
    return names;
}

QAccessible::State difference(const QAccessible::State& one, const QAccessible::State& other) {
    return stateOf(bitsOf(one) ^ bitsOf(other));
}
