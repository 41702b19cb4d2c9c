#pragma once

#include "FaultPlan.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <random>

/// The numbers of the `calls` to fail, for `FaultPlan::plantAt`: of each operation the first, the last and one between;
/// all calls where somebody wants to wait for that (`./test long`).
inline QList<int> callsToFail(const QVector<FaultPlan::Call>& calls) {
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
    return inOrder;
}
