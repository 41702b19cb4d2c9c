#include "TraceScope.h"

namespace {

/// Arguments as they stand in the log: the key that names no document is told by a word.
QString tracedArgs(TraceArgs args) {
    return traceText(args).replace(QStringLiteral("docKey:4294967295"), QStringLiteral("docKey:Invalid")).trimmed();
}

}  // namespace

TraceScope::TraceScope(const QString& name, TraceArgs args) : m_name(name) {
    logEnter(m_name, tracedArgs(args));
}

TraceScope::~TraceScope() {
    logLeave(m_name);
}
