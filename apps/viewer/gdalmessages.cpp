#include "gdalmessages.h"

#include <cpl_error.h>

namespace {

void CPL_STDCALL collect(CPLErr kind, CPLErrorNum, const char* text)
{
    if (kind == CE_Failure || kind == CE_Fatal)
        static_cast<GdalMessages*>(CPLGetErrorHandlerUserData())->add(QString::fromUtf8(text));
}

} // namespace

GdalMessages::GdalMessages()
{
    CPLPushErrorHandlerEx(collect, this);
}

GdalMessages::~GdalMessages()
{
    CPLPopErrorHandler();
}

void GdalMessages::add(const QString& failure)
{
    if (!m_failure.isEmpty())
        return;
    m_failure = failure.simplified();
    while (m_failure.endsWith('.') || m_failure.endsWith('!'))
        m_failure.chop(1);
}
