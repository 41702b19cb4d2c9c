#include "JS_Mediator_FileDialog.h"

JS_Mediator_FileDialog::JS_Mediator_FileDialog(ZebHost* host, const QString& name, QObject* parent)
    : JS_Mediator_Dialog(host, name, parent),
      m_kind(jobKind(name)),
      m_time(QDateTime::currentDateTime()),
      m_skipPrefs(*host, m_kind),
      m_records(*host, m_kind, m_time) {
    qRegisterMetaType<DOCKEY>("DOCKEY");
    qRegisterMetaType<PARTITIONNUMBER>("PARTITIONNUMBER");
}
