#pragma once

#include "FaultPlan.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <random>

/// The numbers of the `calls` to fail, for `FaultPlan::plantAt`: of each operation the first, the last and one between,
/// of these one in `share`; and all calls where somebody wants to wait for that (`./test long`).
inline QList<int> callsToFail(const QVector<FaultPlan::Call>& calls, int share = 1) {
    static const bool all = qEnvironmentVariableIsSet("WREN_LONG");
    QMap<QPair<bool, QByteArray>, QList<int>> places;
    for (int i = 0; i < calls.size(); ++i) {
        places[{calls[i].key == FaultPlan::Host, calls[i].operation}] << i + 1;
    }
    std::mt19937 random(14);
    QSet<int> numbers;
    for (const QList<int>& each : places) {
        const int between = each.at(int(random() % unsigned(each.size())));
        numbers += all ? QSet<int>(each.begin(), each.end()) : QSet<int>{each.first(), between, each.last()};
    }
    QList<int> inOrder = numbers.values();
    std::sort(inOrder.begin(), inOrder.end());
    for (int i = inOrder.size() - 1; i >= 0 && !all; --i) {
        if (i % share != 0) {
            inOrder.removeAt(i);
        }
    }
    return inOrder;
}
