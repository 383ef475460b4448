#pragma once

#include <QString>

/// Collects what GDAL has to say while the object lives, in this thread; GDAL prints nothing meanwhile.
class GdalMessages
{
public:
    GdalMessages();
    ~GdalMessages();
    GdalMessages(const GdalMessages&) = delete;
    GdalMessages& operator=(const GdalMessages&) = delete;

    /// The first failure, without a full stop at its end; empty when there was none.
    QString failure() const { return m_failure; }
    /// Remembers a failure; the first one counts, since later ones follow from it.
    void add(const QString& failure);

private:
    QString m_failure;
};
