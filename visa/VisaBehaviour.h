#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <cstdint>
#include <optional>

/// What a script says: of the instrument, and of how the calls fail or wait.
struct VisaBehaviour {
    struct Call {
        /// A VISA status that the call ends with instead of doing its work; 0 for none.
        std::int32_t status = 0;
        bool holds = false;
        /// From which call on, 1 for the first.
        int from = 1;
    };

    /// Null: the instrument's own.
    QByteArray identity;
    std::optional<double> frequency;
    /// Exact answers of questions; empty: no answer.
    QMap<QByteArray, QByteArray> replies;
    QMap<QByteArray, Call> calls;

    /// Throws `std::runtime_error` that says what is wrong.
    static VisaBehaviour fromJson(const QByteArray& json);
};
