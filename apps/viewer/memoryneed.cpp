#include "memoryneed.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

namespace {

// The reader's heights, the plot's nodes with their normals and the compiled display list together. Measured
// at the peak: 370 to 500 bytes a node, the less the larger the grid.
constexpr double bytesPerNode = 400.0;

} // namespace

MemoryNeed::MemoryNeed(int columns, int rows) : m_columns(columns), m_rows(rows) {}

double MemoryNeed::bytes() const
{
    return static_cast<double>(m_columns) * static_cast<double>(m_rows) * bytesPerNode;
}

bool MemoryNeed::fits(double freeBytes) const
{
    return bytes() <= freeBytes;
}

QString MemoryNeed::text() const
{
    return QCoreApplication::translate("MemoryNeed", "%1 of memory for %L2 x %L3 nodes")
        .arg(gigabytes(bytes()))
        .arg(m_columns)
        .arg(m_rows);
}

std::optional<double> MemoryNeed::freeBytes()
{
    QFile file(QStringLiteral("/proc/meminfo"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // The file has no size of its own, so it is read whole rather than to its end.
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (!line.startsWith("MemAvailable:"))
            continue;
        bool valid = false;
        const double kilobytes = line.mid(13).simplified().split(' ').value(0).toDouble(&valid);
        return valid ? std::optional<double>(kilobytes * 1024.0) : std::nullopt;
    }
    return std::nullopt;
}

QString MemoryNeed::gigabytes(double bytes)
{
    return QCoreApplication::translate("MemoryNeed", "%L1 GB").arg(bytes / 1e9, 0, 'f', 1);
}
