#pragma once

#include <QString>

#include <optional>

/// What a grid of a size costs in memory, heights and drawn plot together, against what the machine can give.
class MemoryNeed
{
public:
    MemoryNeed(int columns, int rows);

    /// Bytes, as a double so that no grid is too large to be told about.
    double bytes() const;
    /// Whether the need is within the free bytes.
    bool fits(double freeBytes) const;
    /// "12.3 GB of memory for 5000 x 7000 nodes".
    QString text() const;

    /// Bytes that programs can still take without swapping; nothing where the system does not say.
    static std::optional<double> freeBytes();
    /// A number of bytes in gigabytes (10^9) with one decimal: "12.3 GB".
    static QString gigabytes(double bytes);

private:
    int m_columns;
    int m_rows;
};
