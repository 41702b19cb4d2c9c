#pragma once

#include "ScriptedVisaLoader.h"

#include <QString>
#include <QVariant>

/// The scripted VISA library as a scenario sees it: the generator behind it, and what was asked of that. The library is
/// loaded at the first call, and stays. Throws `ScenarioError` when it is not there.
class VisaScripting {
public:
    VisaScripting() = default;
    /// Lets go whoever still waits for an answer.
    ~VisaScripting();
    VisaScripting(const VisaScripting&) = delete;
    VisaScripting& operator=(const VisaScripting&) = delete;

    /// Replaces what the generator does. Throws `ScenarioError` also for an object that it does not understand.
    void script(const QVariantMap& members);
    /// The calls since the last asking.
    QVariantList takeCalls();
    /// Answers what is held back.
    void release();

private:
    template <typename Function>
    Function find(const char* name);

    ScriptedVisaLoader m_library;
    bool m_isUsed = false;
};
