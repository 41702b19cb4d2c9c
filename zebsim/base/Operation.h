#pragma once

#include <QSet>
#include <QString>

#include <cstring>

/// What an `Owner` is asked to do, and can fail at when a fault is planted on it. It is named where it begins, as
/// `OPERATION("getRecordRate")`; one that stands in the journal by the call, as `OPERATION("ZebHost::setPref")`.
template <typename Owner>
class Operation {
public:
    const char* call() const { return m_call; }
    /// The last part of the call.
    const char* name() const {
        const char* colon = std::strrchr(m_call, ':');
        return colon ? colon + 1 : m_call;
    }
    /// Those of all operations that stand in the program, whether or not they have run. From `main` on.
    static const QSet<QString>& names() { return list(); }

private:
    template <typename Text>
    friend class OperationText;

    explicit Operation(const char* call) : m_call(call) { list().insert(QString::fromLatin1(name())); }
    static QSet<QString>& list() {
        static QSet<QString> names;
        return names;
    }

    const char* m_call;
};

/// What `OPERATION` makes: it becomes an operation of whoever takes it.
template <typename Text>
class OperationText {
public:
    template <typename Owner>
    operator Operation<Owner>() const {
        return operation<Owner>;
    }

private:
    /// Made before `main` wherever a text is taken as an operation.
    template <typename Owner>
    static const Operation<Owner> operation;
};

template <typename Text>
template <typename Owner>
const Operation<Owner> OperationText<Text>::operation{Text::text()};

#define OPERATION(call)                 \
    [] {                                \
        struct Text {                   \
            static const char* text() { \
                return call;            \
            }                           \
        };                              \
        return OperationText<Text>();   \
    }()

using CameraOperation = Operation<class Camera>;
using HubOperation = Operation<class SignalHub>;
using HostOperation = Operation<class SimHost>;
